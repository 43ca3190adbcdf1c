// "Copy as session script": what is copied, played on a new instance, gives the configuration that
// OK would save. Expected is what the program itself saves for the same steps.

#include "ipgen/core/catalogue.h"
#include "ipgen/core/project.h"
#include "ipgen/session/frameloan.h"
#include "ipgen/session/player.h"

#include <core/idecore.h>
#include <serdesip/serdes.h>
#include <utils/filereplace.h>
#include <utils/jsontext.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDir>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QProcess>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>

using namespace Ipgen;

namespace {

const QString program = QStringLiteral(BUILD_DIR "/bin/ipgen");

struct ProgramRun {
    int code = -1;
    QString errors;
};

ProgramRun runProgram(const QStringList& arguments, const QByteArray& input = {}) {
    QProcess process;
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished()) {
        return {};
    }
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardError())};
}

const Catalogue& catalogue() {
    static const Catalogue all = Catalogue::load(
        {QStringLiteral(BUILD_DIR "/lib/ipgen/ip"), QStringLiteral(BUILD_DIR "/tests/plugins")});
    return all;
}

Session::Script parsed(const QByteArray& json) {
    Session::Script script;
    const QString error = Session::parseScript(json, &script);
    if (!error.isEmpty()) {
        qFatal("%s", qPrintable(error));
    }
    return script;
}

/// The instance's bytes in the project's file.
QByteArray savedConfig(const QString& folder) {
    QByteArray text;
    QVariant root;
    Utils::JsonError damage;
    if (!Utils::readFile(folder + QStringLiteral("/project.json"), &text) ||
        !Utils::parseJson(text, &root, &damage)) {
        return {};
    }
    const QVariantMap instances = root.toMap().value(QStringLiteral("instances")).toMap();
    return instances.isEmpty() ? QByteArray()
                               : Utils::writeJson(instances.value(QStringLiteral("link0")));
}

} // namespace

class CopyScriptTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void created_data();
    void created();
    void opened_data();
    void opened();
    void namesAreWritten();
    void presetsAreRecorded();
    void aResetIsRecorded();
    void foreignIp();

private:
    QString newProject(const char* name, const QString& device);
    void copied(const QString& folder, const QString& ip, const QByteArray& steps,
                QByteArray* script);

    QTemporaryDir m_folder;
    int m_count = 0;
};

void CopyScriptTest::initTestCase() {
    QString error;
    Core::IdeCore::setDeviceDataBase(
        DEV::DeviceDb::load(QStringLiteral(SOURCE_DIR "/host/data/devices.json"), &error));
    QCOMPARE(error, QString());
}

QString CopyScriptTest::newProject(const char* name, const QString& device) {
    const QString folder =
        m_folder.filePath(QStringLiteral("%1%2").arg(QLatin1String(name)).arg(++m_count));
    const ProgramRun made = runProgram({"new", folder, "--device", device});
    return made.code == 0 ? folder : QString();
}

/// Plays the steps in the dialog of link0 (a new instance unless the project has it), copies, and
/// cancels.
void CopyScriptTest::copied(const QString& folder, const QString& ip, const QByteArray& steps,
                            QByteArray* script) {
    Project project;
    QVERIFY(Project::load(folder, &project).ok());
    QVERIFY(project.openInModel(catalogue()).ok());
    const QString name = QStringLiteral("link0");
    const CatalogueEntry* entry = catalogue().find(ip);
    QVERIFY(entry != nullptr);
    QGuiApplication::clipboard()->clear();
    Session::Script session = parsed(steps);
    session.append({Session::Step::Kind::Press, QStringLiteral("frame/copyScript"), {}, false});
    session.append({Session::Step::Kind::Cancel, {}, {}, false});
    Session::FrameLoan frame(*entry, project, name);
    frame.setProgram(program);
    auto* model = IPSERDESIP::serdes::instance();
    const bool opens = project.hasInstance(name);
    const Session::Report report = Session::Player(session, {}).run([&] {
        model->setEditing(opens ? name : QString());
        const auto config = opens ? entry->protocol->open(project.instance(name).config)
                                  : entry->protocol->create(name, model->device());
        model->setEditing({});
        return config;
    });
    QVERIFY2(report.error.isEmpty(), qPrintable(report.error));
    QVERIFY2(report.result == Session::Report::Result::Cancelled, "not cancelled");
    *script = QGuiApplication::clipboard()->text().toUtf8();
    QVERIFY2(!script->isEmpty(),
             qPrintable(report.messages.isEmpty() ? QString() : report.messages.last().text));
}

