#include "serdesip/protocolgendlg.h"

#include "dialogframe.h"
#include "elidedlabel.h"
#include "fieldkeeper.h"
#include "fieldvalue.h"
#include "figureview.h"
#include "namerules.h"
#include "presetpanel.h"
#include "serdesip/frameservices.h"
#include "serdesip/serdes.h"

#include <core/idecore.h>
#include <core/viewmanager.h>

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShowEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QUrl>

#include <dlfcn.h>

namespace IPSERDESIP {

struct protocolGenDlg::Private {
    DialogFrame frame;
    FieldKeeper keeper;
    std::unique_ptr<PresetPanel> presets;
    DEV::DeviceArg device;
    bool opening = false;
    bool pathConnected = false;
    QString lastMessage; ///< of the box that is open

    void showPath(const QString& path) const {
        frame.createIn->setText(path);
        frame.createIn->setToolTip(path);
    }

    void showFigure(const QList<Utils::PinFigure>& pins) const {
        frame.figure->setFigure(frame.moduleName->text(), pins);
        frame.portCount->setText(tr("Ports: %1").arg(pins.size()));
    }

    void offerScript() const {
        const bool lent = FrameServices::current().writeScript != nullptr;
        frame.copyScriptButton->setVisible(lent);
        frame.copyScript->setEnabled(lent);
    }

