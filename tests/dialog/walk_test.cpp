// Random users. Each walk prints its seed; one that fails leaves a session script that replays it.
// WALK_STEPS sets the number of actions a device class, WALK_SEED the first seed.

#include "savedkeys.h"
#include "walk.h"

#include <serdesip/protocolgendlg.h>
#include <serdesip/serdes.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

using namespace DialogTest;

namespace {

const int actionsPerWalk = 40;

int setting(const char* name, int otherwise) {
    bool isSet = false;
    const int value = qEnvironmentVariableIntValue(name, &isSet);
    return isSet ? value : otherwise;
}

/// Whether each named widget of the pages is open, as text.
QStringList enabledStates(const Dialog& dialog) {
    QStringList states;
    for (int page = 1; page <= dialog.pageCount(); ++page) {
        for (const QWidget* widget : dialog.page(page)->findChildren<QWidget*>()) {
            const QString name = widget->objectName();
            if (!name.isEmpty() && !name.startsWith("qt_")) {
                states.append(QString("tab%1/%2 is %3")
                                  .arg(page)
                                  .arg(name, widget->isEnabled() ? "open" : "shut"));
            }
        }
    }
    return states;
}

/// What of the one list is not in the other.
QString changed(const QStringList& before, const QStringList& after) {
    QStringList lines;
    for (int i = 0; i < after.size(); ++i) {
        if (before.value(i) != after.at(i)) {
            lines.append(after.at(i));
        }
    }
    return lines.join("; ");
}

// Rules that only open and shut, and those that put defaults back as well.
const char* const quietRules[] = {"onWordAlignmentUpdate", "onRXChannelBondingUpdate",
                                  "updateCTCReadStartDepth", "updateEnableEncoding"};
const char* const loudRules[] = {"updateEnableDecoding",
                                 "onRefModeChanged",
                                 "updatePLLSelection",
                                 "checkTxLineRate",
                                 "updateRXMasterChannelSelection",
                                 "updateTXMasterChannelSelection",
                                 "updatedMasterChannelSel",
                                 "updateClkSrc",
                                 "onFFEModeChanged",
                                 "onEqualizationModeChanged",
                                 "checkRXInterlakenMetaFrameLength"};

/// What must hold after every action; empty when it does.
QString faultOf(Dialog& dialog, const QStringList& messages) {
    QStringList once = messages;
    if (once.removeDuplicates() != 0) {
        return "a box came twice: " + messages.join(" | ");
    }
    const bool aligned = dialog.box("WordAlignment")->isChecked();
    if (dialog.isEnabled("comboBoxPattern") != aligned ||
        dialog.isEnabled("lineEditMask") != aligned) {
        return "pattern and mask do not follow the word alignment";
    }
    for (int quad = 0; quad < 2; ++quad) {
        for (int lane = 0; lane < 4; ++lane) {
            const QString name = QString("q%1_l%2").arg(quad).arg(lane);
            if (dialog.box(name)->isChecked() && !dialog.isEnabled(name)) {
                return name + " is checked and shut";
            }
        }
    }
    return {};
}

// These are of the devices that choose a coding.
const char* const codingRules[] = {"onRXDecodingModeChanged", "onTXEncodingModeChanged"};

QString rerun(Dialog& dialog, const char* const* first, const char* const* last) {
    const QStringList before = enabledStates(dialog);
    for (; first != last; ++first) {
        dialog.run(*first);
        const QStringList after = enabledStates(dialog);
        if (after != before) {
            return QString("%1 again: %2").arg(*first, changed(before, after));
        }
    }
    return {};
}

void occupyOthers(Bench& bench, const QString& others) {
    if (others == "alone") {
        return;
    }
    // A shared PLL at a rate that needs the ratio, one that does not, a multiplexer, two pins.
    bench.occupy("slow", holder({"Q0 Lane3"}, {"Q0_QPLL0"}, 0.5, "Q0_REFCLK0", 100));
    IPSERDESIP::Message fast = holder({"Q0 Lane2"}, {"Q0_QPLL1"}, 10.3125, "Q0_REFCLK1", 156.25);
    fast.file = "fast";
    fast.module = "fast";
    fast.muxes.insert("Q0_MUX1", "Q0_REFCLK1");
    bench.occupy("fast", fast);
}

} // namespace

class WalkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void randomUser_data();
    void randomUser();
    void rulesRunAgain_data() { randomUser_data(); }
    void rulesRunAgain();
    void scriptsReplay_data();
    void scriptsReplay();

private:
    void walk(bool loud, int steps);
};

void WalkTest::randomUser_data() {
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("others");
    for (const char* others : {"alone", "among others"}) {
        for (const char* device : {"RZ7X-60B", "RZ7X-15A", "RZ7X-138"}) {
            QTest::addRow("%s %s", device, others) << device << others;
        }
    }
}

