#pragma once

#include <serdesip/message.h>
#include <serdesip/types.h>
#include <utils/pinfigure.h>

#include <QCheckBox>
#include <QComboBox>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QList>
#include <QMessageBox>
#include <QObject>
#include <QSpinBox>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <memory>

namespace IPSERDESIP {
class BaseProtocol;
class protocolGenDlg;
} // namespace IPSERDESIP

// The dialog of the loaded plug-in under a user's hands. Nothing here knows the plug-in's classes:
// the dialog is reached as the host reaches it, by its model, and its widgets by their names.
namespace DialogTest {

using IPSERDESIP::ConfigMap;

/// A message box as the user saw it.
struct Box {
    QString title;
    QString text;
    QStringList buttons;
    QString answer; ///< the button that closed it
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QImage iconPixmap; ///< null: it had none
    QIcon windowIcon;
    bool isModal = false;
    bool belongsToDialog = false;
};

/// "title: text" of each, to compare with.
QStringList titlesAndTexts(const QList<Box>& boxes);

/// The open dialog. Actions are a user's: a widget that is disabled or hidden takes none, and each
/// ends when the events that it has caused are done.
class Dialog {
public:
    explicit Dialog(IPSERDESIP::protocolGenDlg* dialog)
        : m_dialog(dialog) {}

    IPSERDESIP::protocolGenDlg* operator->() const { return m_dialog; }
    IPSERDESIP::protocolGenDlg* get() const { return m_dialog; }

    /// The page by its place from 1.
    QWidget* page(int number) const;
    int pageCount() const;
    QString tabTitle(int number) const;
    /// A widget of a page; "name" where only one page has it, else "2/name". A name that is not
    /// there is a fatal error of the test.
    QWidget* find(const QString& name) const;
    template <typename Widget>
    Widget* as(const QString& name) const {
        auto* widget = qobject_cast<Widget*>(find(name));
        Q_ASSERT_X(widget != nullptr, "DialogTest::Dialog", qPrintable(name));
        return widget;
    }
    QComboBox* combo(const QString& name) const { return as<QComboBox>(name); }
    QLineEdit* edit(const QString& name) const { return as<QLineEdit>(name); }
    QCheckBox* box(const QString& name) const { return as<QCheckBox>(name); }
    QSpinBox* spin(const QString& name) const { return as<QSpinBox>(name); }

    /// What is shown: a combo box's or label's text, a line edit's displayed text, a spin box's
    /// number, "checked" or "unchecked".
    QString text(const QString& name) const;
    QStringList items(const QString& name) const;
    /// The items' data as texts; "" for none.
    QStringList itemData(const QString& name) const;
    bool isEnabled(const QString& name) const { return find(name)->isEnabled(); }
    /// Whether it would show if its page were in front.
    bool isShown(const QString& name) const;
    bool isUsable(const QString& name) const { return isShown(name) && isEnabled(name); }
    QStringList pins() const;

    // --- the user's actions; false: the widget takes none or has no such choice ---------------
    bool choose(const QString& combo, const QString& item);
    bool check(const QString& box, bool on);
    /// Types over the whole text, key by key, and leaves the field.
    bool type(const QString& edit, const QString& text);
    bool setNumber(const QString& spin, int number);
    bool click(const QString& button);
    void pressOk();
    void pressCancel();

    /// Calls a slot as the meta-object does.
    void run(const char* slot);
    bool ask(const char* slot);

private:
    bool takes(const QWidget* widget) const;
    void settle();

    IPSERDESIP::protocolGenDlg* m_dialog;
};

/// One project on one device, and the model of the loaded plug-in.
class Bench : public QObject {
public:
    /// @param device  id or model name
    explicit Bench(const QString& device);
    ~Bench() override;

    using Act = std::function<void(Dialog&)>;
    /// Opens the dialog for a new instance, lets the test act on it, and cancels it if the test
    /// has not closed it. The configuration: empty unless accepted.
    ConfigMap create(const Act& act, const QString& name = QStringLiteral("link0"));
    /// The same on a saved one. `act` is not called when the configuration is refused.
    ConfigMap open(const ConfigMap& config, const Act& act);
    /// Whether the last create() or open() has shown the dialog.
    bool wasShown() const { return m_shown; }

    /// Answers for the boxes to come that ask, in order; without one, the default button.
    void answer(const QString& button) { m_answers.append(button); }
    /// The boxes since the last call.
    QList<Box> takeBoxes();
    /// The same as "title: text".
    QStringList takeMessages() { return titlesAndTexts(takeBoxes()); }

    /// Enters what another instance holds.
    void occupy(const QString& owner, const IPSERDESIP::Message& message);
    QString folder() const { return m_folder.path(); }
    IPSERDESIP::BaseProtocol* model() const { return m_model.get(); }
    QString device() const { return m_device; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void answerBox(QMessageBox* box);
    ConfigMap run(const Act& act, const std::function<ConfigMap()>& start);

    QTemporaryDir m_folder;
    QString m_device;
    std::unique_ptr<IPSERDESIP::BaseProtocol> m_model;
    Act m_act;
    bool m_shown = false;
    QStringList m_answers;
    QList<Box> m_boxes;
};

/// A message of an instance that holds lanes and, on a shared PLL, a rate and a reference.
IPSERDESIP::Message holder(const QStringList& lanes, const QStringList& plls = {},
                           double realRate = 0.0, const QString& reference = {},
                           double frequency = 0.0);

} // namespace DialogTest