void CopyScriptTest::created_data() {
    QTest::addColumn<QString>("device");
    QTest::addColumn<QByteArray>("steps");
    QTest::newRow("60k, block coding on a quad PLL")
        << "RZ7X-60B"
        << QByteArray(
               "[{\"set\": \"tab1/q0_l0\", \"to\": true}, {\"set\": \"tab1/q0_l1\", \"to\": true},"
               "{\"set\": \"tab1/CombBoxPLLSelection\", \"to\": \"QPLL1\"},"
               "{\"set\": \"tab1/TXLineRate\", \"to\": \"10.3125\"},"
               "{\"set\": \"tab1/RXLineRate\", \"to\": \"10.3125\"},"
               "{\"set\": \"tab1/ReferenceClockFrequency\", \"to\": \"156.25\"},"
               "{\"set\": \"tab2/comboBoxTXInternalDataWidth\", \"to\": \"16\"},"
               "{\"set\": \"tab2/comboBoxTXExternalDataRatio\", \"to\": \"1:4\"},"
               "{\"set\": \"tab2/comboBoxTxEncoding\", \"to\": \"64B66B\"},"
               "{\"set\": \"tab5/ffeModeCombox\", \"to\": \"Manual\"},"
               "{\"set\": \"tab5/cmSpinBox\", \"to\": 4}]");
    QTest::newRow("60k, a choice kept by locked fields")
        << "RZ7X-60B"
        << QByteArray("[{\"set\": \"tab1/q0_l2\", \"to\": true},"
                      "{\"set\": \"tab1/comboBoxMode\", \"to\": \"Manual\"},"
                      "{\"set\": \"tab1/CombBoxPLLRefSource\", \"to\": \"REFMUX2\"},"
                      "{\"set\": \"tab1/comboBoxMode\", \"to\": \"Auto\"},"
                      "{\"set\": \"tab3/comboBoxRXChannelBoding\", \"to\": \"Two Words\"},"
                      "{\"set\": \"tab3/lineEditPattern1\", \"to\": \"3C\"},"
                      "{\"set\": \"tab3/comboBoxRXChannelBoding\", \"to\": \"None\"}]");
    QTest::newRow("60k, the question answered before")
        << "RZ7X-60B"
        << QByteArray("[{\"set\": \"tab1/q0_l0\", \"to\": true}, {\"set\": \"tab5/biasSpinBox\", "
                      "\"to\": 9},"
                      "{\"answer\": \"Yes\"}, {\"press\": \"tab1/ButtonCalculate\"}]");
    QTest::newRow("15k, undone and done again")
        << "RZ7X-15A"
        << QByteArray("[{\"set\": \"tab1/q0_l0\", \"to\": true}, {\"set\": \"tab1/TXLineRate\", "
                      "\"to\": \"0.5\"},"
                      "{\"set\": \"tab1/comboBoxTxLineRatio\", \"to\": \"10x\"},"
                      "{\"set\": \"tab1/q0_l3\", \"to\": true}, {\"press\": \"frame/undo\"},"
                      "{\"press\": \"frame/undo\"}, {\"press\": \"frame/redo\"},"
                      "{\"set\": \"tab4/comboBoxClockCorrection\", \"to\": \"Two Words\"},"
                      "{\"set\": \"tab4/lineEditCTCPattern1\", \"to\": \"1C\"},"
                      "{\"set\": \"tab4/checkBoxCTCPattern1isK\", \"to\": true}]");
    QTest::newRow("15k, receiver only")
        << "RZ7X-15A"
        << QByteArray("[{\"set\": \"tab1/q0_l1\", \"to\": true},"
                      "{\"set\": \"tab1/comboBoxOperationMode\", \"to\": \"RX Only\"},"
                      "{\"set\": \"tab1/comboBoxRefMux1Source\", \"to\": \"Q0 REFCLK1\"},"
                      "{\"set\": \"frame/moduleName\", \"to\": \"camera_rx\"},"
                      "{\"set\": \"frame/language\", \"to\": \"VHDL\"}]");
    QTest::newRow("138k, two quads")
        << "RZ7X-138"
        << QByteArray(
               "[{\"set\": \"tab1/q0_l3\", \"to\": true}, {\"set\": \"tab1/q1_l0\", \"to\": true},"
               "{\"set\": \"tab2/checkBoxEncoding\", \"to\": true},"
               "{\"set\": \"tab2/comboBoxInternalDataWidth\", \"to\": \"16\"},"
               "{\"set\": \"tab2/WordAlignment\", \"to\": true},"
               "{\"set\": \"tab2/lineEditMask\", \"to\": \"0001111100\"},"
               "{\"set\": \"tab3/checkBoxTXChannelBoding\", \"to\": true},"
               "{\"set\": \"tab3/comboBoxTXMasterChannelSelection\", \"to\": \"Q1 Lane0\"}]");
    QTest::newRow("138k, manual routes")
        << "RZ7X-138"
        << QByteArray("[{\"set\": \"tab1/q1_l2\", \"to\": true},"
                      "{\"set\": \"tab1/comboBoxMode\", \"to\": \"Manual\"},"
                      "{\"set\": \"tab1/comboBoxRefMux1Source\", \"to\": \"Q1 REFCLK0\"},"
                      "{\"set\": \"tab1/ReferenceMux1Freq\", \"to\": \"100\"},"
                      "{\"set\": \"tab1/CombBoxPLLRefSource\", \"to\": \"REFMUX1\"},"
                      "{\"set\": \"tab1/CombBoxRxRefSource\", \"to\": \"REFMUX1\"},"
                      "{\"set\": \"tab5/equalizationModeCombox\", \"to\": \"Manual\"},"
                      "{\"set\": \"tab5/boostSpinBox\", \"to\": 3}]");
}

