#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVector>
#include <QWidget>

namespace IPSERDESIP {

class FieldMark;

/// Watches the fields of a dialog, whatever they mean: marks those that differ from their default
/// and resets one to it, and undoes and redoes the user's edits. An edit is one step together with
/// everything that the protocol's rules changed because of it.
class FieldKeeper : public QObject {
    Q_OBJECT

public:
    explicit FieldKeeper(QObject* parent = nullptr);
    ~FieldKeeper() override;

    /// Starts to watch; the values of now are the defaults.
    void watch(const QList<QWidget*>& fields);
    /// Forgets the edits so far: what the fields show now cannot be undone.
    void startHistory();

    bool canUndo() const { return m_done > 0; }
    bool canRedo() const { return m_done < m_steps.size(); }
    void undo();
    void redo();

    /// Whether the field is in the user's hands, shows something else than its default, and
    /// could show its default.
    bool differs(QWidget* field) const;
    QString defaultOf(QWidget* field) const;
    void resetField(QWidget* field);

Q_SIGNALS:
    /// What can be undone or redone has changed.
    void historyChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Step {
        int edited; ///< place of the field that the user edited; -1: not known
        QStringList before;
        QStringList after;
    };

    void connectField(QWidget* field);
    void edited(QWidget* field);
    void schedule();
    void settle();
    void record();
    void updateMarks();
    void apply(const QStringList& values, int first);
    QStringList values() const;
    bool showMenu(QWidget* field, const QPoint& at);

    QVector<QWidget*> m_fields;
    QStringList m_defaults;
    QHash<QWidget*, FieldMark*> m_marks;
    QVector<Step> m_steps;
    int m_done = 0;        ///< steps that are in effect
    QStringList m_current; ///< the values after the last step
    int m_edited = -1;
    bool m_scheduled = false;
    bool m_applying = false;
};

} // namespace IPSERDESIP
