#include "harness.h"

#include <core/idecore.h>
#include <core/viewmanager.h>
#include <dev/devicedb.h>
#include <ipcore/ipcore.h>
#include <serdesip/baseprotocol.h>
#include <serdesip/protocolgendlg.h>
#include <serdesip/protocolpackage.h>
#include <serdesip/serdes.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFocusEvent>
#include <QPluginLoader>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QtTest>

namespace DialogTest {

using IPSERDESIP::Message;
using IPSERDESIP::protocolGenDlg;

namespace {

QString sourcePath(const char* relative) {
    return QStringLiteral(SOURCE_DIR "/") + QLatin1String(relative);
}

IPSERDESIP::ProtocolPackage* package() {
    static QPluginLoader loader(
        QStringLiteral(BUILD_DIR "/lib/ipgen/ip/customized/libcustomized.so"));
    auto* loaded = dynamic_cast<IPSERDESIP::ProtocolPackage*>(loader.instance());
    if (loaded == nullptr) {
        qFatal("%s", qPrintable(loader.errorString()));
    }
    return loaded;
}

DEV::DeviceArg findDevice(const QString& name) {
    QString error;
    const DEV::DeviceDb db = DEV::DeviceDb::load(sourcePath("host/data/devices.json"), &error);
    if (!error.isEmpty()) {
        qFatal("%s", qPrintable(error));
    }
    Core::IdeCore::setDeviceDataBase(db);
    const DEV::DeviceArg found = db.findDevice(name);
    // A device that the database does not know is still one.
    return found.isNull() ? DEV::DeviceArg(name, name) : found;
}

} // namespace

QStringList titlesAndTexts(const QList<Box>& boxes) {
    QStringList messages;
    for (const Box& box : boxes) {
        messages.append(box.title + QStringLiteral(": ") + box.text);
    }
    return messages;
}

// --- Dialog -----------------------------------------------------------------------------------

QWidget* Dialog::page(int number) const {
    return m_dialog->findChild<QTabWidget*>(QStringLiteral("tabs"))->widget(number - 1);
}

int Dialog::pageCount() const {
    return m_dialog->findChild<QTabWidget*>(QStringLiteral("tabs"))->count();
}

QString Dialog::tabTitle(int number) const {
    return m_dialog->findChild<QTabWidget*>(QStringLiteral("tabs"))->tabText(number - 1);
}

QWidget* Dialog::find(const QString& name) const {
    const int slash = name.indexOf('/');
    const int only = slash < 0 ? 0 : name.left(slash).toInt();
    QWidget* found = nullptr;
    for (int number = 1; number <= pageCount(); ++number) {
        auto* widget = only != 0 && only != number
                           ? nullptr
                           : page(number)->findChild<QWidget*>(name.mid(slash + 1));
        if (widget != nullptr && found != nullptr) {
            qFatal("more than one page has a widget %s", qPrintable(name));
        }
        found = widget != nullptr ? widget : found;
    }
    if (found == nullptr) {
        qFatal("no page has a widget %s", qPrintable(name));
    }
    return found;
}

QString Dialog::text(const QString& name) const {
    const QWidget* widget = find(name);
    if (const auto* combo = qobject_cast<const QComboBox*>(widget)) {
        return combo->currentText();
    }
    if (const auto* edit = qobject_cast<const QLineEdit*>(widget)) {
        return edit->displayText();
    }
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        return label->text();
    }
    if (const auto* spin = qobject_cast<const QSpinBox*>(widget)) {
        return QString::number(spin->value());
    }
    if (const auto* box = qobject_cast<const QCheckBox*>(widget)) {
        return box->isChecked() ? QStringLiteral("checked") : QStringLiteral("unchecked");
    }
    qFatal("%s shows no text", qPrintable(name));
}

QStringList Dialog::items(const QString& name) const {
    const QComboBox* box = combo(name);
    QStringList texts;
    for (int i = 0; i < box->count(); ++i) {
        texts.append(box->itemText(i));
    }
    return texts;
}

QStringList Dialog::itemData(const QString& name) const {
    const QComboBox* box = combo(name);
    QStringList data;
    for (int i = 0; i < box->count(); ++i) {
        data.append(box->itemData(i).toString());
    }
    return data;
}

bool Dialog::isShown(const QString& name) const {
    const QWidget* widget = find(name);
    for (int number = 1; number <= pageCount(); ++number) {
        if (page(number)->isAncestorOf(widget)) {
            return widget->isVisibleTo(page(number));
        }
    }
    return false;
}

QStringList Dialog::pins() const {
    QStringList names;
    for (const Utils::PinFigure& pin : m_dialog->figurePins()) {
        names.append(pin.name());
    }
    return names;
}

bool Dialog::takes(const QWidget* widget) const {
    for (int number = 1; number <= pageCount(); ++number) {
        if (page(number)->isAncestorOf(widget)) {
            return widget->isEnabled() && widget->isVisibleTo(page(number));
        }
    }
    return false;
}

