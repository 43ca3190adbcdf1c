#pragma once

#include "ipgen/session/script.h"

#include <serdesip/dialogview.h>

#include <QObject>
#include <QPointer>

class QAbstractButton;
class QMessageBox;
class QWidget;

namespace IPSERDESIP {
class protocolGenDlg;
}

namespace Ipgen::Session {

/// Writes down, as a script, what is done with the first IP dialog that comes up: by a user, or
/// by a Player. What the dialog's own rules change is not the user's doing and is left out.
class Recorder : public QObject {
    Q_OBJECT

public:
    Recorder();

    /// Whether a dialog has come up.
    bool hasSeenDialog() const { return m_seen; }
    /// The script so far. A dialog that was closed by other means than its buttons was cancelled,
    /// as a script is that just ends.
    Script script();
    /// What the fields showed when the dialog came up, as "set" steps in the dialog's order.
    const Script& start() const { return m_start; }
    /// The same of the frame's own text fields only: what names a new instance's output.
    Script names() const;

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void watchDialog(IPSERDESIP::protocolGenDlg* dialog);
    void noteStart(const QWidget* field);
    void watchField(QWidget* field);
    void watchButton(QAbstractButton* button);
    void watchBox(QMessageBox* box);
    void wasEdited(QWidget* field);
    void spinChanged(QWidget* spin);
    void watchSpinText(QWidget* spin);
    void recordAnswer(const QString& button);
    void recordSet(const QWidget* field, const QVariant& to);
    void recordStep(const Step& step);
    void commitEdited();
    /// Whether the dialog tries something out that it puts back.
    bool isTrial() const;

    IPSERDESIP::DialogView m_view;
    Script m_script;
    Script m_start;
    Script m_answers;            ///< given, and not yet in the script
    QPointer<QWidget> m_edited;  ///< the field that the user has changed and not left
    QPointer<QWidget> m_handled; ///< the spin box that the last input went to
    bool m_leftField = false;    ///< the last step is a field that was typed in and left
    bool m_seen = false;
};

} // namespace Ipgen::Session
