#pragma once

#include <QUndoCommand>
#include <QVariantMap>
#include <QVector>

namespace Window {

class Workbench;

/// Instances that came, went or changed, and what that did to the shared data. Made after the
/// fact: the first redo does nothing. A step that cannot be saved tells the workbench's failed().
class InstanceChange : public QUndoCommand {
public:
    /// Saved instances with all their keys; empty: there is none.
    struct Change {
        QString name;
        QVariantMap before;
        QVariantMap after;
    };

    InstanceChange(Workbench* bench, const QVector<Change>& changes, const QVariantMap& dataBefore,
                   const QVariantMap& dataAfter, const QString& text);
    void undo() override;
    void redo() override;

private:
    Workbench* m_bench;
    QVector<Change> m_changes;
    QVariantMap m_dataBefore;
    QVariantMap m_dataAfter;
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