void Dialog::settle() {
    // Twice: what is posted by what was posted belongs to the same action.
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

bool Dialog::choose(const QString& name, const QString& item) {
    QComboBox* box = combo(name);
    const int index = box->findText(item, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (!takes(box) || index < 0) {
        return false;
    }
    box->setCurrentIndex(index);
    settle();
    return true;
}

bool Dialog::check(const QString& name, bool on) {
    auto* button = as<QCheckBox>(name);
    if (!takes(button)) {
        return false;
    }
    if (button->isChecked() != on) {
        button->click();
    }
    settle();
    return true;
}

bool Dialog::type(const QString& name, const QString& text) {
    QLineEdit* field = edit(name);
    if (!takes(field)) {
        return false;
    }
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Delete);
    field->home(false);
    QTest::keyClicks(field, text);
    const bool taken = field->inputMask().isEmpty() ? field->text() == text
                                                    : field->displayText() == text.toUpper();
    QFocusEvent leave(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(field, &leave);
    settle();
    return taken;
}

bool Dialog::setNumber(const QString& name, int number) {
    QSpinBox* field = spin(name);
    if (!takes(field) || number < field->minimum() || number > field->maximum()) {
        return false;
    }
    field->setValue(number);
    settle();
    return true;
}

bool Dialog::click(const QString& name) {
    auto* button = as<QAbstractButton>(name);
    if (!takes(button)) {
        return false;
    }
    button->click();
    settle();
    return true;
}

void Dialog::pressOk() {
    m_dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    settle();
}

void Dialog::pressCancel() {
    m_dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->click();
    settle();
}

void Dialog::run(const char* slot) {
    if (!QMetaObject::invokeMethod(m_dialog, slot, Qt::DirectConnection)) {
        qFatal("no slot %s", slot);
    }
    settle();
}

bool Dialog::ask(const char* slot) {
    bool answer = false;
    if (!QMetaObject::invokeMethod(m_dialog, slot, Qt::DirectConnection,
                                   Q_RETURN_ARG(bool, answer))) {
        qFatal("no slot %s", slot);
    }
    settle();
    return answer;
}

// --- Bench ------------------------------------------------------------------------------------

Bench::Bench(const QString& device) {
    const DEV::DeviceArg found = findDevice(device);
    m_device = found.id();
    IPCore::setOutputRoot(m_folder.path());
    IPSERDESIP::serdes::instance()->openProject(found, m_folder.path() + "/transceiver", {});
    package()->setPackageDir(sourcePath("ip"));
    const QList<IPSERDESIP::BaseProtocol*> models = package()->protocols();
    if (models.size() != 1) {
        qFatal("the package offers %d models", models.size());
    }
    m_model.reset(models.first());
    qApp->installEventFilter(this);
}

Bench::~Bench() {
    qApp->removeEventFilter(this);
}

QList<Box> Bench::takeBoxes() {
    return std::exchange(m_boxes, {});
}

void Bench::occupy(const QString& owner, const Message& message) {
    IPSERDESIP::serdes::instance()->setMessage(owner, message);
}

ConfigMap Bench::run(const Act& act, const std::function<ConfigMap()>& start) {
    // Restored afterwards: a test may open a second dialog while the first one runs.
    const Act outer = std::exchange(m_act, act);
    m_shown = false;
    const ConfigMap config = start();
    m_act = outer;
    return config;
}

ConfigMap Bench::create(const Act& act, const QString& name) {
    const DEV::DeviceArg arg = IPSERDESIP::serdes::instance()->device();
    return run(act, [&] { return m_model->create(name, arg); });
}

ConfigMap Bench::open(const ConfigMap& config, const Act& act) {
    return run(act, [&] { return m_model->open(config); });
}

bool Bench::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Show) {
        return false;
    }
    if (auto* box = qobject_cast<QMessageBox*>(watched)) {
        QTimer::singleShot(0, box, [this, box] { answerBox(box); });
    } else if (auto* dialog = qobject_cast<protocolGenDlg*>(watched)) {
        if (Act act = std::exchange(m_act, nullptr)) {
            m_shown = true;
            QTimer::singleShot(0, dialog, [act, dialog] {
                Dialog hands(dialog);
                act(hands);
                if (dialog->isVisible()) {
                    dialog->reject();
                }
            });
        }
    }
    return false;
}

void Bench::answerBox(QMessageBox* box) {
    Box seen;
    seen.title = box->windowTitle();
    seen.text = box->text();
    seen.icon = box->icon();
    seen.iconPixmap = box->iconPixmap().toImage();
    seen.windowIcon = box->windowIcon();
    seen.isModal = box->isModal();
    seen.belongsToDialog = qobject_cast<protocolGenDlg*>(box->parentWidget()) != nullptr;
    QAbstractButton* chosen = box->defaultButton();
    for (QAbstractButton* button : box->buttons()) {
        QString caption = button->text();
        caption.remove('&');
        seen.buttons.append(caption);
        if (box->buttons().size() > 1 && m_answers.value(0) == caption) {
            chosen = button;
        }
    }
    if (box->buttons().size() > 1 && !m_answers.isEmpty()) {
        m_answers.removeFirst();
    }
    if (chosen == nullptr) {
        chosen = box->buttons().constFirst();
    }
    seen.answer = chosen->text().remove('&');
    m_boxes.append(seen);
    chosen->click();
}

Message holder(const QStringList& lanes, const QStringList& plls, double realRate,
               const QString& reference, double frequency) {
    Message message;
    message.protocol = QStringLiteral("other");
    message.file = QStringLiteral("other_file");
    message.module = QStringLiteral("other_module");
    message.instance = message.file + ':' + message.module;
    message.lanes = lanes;
    message.plls = plls;
    message.txRate = message.rxRate = message.realTxRate = realRate;
    if (!reference.isEmpty()) {
        message.refClocks.append(reference);
        message.refFrequencies.append(frequency);
    }
    return message;
}

} // namespace DialogTest
