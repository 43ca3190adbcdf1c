// The frame of the protocol dialogs: names, device, path, checks and their boxes.

#include "namerules.h"
#include "serdesip/frameservices.h"
#include "serdesip/protocolgendlg.h"
#include "serdesip/serdes.h"

#include <core/idecore.h>
#include <core/viewmanager.h>
#include <ipcore/ipcore.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>

using IPSERDESIP::ConfigMap;
using IPSERDESIP::Message;
using IPSERDESIP::serdes;

namespace {

const DEV::DeviceArg kBoard(QStringLiteral("id-a"), QStringLiteral("RZ7X-60B"));
const DEV::DeviceArg kSaved(QStringLiteral("id-b"), QStringLiteral("RZ7X-138"));

/// A protocol's dialog that writes down what the frame asks of it.
class TestDialog : public IPSERDESIP::protocolGenDlg {
public:
    TestDialog() {
        uiSetLabelText(QStringLiteral("Test IP"));
        uiSetDefaultFileName(QStringLiteral("default_file"));
        uiSetModuleName(QStringLiteral("default_module"));
        m_helpDocument = QStringLiteral("help/none.html");
    }

    using protocolGenDlg::checkFileExisting;
    using protocolGenDlg::checkFileOptions;
    using protocolGenDlg::checkModuleName;
    using protocolGenDlg::fileNameConnectCreatIn;
    using protocolGenDlg::m_helpDocument;
    using protocolGenDlg::showErrorMsg;
    using protocolGenDlg::uiAddTab;
    using protocolGenDlg::uiSetFigurePins;

    void accept() override {
        calls << QStringLiteral("accept");
        if (accepts) {
            protocolGenDlg::accept();
        }
    }

    template <typename Widget>
    Widget* field(const char* name) const {
        return findChild<Widget*>(QString::fromLatin1(name));
    }
    void setFile(const QString& text) { field<QLineEdit>("fileName")->setText(text); }
    void setModule(const QString& text) { field<QLineEdit>("moduleName")->setText(text); }

    QStringList calls;
    bool loads = true;
    bool accepts = true;

protected:
    void initForDevice() override {
        calls << QStringLiteral("init ") + device().device();
        fileNameConnectCreatIn();
    }
    bool loadConfig(const ConfigMap&) override {
        calls << QStringLiteral("load ") + fileName() + QLatin1Char(' ') + moduleName();
        return loads;
    }
};

struct Box {
    QString title;
    QString text;
};

/// Closes each message box that comes up during `action` and returns what it said.
template <typename Action>
QList<Box> boxesDuring(Action action) {
    QList<Box> boxes;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&boxes] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            boxes.append({box->windowTitle(), box->text()});
            box->defaultButton() != nullptr ? box->defaultButton()->click() : box->accept();
        }
    });
    watch.start(5);
    action();
    return boxes;
}

Message messageOf(const QString& file, const QString& module) {
    Message message;
    message.file = file;
    message.module = module;
    return message;
}

} // namespace

class ProtocolGenDlgTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void creatingNames_data();
    void creatingNames();
    void openingOrder();
    void openingFallsBackToTheProjectsDevice();
    void openingRefused();
    void toolAndLanguage();
    void createPathFollowsTheFileName();
    void createPathRefusesFaultyNames();
    void fileNameFaults_data();
    void fileNameFaults();
    void everyFaultIsNamed();
    void errorBox();
    void fileUsedByAnother_data();
    void fileUsedByAnother();
    void moduleName_data();
    void moduleName();
    void moduleUsedByAnother();
    void okRunsTheVirtualAccept();
    void enterInAFieldDoesNotPressOk();
    void escapeCancels();
    void undoAndDefaultsOfThePages();
    void openedValuesAreWhereEditsStart();
    void pagesFollowTheBar();
    void figureGetsThePins();
    void resources_data();
    void resources();
    void detailsAfterABox();
    void messageStripRepeatsTheLastMessage();
    void questionsAreNotRepeated();
    void helpButton();
    void frameOffersWhatIsLent();
    void copiedScript();
    void accessibleAndInReach();
    void fitsASmallScreen();
};

