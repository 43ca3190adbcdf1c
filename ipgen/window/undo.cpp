#include "ipgen/window/undo.h"

#include "ipgen/window/workbench.h"

namespace Window {

InstanceChange::InstanceChange(Workbench* bench, const QVector<Change>& changes,
                               const QVariantMap& dataBefore, const QVariantMap& dataAfter,
                               const QString& text)
    : QUndoCommand(text)
    , m_bench(bench)
    , m_changes(changes)
    , m_dataBefore(dataBefore)
    , m_dataAfter(dataAfter) {}

void InstanceChange::undo() {
    QVector<Workbench::Placement> placements;
    for (const Change& change : qAsConst(m_changes)) {
        placements.append({change.name, change.before});
    }
    m_bench->put(placements, m_dataAfter, m_dataBefore);
}

void InstanceChange::redo() {
    if (m_done) {
        m_done = false;
        return;
    }
    QVector<Workbench::Placement> placements;
    for (const Change& change : qAsConst(m_changes)) {
        placements.append({change.name, change.after});
    }
    m_bench->put(placements, m_dataBefore, m_dataAfter);
}

Renaming::Renaming(Workbench* bench, const QString& from, const QString& to)
    : QUndoCommand(Workbench::tr("rename %1").arg(from))
    , m_bench(bench)
    , m_from(from)
    , m_to(to) {}

void Renaming::undo() {
    m_bench->rename(m_to, m_from);
}

void Renaming::redo() {
    if (m_done) {
        m_done = false;
        return;
    }
    m_bench->rename(m_from, m_to);
}

} // namespace Window
