#pragma once

#include "ipgen/core/project.h"

#include <QUndoCommand>
#include <QVector>

#include <optional>

namespace Window {

class Workbench;

/// Instances that came, went or changed. Made after the fact: the first redo does nothing. A step
/// that cannot be saved tells the workbench's failed().
class InstanceChange : public QUndoCommand {
public:
    struct Change {
        QString name;
        std::optional<Ipgen::ProjectInstance> before;
        std::optional<Ipgen::ProjectInstance> after;
    };

    InstanceChange(Workbench* bench, const QVector<Change>& changes, const QString& text);
    void undo() override;
    void redo() override;

private:
    Workbench* m_bench;
    QVector<Change> m_changes;
    bool m_done = true;
};

/// An instance that got another name.
class Renaming : public QUndoCommand {
public:
    Renaming(Workbench* bench, const QString& from, const QString& to);
    void undo() override;
    void redo() override;

private:
    Workbench* m_bench;
    QString m_from;
    QString m_to;
    bool m_done = true;
};

} // namespace Window