void CopyScriptTest::created() {
    QFETCH(QString, device);
    QFETCH(QByteArray, steps);
    const QString wanted = newProject("wanted", device);
    const QByteArray accepted = steps.left(steps.size() - 1) + ", {\"accept\": true}]";
    const ProgramRun saved = runProgram({"create", wanted, "link0", "--script", "-"}, accepted);
    QVERIFY2(saved.code == 0, qPrintable(saved.errors));

    QByteArray script;
    copied(newProject("copied", device), QStringLiteral("customized"), steps, &script);
    QVERIFY(!QTest::currentTestFailed());
    const QString played = newProject("played", device);
    const ProgramRun made = runProgram({"create", played, "link0", "--script", "-"}, script);
    QVERIFY2(made.code == 0, qPrintable(made.errors + QString::fromUtf8(script)));
    QVERIFY(!savedConfig(wanted).isEmpty());
    QCOMPARE(savedConfig(played), savedConfig(wanted));
}

void CopyScriptTest::opened_data() {
    created_data();
}

/// The instance is saved, opened, edited, and copied.
void CopyScriptTest::opened() {
    QFETCH(QString, device);
    QFETCH(QByteArray, steps);
    const QString folder = newProject("saved", device);
    const QByteArray accepted = steps.left(steps.size() - 1) + ", {\"accept\": true}]";
    QCOMPARE(runProgram({"create", folder, "link0", "--script", "-"}, accepted).code, 0);

    const QByteArray edits = "[{\"set\": \"tab5/differeSwingComboBox\", \"to\": \"660mV\"}]";
    QByteArray script;
    copied(folder, QStringLiteral("customized"), edits, &script);
    QVERIFY(!QTest::currentTestFailed());
    QCOMPARE(runProgram({"open", folder, "link0", "--script", "-"},
                        edits.left(edits.size() - 1) + ", {\"accept\": true}]")
                 .code,
             0);
    const QString played = newProject("played", device);
    const ProgramRun made = runProgram({"create", played, "link0", "--script", "-"}, script);
    QVERIFY2(made.code == 0, qPrintable(made.errors + QString::fromUtf8(script)));
    QVERIFY(savedConfig(folder).contains("660mV"));
    QCOMPARE(savedConfig(played), savedConfig(folder));
}