    void takeDevice(const DEV::DeviceArg& taken) {
        device = taken;
        frame.deviceName->setText(taken.device());
    }
};

namespace {

/// The first message of another instance that `matches`, by its name in the project.
template <typename Predicate>
QString otherInstance(Predicate matches) {
    const serdes* model = serdes::instance();
    const QMap<QString, Message> messages = model->messages();
    for (auto it = messages.begin(); it != messages.end(); ++it) {
        if (it.key() != model->editing() && matches(it.value())) {
            return it.key();
        }
    }
    return {};
}

/// Where an instance of this file name writes to.
QString folderOf(const QString& fileName) {
    return serdes::instance()->workingDir() + QLatin1Char('/') + fileName;
}

/// What a box tells the user, in one line; empty for a question, and for other windows.
QString messageOf(const QWidget* window) {
    const auto* box = qobject_cast<const QMessageBox*>(window);
    if (box == nullptr || box->buttons().size() > 1) {
        return {};
    }
    const QString title = box->windowTitle();
    return title == box->text() ? title : title + QLatin1String(": ") + box->text();
}

/// The help document: an absolute path, or one below the "data" folder that lies beside the
/// library whose class the dialog is. Empty: there is none.
QString helpPath(const QMetaObject* dialogClass, const QString& document) {
    if (document.isEmpty()) {
        return {};
    }
    QFileInfo file(document);
    Dl_info library{};
    if (file.isRelative() && dladdr(dialogClass, &library) != 0 && library.dli_fname != nullptr) {
        const QFileInfo plugin(QFile::decodeName(library.dli_fname));
        file.setFile(plugin.absolutePath() + QLatin1String("/data/") + document);
    }
    return file.isAbsolute() && file.isFile() ? file.absoluteFilePath() : QString();
}

} // namespace

protocolGenDlg::protocolGenDlg(QWidget* parent)
    : QDialog(parent)
    , d(std::make_unique<Private>()) {
    d->frame.build(*this);
    // Through the virtual accept(), so that a protocol's own checks run.
    connect(d->frame.buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(d->frame.buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(d->frame.buttons, &QDialogButtonBox::helpRequested, this, [this] {
        const QString path = helpPath(metaObject(), m_helpDocument);
        QDesktopServices::openUrl(QUrl::fromLocalFile(path));
    });
    connect(d->frame.moduleName, &QLineEdit::textChanged, this,
            [this] { d->showFigure(figurePins()); });
    d->presets = std::make_unique<PresetPanel>(*this, d->frame, d->keeper);
    connect(d->frame.copyScript, &QAction::triggered, this, [this] {
        d->frame.tabBar->setFocus(Qt::OtherFocusReason); // ends the edit that is going on
        QByteArray script;
        const QString failed = FrameServices::current().writeScript(this, &script);
        if (failed.isEmpty()) {
            QGuiApplication::clipboard()->setText(QString::fromUtf8(script));
            d->frame.strip->setText(tr("The session script is on the clipboard"));
        } else {
            QMessageBox::warning(
                this, tr("Copy as session script"),
                tr("No steps have been found that lead a new instance here: %1").arg(failed));
        }
    });
    // Who writes down what the user does asks the actions how many edits they have taken.
    connect(d->frame.undo, &QAction::triggered, this,
            [this] { d->frame.undo->setProperty("edits", d->keeper.undo()); });
    connect(d->frame.redo, &QAction::triggered, this,
            [this] { d->frame.redo->setProperty("edits", d->keeper.redo()); });
    connect(&d->keeper, &FieldKeeper::historyChanged, this, [this] {
        d->frame.undo->setEnabled(d->keeper.canUndo());
        d->frame.redo->setEnabled(d->keeper.canRedo());
    });
    d->showFigure({});
}

protocolGenDlg::~protocolGenDlg() = default;

void protocolGenDlg::setCreating(const QString& name, const DEV::DeviceArg& device) {
    d->opening = false;
    d->takeDevice(device);
    if (moduleNameFault(name).isEmpty() && fileNameFaults(name).isEmpty()) {
        d->frame.fileName->setText(name);
        d->frame.moduleName->setText(name);
    }
    initForDevice();
    d->keeper.watch(fieldvalue::fieldsOf(*this));
}

bool protocolGenDlg::setOpening(const ConfigMap& config) {
    d->opening = true;
    const QString id = config.value(QStringLiteral("target_device")).toString();
    const DEV::DeviceArg found = Core::IdeCore::deviceDataBase().findDevice(id);
    d->takeDevice(found.isNull() ? serdes::instance()->device() : found);
    initForDevice();
    d->frame.fileName->setText(config.value(QStringLiteral("file")).toString());
    d->frame.moduleName->setText(config.value(QStringLiteral("module")).toString());
    // What a new instance of this name would show is the default; the saved values are where edits
    // start.
    d->keeper.watch(fieldvalue::fieldsOf(*this));
    const bool loaded = loadConfig(config);
    d->keeper.startHistory();
    return loaded;
}

bool protocolGenDlg::isOpening() const {
    return d->opening;
}
const DEV::DeviceArg& protocolGenDlg::device() const {
    return d->device;
}
QString protocolGenDlg::fileName() const {
    return d->frame.fileName->text();
}
QString protocolGenDlg::moduleName() const {
    return d->frame.moduleName->text();
}
QString protocolGenDlg::uiSynthesisTool() const {
    return d->frame.synthesisTool->currentText();
}
int protocolGenDlg::uiLanguageIndex() const {
    return d->frame.language->currentIndex();
}

void protocolGenDlg::uiSetSynthesisTool(const QString& tool) {
    QComboBox* box = d->frame.synthesisTool;
    if (!tool.isEmpty() && box->findText(tool) < 0) {
        box->addItem(tool); // a choice made elsewhere is kept, not replaced by one of ours
    }
    if (!tool.isEmpty()) {
        box->setCurrentIndex(box->findText(tool));
    }
}

void protocolGenDlg::uiSetLanguageIndex(int index) {
    if (index >= 0 && index < d->frame.language->count()) {
        d->frame.language->setCurrentIndex(index);
    }
}

QString protocolGenDlg::createPath() const {
    const QStringList faults = fileNameFaults(fileName());
    if (!faults.isEmpty()) {
        Core::ViewManager::reportError(fileName(), faults.join(QLatin1Char(' ')));
    }
    return folderOf(faults.isEmpty() ? fileName() : QString());
}

bool protocolGenDlg::isRehearsing() const {
    return d->presets->isRehearsing();
}

QList<Utils::PinFigure> protocolGenDlg::figurePins() const {
    return d->frame.figure->pins();
}

void protocolGenDlg::initForDevice() {}

bool protocolGenDlg::loadConfig(const ConfigMap&) {
    return true;
}

void protocolGenDlg::uiSetLabelText(const QString& text) {
    d->frame.label->setText(text);
    setWindowTitle(text);
}

void protocolGenDlg::uiSetDefaultFileName(const QString& name) {
    d->frame.fileName->setText(name);
}

void protocolGenDlg::uiSetModuleName(const QString& name) {
    d->frame.moduleName->setText(name);
}

void protocolGenDlg::uiAddTab(QWidget* page, const QString& title) {
    // The page first: the bar's first tab becomes current at once.
    d->frame.tabs->addTab(page, title);
    d->frame.tabBar->addTab(title);
}

void protocolGenDlg::uiSetFigurePins(const QList<Utils::PinFigure>& pins) {
    d->showFigure(pins);
}

void protocolGenDlg::fileNameConnectCreatIn() {
    if (!d->pathConnected) {
        connect(d->frame.fileName, &QLineEdit::textChanged, this,
                [this](const QString& name) { d->showPath(folderOf(name)); });
        d->pathConnected = true;
    }
    d->showPath(folderOf(fileName()));
}

QStringList protocolGenDlg::checkFileOptions() {
    return fileNameFaults(fileName());
}

void protocolGenDlg::showErrorMsg(const QStringList& messages) {
    QMessageBox::critical(this, tr("Error"), messages.join(QLatin1Char('\n')));
}

bool protocolGenDlg::checkFileExisting() {
    const QString file = fileName();
    const QString other = otherInstance([&](const Message& message) {
        return message.file.compare(file, Qt::CaseInsensitive) == 0;
    });
    if (other.isEmpty()) {
        return true;
    }
    QMessageBox::warning(this, tr("Warning"),
                         tr("The file name \"%1\" is used by the instance \"%2\", which writes to "
                            "the same folder: choose another.")
                             .arg(file, other));
    return false;
}

bool protocolGenDlg::checkModuleName() {
    QString fault = moduleNameFault(moduleName());
    if (fault.isEmpty()) {
        const QString module = moduleName();
        const QString other =
            otherInstance([&](const Message& message) { return message.module == module; });
        if (!other.isEmpty()) {
            fault = tr("The module name \"%1\" is used by the instance \"%2\": a design can hold "
                       "a module only once.")
                        .arg(module, other);
        }
    }
    if (!fault.isEmpty()) {
        QMessageBox::warning(this, tr("Warning"), fault);
    }
    return fault.isEmpty();
}

bool protocolGenDlg::event(QEvent* event) {
    const bool handled = QDialog::event(event);
    switch (event->type()) {
    case QEvent::Show:
        d->frame.help->setEnabled(!helpPath(metaObject(), m_helpDocument).isEmpty());
        d->frame.orderFields();
        d->presets->start();
        d->offerScript();
        break;
    case QEvent::WindowBlocked:
        if (isRehearsing()) {
            break; // what a rule says then is the preview's to tell
        }
        d->lastMessage = messageOf(QApplication::activeModalWidget());
        break;
    case QEvent::WindowUnblocked:
        if (isRehearsing()) {
            break;
        }
        // A message box has been closed, so a check may have failed: say why, for any protocol.
        d->frame.details->setPlainText(serdes::instance()->details().join(QLatin1Char('\n')));
        if (!d->lastMessage.isEmpty()) {
            d->frame.strip->setText(d->lastMessage);
        }
        break;
    default:
        break;
    }
    return handled;
}

void protocolGenDlg::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool typing = qobject_cast<QLineEdit*>(focusWidget()) != nullptr ||
                        qobject_cast<QAbstractSpinBox*>(focusWidget()) != nullptr;
    if (!enter || !typing) {
        QDialog::keyPressEvent(event);
    }
}

} // namespace IPSERDESIP
