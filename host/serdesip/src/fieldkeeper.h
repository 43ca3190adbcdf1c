#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVector>
#include <QWidget>

#include <functional>

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
    /// Return how many of a user's edits the step stands for; 0: there was none.
    int undo();
    int redo();

    /// The watched fields, and what each shows, in the same order.
    const QVector<QWidget*>& fields() const { return m_fields; }
    QStringList values() const;
    const QStringList& defaults() const { return m_defaults; }

    /// Runs what edits several fields as one edit, to be undone in one step. noteEdit() is called
    /// after each.
    void perform(const std::function<void()>& edits);
    void noteEdit();
    /// Runs the edits, finds what the fields would show, and puts all back; the history stays.
    /// @return whether everything is as it was
    bool rehearse(const std::function<void()>& edits, QStringList* outcome);
    /// Puts the values into the fields, and again where rules overwrite them; no step.
    void show(const QStringList& values, int first = -1);

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
        int edits; ///< one, unless several were performed as one
    };

    void connectField(QWidget* field);
    void edited(QWidget* field);
    void schedule();
    void settle();
    void record();
    void append(int field, const QStringList& now, int edits);
    void stepTaken();
    void updateMarks();
    bool showMenu(QWidget* field, const QPoint& at);

    QVector<QWidget*> m_fields;
    QStringList m_defaults;
    QHash<QWidget*, FieldMark*> m_marks;
    QVector<Step> m_steps;
    int m_done = 0;        ///< steps that are in effect
    QStringList m_current; ///< the values after the last step
    int m_edited = -1;
    int m_performed = 0;   ///< edits of the step that is being made
    QStringList m_between; ///< the values after the last of them
    bool m_scheduled = false;
    bool m_applying = false;
    bool m_held = false; ///< edits belong to a step that is being made
};

} // namespace IPSERDESIP