/// A script for another instance still gives this one's file and module.
void CopyScriptTest::namesAreWritten() {
    QByteArray script;
    copied(newProject("copied", QStringLiteral("RZ7X-60B")), QStringLiteral("customized"),
           "[{\"set\": \"tab1/q0_l0\", \"to\": true}]", &script);
    QCOMPARE(QString::fromUtf8(script),
             QStringLiteral("[\n  {\"set\":\"frame/fileName\",\"to\":\"link0\"},\n"
                            "  {\"set\":\"frame/moduleName\",\"to\":\"link0\"},\n"
                            "  {\"set\":\"tab1/q0_l0\",\"to\":true},\n"
                            "  {\"accept\":true}\n]\n"));
}

/// A preset that was applied is in the script; one that was only looked at, and one that was
/// undone, are not in effect.
void CopyScriptTest::presetsAreRecorded() {
    const QString device = QStringLiteral("RZ7X-60B");
    const QString applied = QStringLiteral("Radio, 6.144G 8B/10B");
    const QString wanted = newProject("wanted", device);
    QCOMPARE(runProgram({"create", wanted, "link0", "--preset", applied}).code, 0);

    Project project;
    const QString folder = newProject("copied", device);
    QVERIFY(Project::load(folder, &project).ok());
    QVERIFY(project.openInModel(catalogue()).ok());
    const CatalogueEntry* entry = catalogue().find(QStringLiteral("customized"));
    QVERIFY(entry != nullptr);
    QGuiApplication::clipboard()->clear();
    const Session::FrameLoan frame(*entry, project, QStringLiteral("link0"));
    int previews = 0;
    const auto choose = [&](QWidget* dialog, const QString& name, bool takes) {
        auto* menu = dialog->findChild<QMenu*>(QStringLiteral("presetMenu"));
        Q_EMIT menu->aboutToShow();
        auto* action = menu->findChild<QAction*>(QLatin1String("preset:") + name);
        QVERIFY2(action != nullptr, qPrintable(name));
        QTimer looker;
        QObject::connect(&looker, &QTimer::timeout, [&] {
            auto* preview = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (preview != nullptr && preview->objectName() == QLatin1String("presetPreview")) {
                ++previews;
                preview->done(takes ? QDialog::Accepted : QDialog::Rejected);
            }
        });
        looker.start(5);
        action->trigger();
    };
    const auto press = [](QWidget* dialog, const char* name) {
        dialog->findChild<QToolButton*>(QString::fromLatin1(name))->defaultAction()->trigger();
    };
    QTimer edits;
    QObject::connect(&edits, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr ||
            dialog->findChild<QMenu*>(QStringLiteral("presetMenu")) == nullptr) {
            return;
        }
        edits.stop();
        choose(dialog, QStringLiteral("Backplane, 10.3125G 64B/66B"), false);
        choose(dialog, QStringLiteral("Four bonded lanes, 3.125G 8B/10B"), true);
        press(dialog, "undo");
        choose(dialog, applied, true);
        press(dialog, "copyScript");
        dialog->reject();
    });
    edits.start(5);
    entry->protocol->create(QStringLiteral("link0"), IPSERDESIP::serdes::instance()->device());
    QCOMPARE(previews, 3);
    const QByteArray script = QGuiApplication::clipboard()->text().toUtf8();
    QVERIFY(!script.contains("10.3125"));
    QVERIFY(script.contains("frame/undo"));
    const QString played = newProject("played", device);
    const ProgramRun made = runProgram({"create", played, "link0", "--script", "-"}, script);
    QVERIFY2(made.code == 0, qPrintable(made.errors + QString::fromUtf8(script)));
    QVERIFY(!savedConfig(wanted).isEmpty());
    QCOMPARE(savedConfig(played), savedConfig(wanted));
}