void ProtocolGenDlgTest::init() {
    Core::IdeCore::setDeviceDataBase(DEV::DeviceDb({kBoard, kSaved}));
    serdes::instance()->openProject(kBoard, QStringLiteral("/p/transceiver"), {});
    serdes::instance()->clearDetails();
}

void ProtocolGenDlgTest::creatingNames_data() {
    QTest::addColumn<QString>("instance");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("module");
    const QString longName(256, QLatin1Char('x'));
    QTest::newRow("identifier") << "link0"
                                << "link0"
                                << "link0";
    QTest::newRow("underscore") << "_a$1"
                                << "_a$1"
                                << "_a$1";
    QTest::newRow("digit first") << "0link"
                                 << "default_file"
                                 << "default_module";
    QTest::newRow("dash") << "my-link"
                          << "default_file"
                          << "default_module";
    QTest::newRow("empty") << ""
                           << "default_file"
                           << "default_module";
    QTest::newRow("keyword") << "module"
                             << "default_file"
                             << "default_module";
    QTest::newRow("too long for a folder") << longName << "default_file"
                                           << "default_module";
}

void ProtocolGenDlgTest::creatingNames() {
    QFETCH(QString, instance);
    TestDialog dialog;
    dialog.setCreating(instance, kBoard);
    QTEST(dialog.fileName(), "file");
    QTEST(dialog.moduleName(), "module");
    QCOMPARE(dialog.calls, QStringList{"init RZ7X-60B"});
    QCOMPARE(dialog.device().id(), QStringLiteral("id-a"));
    QVERIFY(!dialog.isOpening());
}

void ProtocolGenDlgTest::openingOrder() {
    TestDialog dialog;
    QVERIFY(dialog.setOpening({{"target_device", "id-b"}, {"file", "f"}, {"module", "m"}}));
    QCOMPARE(dialog.calls, (QStringList{"init RZ7X-138", "load f m"}));
    QCOMPARE(dialog.device().id(), QStringLiteral("id-b"));
    QVERIFY(dialog.isOpening());
}

void ProtocolGenDlgTest::openingFallsBackToTheProjectsDevice() {
    for (const ConfigMap& config : {ConfigMap(), ConfigMap{{"target_device", "unknown"}}}) {
        TestDialog dialog;
        QVERIFY(dialog.setOpening(config));
        QCOMPARE(dialog.device().id(), QStringLiteral("id-a"));
    }
}

void ProtocolGenDlgTest::openingRefused() {
    TestDialog dialog;
    dialog.loads = false;
    QVERIFY(!dialog.setOpening({{"target_device", "id-a"}}));
}

void ProtocolGenDlgTest::toolAndLanguage() {
    TestDialog dialog;
    QCOMPARE(dialog.uiLanguageIndex(), 0);
    dialog.uiSetLanguageIndex(1);
    QCOMPARE(dialog.field<QComboBox>("language")->currentText(), QStringLiteral("VHDL"));
    for (const int outside : {-1, 2, 1000}) {
        dialog.uiSetLanguageIndex(outside);
        QCOMPARE(dialog.uiLanguageIndex(), 1);
    }
    const QString first = dialog.uiSynthesisTool();
    QVERIFY(!first.isEmpty());
    dialog.uiSetSynthesisTool(QString());
    QCOMPARE(dialog.uiSynthesisTool(), first);
    const int tools = dialog.field<QComboBox>("synthesisTool")->count();
    QVERIFY(tools > 1);
    // A tool that the list lacks is kept, and listed once.
    dialog.uiSetSynthesisTool(QStringLiteral("Tool of 2019"));
    dialog.uiSetSynthesisTool(first);
    dialog.uiSetSynthesisTool(QStringLiteral("Tool of 2019"));
    QCOMPARE(dialog.uiSynthesisTool(), QStringLiteral("Tool of 2019"));
    QCOMPARE(dialog.field<QComboBox>("synthesisTool")->count(), tools + 1);
}