void WalkTest::walk(bool loud, int steps) {
    QFETCH(QString, device);
    QFETCH(QString, others);
    int accepted = 0;
    int walks = 0;
    for (int done = 0; done < steps; done += actionsPerWalk) {
        const auto seed = static_cast<unsigned>(setting("WALK_SEED", 1) + walks++);
        Bench bench(device);
        occupyOthers(bench, others);
        QString fault;
        QString last;
        QJsonArray script;
        ConfigMap shown;
        const ConfigMap config = bench.create([&](Dialog& dialog) {
            Walk walk(dialog, seed);
            for (int i = 0; i < actionsPerWalk && fault.isEmpty(); ++i) {
                last = walk.step();
                fault = faultOf(dialog, bench.takeMessages());
                if (fault.isEmpty()) {
                    fault = rerun(dialog, std::begin(quietRules), std::end(quietRules));
                }
                if (fault.isEmpty() && loud) {
                    fault = rerun(dialog, std::begin(loudRules), std::end(loudRules));
                    if (fault.isEmpty() && dialog.isShown("groupBox_txrxmode")) {
                        fault = rerun(dialog, std::begin(codingRules), std::end(codingRules));
                    }
                    bench.takeBoxes();
                }
            }
            script = walk.script();
            shown = shownConfig(dialog);
            if (!fault.isEmpty()) {
                return;
            }
            // Another dialog that loads what is shown shows the same.
            bench.open(shown, [&](Dialog& second) {
                const QStringList wrong = differences(shownConfig(second), shown);
                fault = wrong.isEmpty() ? QString() : "loaded: " + wrong.join("; ");
                if (fault.isEmpty()) {
                    fault = rerun(second, std::begin(quietRules), std::end(quietRules));
                }
            });
            if (fault.isEmpty() && !bench.wasShown()) {
                fault = "loading what is shown is refused";
            }
            if (fault.isEmpty() && !bench.takeBoxes().isEmpty()) {
                fault = "loading shows a box";
            }
            if (fault.isEmpty()) {
                dialog.pressOk();
                fault = faultOf(dialog, bench.takeMessages());
            }
        });
        if (fault.isEmpty() && !config.isEmpty()) {
            ++accepted;
            ConfigMap collected = config;
            if (!collected.contains("ifChangedAllOfBias")) {
                fault = "no bias key";
            }
            collected.remove("ifChangedAllOfBias");
            collected.insert("TXREALLINERATE", 0.0);
            const QStringList wrong = differences(collected, shown);
            fault += wrong.isEmpty() ? QString() : "collected: " + wrong.join("; ");
        }
        if (!fault.isEmpty()) {
            const QString path = saveScript(
                QString("%1-%2-%3").arg(device, QString(others).replace(' ', '-')).arg(seed),
                script, true);
            QFAIL(qPrintable(QString("seed %1, after %2 actions, the last %3: %4; script: %5")
                                 .arg(seed)
                                 .arg(script.size())
                                 .arg(last, fault, path)));
        }
    }
    qInfo("%s, %s: %d walks of %d actions, seeds from %d, %d accepted", qPrintable(device),
          qPrintable(others), walks, actionsPerWalk, setting("WALK_SEED", 1), accepted);
}

void WalkTest::randomUser() {
    walk(false, setting("WALK_STEPS", 240));
}

void WalkTest::rulesRunAgain() {
    walk(true, setting("WALK_STEPS", 240) / 2);
}

void WalkTest::scriptsReplay_data() {
    QTest::addColumn<QString>("device");
    for (const char* device : {"RZ7X-60B", "RZ7X-15A", "RZ7X-138"}) {
        QTest::newRow(device) << device;
    }
}

/// What a walk leaves behind plays back to the same configuration, in the program itself.
void WalkTest::scriptsReplay() {
    QFETCH(QString, device);
    int replayed = 0;
    for (unsigned seed = 1; seed <= 6; ++seed) {
        Bench bench(device);
        QJsonArray script;
        const ConfigMap config = bench.create([&](Dialog& dialog) {
            Walk walk(dialog, seed);
            for (int i = 0; i < actionsPerWalk; ++i) {
                walk.step();
            }
            script = walk.script();
            dialog.pressOk();
        });
        if (config.isEmpty()) {
            continue;
        }
        const QString path =
            saveScript(QString("replay-%1-%2").arg(device).arg(seed), script, true);
        const QString project = bench.folder() + "/replay";
        QProcess program;
        program.start(BUILD_DIR "/bin/ipgen", {"new", project, "--device", device});
        QVERIFY(program.waitForFinished() && program.exitCode() == 0);
        program.start(BUILD_DIR "/bin/ipgen",
                      {"create", project, "link0", "--script", path, "--report", "-"});
        QVERIFY(program.waitForFinished());
        QVERIFY2(program.exitCode() == 0, program.readAllStandardError().constData());
        const QJsonObject report =
            QJsonDocument::fromJson(program.readAllStandardOutput()).object();
        QCOMPARE(report["result"].toString(), QString("accepted"));
        const QVariantMap played = report["config"].toObject().toVariantMap();
        QCOMPARE(played.keys(), config.keys());
        for (auto it = config.begin(); it != config.end(); ++it) {
            QVERIFY2(played.value(it.key()).toStringList() == it->toStringList(),
                     qPrintable(QString("seed %1: %2").arg(seed).arg(it.key())));
        }
        ++replayed;
    }
    QVERIFY2(replayed >= 2, qPrintable(QString("%1 replayed").arg(replayed)));
}

QTEST_MAIN(WalkTest)
#include "walk_test.moc"