/// A spin box that its mark has put back to the default.
void CopyScriptTest::aResetIsRecorded() {
    Project project;
    const QString folder = newProject("copied", QStringLiteral("RZ7X-60B"));
    QVERIFY(Project::load(folder, &project).ok());
    QVERIFY(project.openInModel(catalogue()).ok());
    const CatalogueEntry* entry = catalogue().find(QStringLiteral("customized"));
    QVERIFY(entry != nullptr);
    QGuiApplication::clipboard()->clear();
    const Session::FrameLoan frame(*entry, project, QStringLiteral("link0"));
    QTimer poll;
    connect(&poll, &QTimer::timeout, [&poll] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        auto* spin = dialog != nullptr ? dialog->findChild<QSpinBox*>(QStringLiteral("biasSpinBox"))
                                       : nullptr;
        if (spin == nullptr) {
            return;
        }
        poll.stop();
        spin->selectAll();
        QTest::keyClicks(spin->findChild<QLineEdit*>(), QStringLiteral("3"));
        QTest::mouseClick(dialog->findChild<QAbstractButton*>(QStringLiteral("q0_l0")),
                          Qt::LeftButton); // the number is entered
        QApplication::processEvents();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1));
        QApplication::sendEvent(spin, &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu != nullptr) {
            menu->findChild<QAction*>(QStringLiteral("resetField"))->trigger();
            menu->close();
        }
        dialog->findChild<QToolButton*>(QStringLiteral("copyScript"))->defaultAction()->trigger();
        dialog->reject();
    });
    poll.start(20);
    entry->protocol->create(QStringLiteral("link0"), IPSERDESIP::serdes::instance()->device());
    const QString script = QGuiApplication::clipboard()->text();
    const QString field = QStringLiteral("{\"set\":\"tab5/biasSpinBox\",\"to\":%1}");
    QVERIFY2(script.contains(field.arg(3)), qPrintable(script));
    QVERIFY2(script.indexOf(field.arg(7)) > script.indexOf(field.arg(3)), qPrintable(script));
}

void CopyScriptTest::foreignIp() {
    const QString folder = newProject("tiny", QStringLiteral("RZ7X-15A"));
    const QByteArray steps = "[{\"set\": \"tab1/lineRate\", \"to\": \"2.5\"},"
                             "{\"set\": \"tab1/comboLane\", \"to\": \"Q0 Lane1\"},"
                             "{\"set\": \"tab1/spinLines\", \"to\": 7}, {\"accept\": true}]";
    const QStringList plugins{"--plugin-dir", QStringLiteral(BUILD_DIR "/tests/plugins")};
    QCOMPARE(runProgram(QStringList{"create", folder, "link0", "--ip", "tiny", "--script", "-"} +
                            plugins,
                        steps)
                 .code,
             0);
    QByteArray script;
    copied(folder, QStringLiteral("tiny"), "[{\"set\": \"tab1/checkRefuse\", \"to\": true}]",
           &script);
    QVERIFY(!QTest::currentTestFailed());
    const QString played = newProject("played", QStringLiteral("RZ7X-15A"));
    const ProgramRun made = runProgram(
        QStringList{"create", played, "link0", "--ip", "tiny", "--script", "-"} + plugins, script);
    QVERIFY2(made.code == 0, qPrintable(made.errors + QString::fromUtf8(script)));
    const QByteArray config = savedConfig(played);
    QVERIFY2(config ==
                 QByteArray(savedConfig(folder)).replace("\"refuse\": false", "\"refuse\": true"),
             config);
}

QTEST_MAIN(CopyScriptTest)
#include "copyscript_test.moc"