void ProtocolGenDlgTest::createPathFollowsTheFileName() {
    TestDialog dialog;
    dialog.setCreating(QStringLiteral("link0"), kBoard);
    dialog.fileNameConnectCreatIn(); // a second call adds nothing
    const auto* path = dialog.field<QLineEdit>("createIn");
    QCOMPARE(path->text(), QStringLiteral("/p/transceiver/link0"));
    dialog.setFile(QStringLiteral("other"));
    QCOMPARE(path->text(), QStringLiteral("/p/transceiver/other"));
    QCOMPARE(dialog.createPath(), QStringLiteral("/p/transceiver/other"));
    QVERIFY(path->isReadOnly());
}

void ProtocolGenDlgTest::createPathRefusesFaultyNames() {
    TestDialog dialog;
    dialog.setCreating(QStringLiteral("link0"), kBoard);
    QStringList told;
    const auto former =
        Core::ViewManager::setErrorSink([&told](const QString& what, const QString& why) {
            told.append(what + QLatin1Char('|') + why);
        });
    dialog.setFile(QStringLiteral("../x"));
    QVERIFY2(told.isEmpty(), "typing alone refuses nothing");
    QCOMPARE(dialog.createPath(), QStringLiteral("/p/transceiver/"));
    Core::ViewManager::setErrorSink(former);
    QCOMPARE(told.size(), 1);
    QVERIFY(told.first().startsWith(QStringLiteral("../x|The file name \"../x\" ")));
    // What is put behind it is no path that the host writes to.
    QVERIFY(!IPCore::outputFlaw(dialog.createPath() + QStringLiteral("/temp/X")).isEmpty());
}

void ProtocolGenDlgTest::fileNameFaults_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("word"); // of the one sentence; empty: no fault
    QTest::newRow("plain") << "link0"
                           << "";
    QTest::newRow("blanks and dots inside") << "my link.v2"
                                            << "";
    QTest::newRow("dots that name no folder") << "...a"
                                              << "";
    QTest::newRow("umlaut") << QString::fromUtf8("k\u00f6ln") << "";
    QTest::newRow("255 bytes") << QString(255, QLatin1Char('a')) << "";
    QTest::newRow("empty") << ""
                           << "empty";
    QTest::newRow("blank") << "  "
                           << "empty";
    QTest::newRow("slash") << "a/b"
                           << "separator";
    QTest::newRow("backslash") << "a\\b"
                               << "separator";
    QTest::newRow("absolute") << "/a"
                              << "absolute";
    QTest::newRow("parent") << ".."
                            << "relative";
    QTest::newRow("itself") << "."
                            << "relative";
    QTest::newRow("line feed") << "a\nb"
                               << "control";
    QTest::newRow("delete") << QStringLiteral("a\u007f") << "control";
    QTest::newRow("zero") << QString(QLatin1Char('a')) + QChar(0) << "control";
    QTest::newRow("256 bytes") << QString(256, QLatin1Char('a')) << "256 bytes";
    QTest::newRow("129 characters of two bytes") << QString(129, QChar(0x00f6)) << "258 bytes";
}

void ProtocolGenDlgTest::fileNameFaults() {
    QFETCH(QString, name);
    QFETCH(QString, word);
    const QStringList faults = IPSERDESIP::fileNameFaults(name);
    QCOMPARE(faults.size(), word.isEmpty() ? 0 : 1);
    if (!word.isEmpty()) {
        QVERIFY2(faults.first().contains(word), qPrintable(faults.first()));
        QVERIFY2(faults.first().endsWith(QLatin1Char('.')), qPrintable(faults.first()));
        QVERIFY(!faults.first().contains(QLatin1Char('\n')));
    }
}

void ProtocolGenDlgTest::everyFaultIsNamed() {
    TestDialog dialog;
    dialog.setFile(QStringLiteral("a/../b\u007f"));
    QCOMPARE(dialog.checkFileOptions().size(), 3);
    dialog.setFile(QStringLiteral("fine"));
    QVERIFY(dialog.checkFileOptions().isEmpty());
}

void ProtocolGenDlgTest::errorBox() {
    TestDialog dialog;
    const QList<Box> boxes = boxesDuring([&] {
        dialog.showErrorMsg({QStringLiteral("One."), QStringLiteral("Two.")});
    });
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes.first().title, QStringLiteral("Error"));
    QCOMPARE(boxes.first().text, QStringLiteral("One.\nTwo."));
}

void ProtocolGenDlgTest::fileUsedByAnother_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("editing");
    QTest::addColumn<bool>("free");
    QTest::newRow("free") << "link1"
                          << "" << true;
    QTest::newRow("taken") << "link0"
                           << "" << false;
    QTest::newRow("taken but for its case") << "LINK0"
                                            << "" << false;
    QTest::newRow("its own") << "link0"
                             << "a" << true;
    QTest::newRow("another's while editing") << "rx"
                                             << "a" << false;
}

void ProtocolGenDlgTest::fileUsedByAnother() {
    QFETCH(QString, file);
    QFETCH(QString, editing);
    QFETCH(bool, free);
    serdes::instance()->setMessage(QStringLiteral("a"), messageOf("link0", "link0"));
    serdes::instance()->setMessage(QStringLiteral("b"), messageOf("rx", "rx_top"));
    serdes::instance()->setEditing(editing);
    TestDialog dialog;
    dialog.setFile(file);
    bool result = false;
    const QList<Box> boxes = boxesDuring([&] { result = dialog.checkFileExisting(); });
    QCOMPARE(result, free);
    QCOMPARE(boxes.size(), free ? 0 : 1);
    if (!free) {
        QVERIFY(boxes.first().text.contains(file));
        QVERIFY(boxes.first().text.contains(file == "rx" ? "\"b\"" : "\"a\""));
    }
}

void ProtocolGenDlgTest::moduleName_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("word");
    QTest::newRow("plain") << "link0"
                           << "";
    QTest::newRow("underscore and dollar") << "_a$"
                                           << "";
    QTest::newRow("keyword in capitals is none") << "MODULE"
                                                 << "";
    QTest::newRow("empty") << ""
                           << "empty";
    QTest::newRow("digit first") << "0a"
                                 << "identifier";
    QTest::newRow("dollar first") << "$a"
                                  << "identifier";
    QTest::newRow("dash") << "a-b"
                          << "identifier";
    QTest::newRow("blank") << "a b"
                           << "identifier";
    QTest::newRow("trailing line feed") << "ab\n"
                                        << "identifier";
    QTest::newRow("umlaut") << QString::fromUtf8("k\u00f6ln") << "identifier";
    for (const char* word : {"module", "wire", "always_ff", "xor", "accept_on", "logic", "tri0",
                             "endmodule", "unique0", "cell"}) {
        QTest::newRow(word) << word << "reserved word";
    }
}

void ProtocolGenDlgTest::moduleName() {
    QFETCH(QString, name);
    QFETCH(QString, word);
    QVERIFY2(word.isEmpty() ? IPSERDESIP::moduleNameFault(name).isEmpty()
                            : IPSERDESIP::moduleNameFault(name).contains(word),
             qPrintable(IPSERDESIP::moduleNameFault(name)));
    if (name.contains(QLatin1Char('\n'))) {
        return; // a line edit takes no line feed
    }
    TestDialog dialog;
    dialog.setModule(name);
    bool result = false;
    const QList<Box> boxes = boxesDuring([&] { result = dialog.checkModuleName(); });
    QCOMPARE(result, word.isEmpty());
    QCOMPARE(boxes.size(), word.isEmpty() ? 0 : 1);
}

void ProtocolGenDlgTest::moduleUsedByAnother() {
    serdes::instance()->setMessage(QStringLiteral("a"), messageOf("f", "top"));
    TestDialog dialog;
    const auto check = [&](const char* name) {
        dialog.setModule(QString::fromLatin1(name));
        bool result = false;
        const QList<Box> boxes = boxesDuring([&] { result = dialog.checkModuleName(); });
        return result && boxes.isEmpty();
    };
    QVERIFY(!check("top"));
    QVERIFY(check("Top")); // Verilog tells them apart
    serdes::instance()->setEditing(QStringLiteral("a"));
    QVERIFY(check("top"));
}

void ProtocolGenDlgTest::okRunsTheVirtualAccept() {
    TestDialog dialog;
    dialog.accepts = false;
    dialog.show();
    auto* ok = dialog.field<QDialogButtonBox>("buttons")->button(QDialogButtonBox::Ok);
    QTest::mouseClick(ok, Qt::LeftButton);
    QCOMPARE(dialog.calls, QStringList{"accept"});
    QVERIFY(dialog.isVisible());
    dialog.accepts = true;
    QTest::mouseClick(ok, Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void ProtocolGenDlgTest::enterInAFieldDoesNotPressOk() {
    TestDialog dialog;
    dialog.show();
    auto* file = dialog.field<QLineEdit>("fileName");
    file->setFocus();
    QTest::keyClick(file, Qt::Key_Return);
    QVERIFY(dialog.calls.isEmpty());
    dialog.field<QComboBox>("language")->setFocus();
    QTest::keyClick(dialog.field<QComboBox>("language"), Qt::Key_Return);
    QCOMPARE(dialog.calls, QStringList{"accept"});
}

void ProtocolGenDlgTest::undoAndDefaultsOfThePages() {
    TestDialog dialog;
    auto* page = new QWidget;
    auto* box = new QCheckBox(page);
    box->setObjectName(QStringLiteral("option"));
    dialog.uiAddTab(page, QStringLiteral("A"));
    dialog.setCreating(QStringLiteral("link0"), kBoard);
    dialog.show();
    QAction* undo = dialog.field<QToolButton>("undo")->defaultAction();
    QAction* redo = dialog.field<QToolButton>("redo")->defaultAction();
    QVERIFY(!undo->isEnabled() && !redo->isEnabled());
    box->click();
    QTRY_VERIFY(undo->isEnabled());
    dialog.field<QComboBox>("language")->setFocus();
    QTest::keyClick(dialog.field<QComboBox>("language"), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!box->isChecked());
    QVERIFY(!undo->isEnabled() && redo->isEnabled());
    redo->trigger();
    QVERIFY(box->isChecked());
}

void ProtocolGenDlgTest::openedValuesAreWhereEditsStart() {
    TestDialog dialog;
    QVERIFY(dialog.setOpening({{"file", "f"}, {"module", "m"}}));
    dialog.show();
    QTest::qWait(0);
    QVERIFY(!dialog.field<QToolButton>("undo")->defaultAction()->isEnabled());
}

void ProtocolGenDlgTest::escapeCancels() {
    TestDialog dialog;
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QVERIFY(dialog.calls.isEmpty());
}

void ProtocolGenDlgTest::pagesFollowTheBar() {
    TestDialog dialog;
    dialog.uiAddTab(new QLabel(QStringLiteral("one")), QStringLiteral("Channel,Line Rate"));
    dialog.uiAddTab(new QLabel(QStringLiteral("two")), QStringLiteral("B"));
    auto* tabs = dialog.field<QTabWidget>("tabs");
    auto* bar = dialog.field<QTabBar>("tabBar");
    QCOMPARE(tabs->count(), 2);
    QCOMPARE(bar->count(), 2);
    QCOMPARE(tabs->tabText(0), QStringLiteral("Channel,Line Rate"));
    QCOMPARE(bar->tabText(0), QStringLiteral("Channel,Line Rate"));
    QCOMPARE(tabs->currentIndex(), 0);
    bar->setCurrentIndex(1);
    QCOMPARE(tabs->currentIndex(), 1);
    tabs->setCurrentIndex(0);
    QCOMPARE(bar->currentIndex(), 0);
}

void ProtocolGenDlgTest::figureGetsThePins() {
    TestDialog dialog;
    QVERIFY(dialog.figurePins().isEmpty());
    const QList<Utils::PinFigure> pins = {{QStringLiteral("a_o"), 1, false, Qt::AlignRight},
                                          {QStringLiteral("b_i[3:0]"), 0, true, Qt::AlignLeft}};
    dialog.uiSetFigurePins(pins);
    QCOMPARE(dialog.figurePins(), pins);
    dialog.uiSetFigurePins({});
    QVERIFY(dialog.figurePins().isEmpty());
}

void ProtocolGenDlgTest::resources_data() {
    QTest::addColumn<QString>("path");
    QTest::newRow("module") << "://image/module.png";
    QTest::newRow("exclamation") << "://image/exclamation.png";
}

void ProtocolGenDlgTest::resources() {
    QFETCH(QString, path);
    const QPixmap pixmap(path);
    QVERIFY(!pixmap.isNull());
    QVERIFY(pixmap.width() >= 32);
    QVERIFY(!QIcon(path).pixmap(32, 32).isNull());
}

void ProtocolGenDlgTest::detailsAfterABox() {
    TestDialog dialog;
    dialog.show();
    auto* details = dialog.field<QPlainTextEdit>("details");
    QVERIFY(details->toPlainText().isEmpty());
    serdes::instance()->addDetail(QStringLiteral("Q0_QPLL0 is held by a."));
    serdes::instance()->addDetail(QStringLiteral("Q0_QPLL1 is free."));
    boxesDuring([&] { dialog.showErrorMsg({QStringLiteral("x")}); });
    QCOMPARE(details->toPlainText(), QStringLiteral("Q0_QPLL0 is held by a.\nQ0_QPLL1 is free."));
    serdes::instance()->clearDetails();
    boxesDuring([&] { dialog.showErrorMsg({QStringLiteral("x")}); });
    QVERIFY(details->toPlainText().isEmpty());
}

void ProtocolGenDlgTest::messageStripRepeatsTheLastMessage() {
    TestDialog dialog;
    dialog.show();
    auto* strip = dialog.field<QWidget>("messageStrip");
    QVERIFY(strip->accessibleDescription().isEmpty());
    const QSize before = dialog.field<QTabWidget>("tabs")->size();
    boxesDuring([&] { QMessageBox::about(&dialog, "Warning", "C is too small."); });
    QCOMPARE(strip->accessibleDescription(), QStringLiteral("Warning: C is too small."));
    QCOMPARE(strip->focusPolicy(), Qt::NoFocus);
    boxesDuring([&] { QMessageBox::information(&dialog, "Succeed", "Succeed"); });
    QCOMPARE(strip->accessibleDescription(), QStringLiteral("Succeed"));
    QCOMPARE(dialog.field<QTabWidget>("tabs")->size(), before);
}

void ProtocolGenDlgTest::questionsAreNotRepeated() {
    TestDialog dialog;
    dialog.show();
    boxesDuring([&] { QMessageBox::about(&dialog, "Warning", "First."); });
    boxesDuring([&] {
        QMessageBox::question(&dialog, "Question", "Really?", QMessageBox::No | QMessageBox::Yes,
                              QMessageBox::No);
    });
    QCOMPARE(dialog.field<QWidget>("messageStrip")->accessibleDescription(),
             QStringLiteral("Warning: First."));
}

void ProtocolGenDlgTest::helpButton() {
    TestDialog dialog;
    dialog.show();
    auto* help = dialog.field<QDialogButtonBox>("buttons")->button(QDialogButtonBox::Help);
    QVERIFY(!help->isEnabled()); // there is no such document
    dialog.hide();
    dialog.m_helpDocument = QStringLiteral(__FILE__);
    dialog.show();
    QCOMPARE(help->isEnabled(), QStringLiteral(__FILE__).startsWith(QLatin1Char('/')));
}

void ProtocolGenDlgTest::frameOffersWhatIsLent() {
    {
        TestDialog dialog;
        dialog.show();
        QVERIFY(!dialog.field<QToolButton>("presets")->isVisible());
        QVERIFY(!dialog.field<QToolButton>("copyScript")->isVisible());
        QVERIFY(!dialog.field<QToolButton>("copyScript")->defaultAction()->isEnabled());
    }
    const QTemporaryDir own;
    IPSERDESIP::FrameServices services;
    services.ownPresets = own.path();
    services.writeScript = [](IPSERDESIP::protocolGenDlg*, QByteArray*) { return QString(); };
    IPSERDESIP::FrameServices::lend(services);
    {
        TestDialog dialog;
        dialog.show();
        for (const char* name : {"presets", "copyScript", "undo", "redo"}) {
            const auto* button = dialog.field<QToolButton>(name);
            QVERIFY2(button->isVisible(), name);
            QVERIFY2(!button->accessibleName().isEmpty(), name);
            const QString key = button->defaultAction()->shortcut().toString();
            QVERIFY2(!key.isEmpty(), name);
            QVERIFY2(button->toolTip().endsWith(QLatin1Char('(') + key + QLatin1Char(')')),
                     qPrintable(button->toolTip()));
        }
        for (const char* name : {"savePreset", "managePresets"}) {
            const auto* action = dialog.field<QAction>(name);
            QVERIFY2(action->isEnabled() && !action->shortcut().isEmpty(), name);
            QVERIFY2(!action->toolTip().isEmpty(), name);
        }
    }
    IPSERDESIP::FrameServices::lend({});
}

void ProtocolGenDlgTest::copiedScript() {
    QString failure;
    IPSERDESIP::FrameServices services;
    services.writeScript = [&](IPSERDESIP::protocolGenDlg*, QByteArray* script) {
        *script = "[\n]\n";
        return failure;
    };
    IPSERDESIP::FrameServices::lend(services);
    {
        TestDialog dialog;
        dialog.show();
        QAction* copy = dialog.field<QToolButton>("copyScript")->defaultAction();
        QGuiApplication::clipboard()->setText(QStringLiteral("before"));
        failure = QStringLiteral("tab1/x");
        const QList<Box> boxes = boxesDuring([&] { copy->trigger(); });
        QCOMPARE(boxes.size(), 1);
        QVERIFY2(boxes.first().text.endsWith(QLatin1String(": tab1/x")),
                 qPrintable(boxes.first().text));
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
        failure.clear();
        QVERIFY(boxesDuring([&] { copy->trigger(); }).isEmpty());
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("[\n]\n"));
    }
    IPSERDESIP::FrameServices::lend({});
}

void ProtocolGenDlgTest::accessibleAndInReach() {
    TestDialog dialog;
    dialog.show();
    const QStringList wanted = {"fileName", "moduleName", "synthesisTool", "language", "tabBar",
                                "zoomOut",  "zoomFit",    "zoomIn",        "figure",   "details"};
    QStringList order;
    for (QWidget* w = dialog.nextInFocusChain(); w != &dialog; w = w->nextInFocusChain()) {
        if (wanted.contains(w->objectName())) {
            order.append(w->objectName());
            QVERIFY2(!w->accessibleName().isEmpty(), qPrintable(w->objectName()));
        }
    }
    QCOMPARE(order, wanted);
    // Tab goes the whole round and is caught nowhere.
    QApplication::setActiveWindow(&dialog);
    auto* first = dialog.field<QWidget>("fileName");
    first->setFocus();
    constexpr int most = 100;
    QSet<QWidget*> reached;
    int presses = 0;
    do {
        reached.insert(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (QApplication::focusWidget() != first && ++presses < most);
    QVERIFY(presses < most);
    QVERIFY(reached.contains(dialog.field<QWidget>("figure")));
    QVERIFY(reached.contains(
        dialog.field<QDialogButtonBox>("buttons")->button(QDialogButtonBox::Cancel)));
    for (const char* name : {"fileName", "moduleName", "synthesisTool", "language", "createIn"}) {
        const QList<QLabel*> labels = dialog.findChildren<QLabel*>();
        QVERIFY2(std::any_of(labels.begin(), labels.end(),
                             [&](const QLabel* label) {
                                 return label->buddy() == dialog.field<QWidget>(name);
                             }),
                 name);
    }
}

void ProtocolGenDlgTest::fitsASmallScreen() {
    QFont font = QApplication::font();
    const QFont before = font;
    font.setPointSize(9);
    QApplication::setFont(font);
    {
        TestDialog dialog;
        QVERIFY2(dialog.minimumSizeHint().width() <= 1000, "wider than 1024 pixels");
        QVERIFY2(dialog.minimumSizeHint().height() <= 700, "higher than 768 pixels");
        QVERIFY(dialog.minimumWidth() <= 1000 && dialog.minimumHeight() <= 700);
    }
    QApplication::setFont(before);
}

QTEST_MAIN(ProtocolGenDlgTest)
#include "protocolgendlg_test.moc"
