#include "serdesfixture.h"

#include <serdesip/clocksolver.h>
#include <serdesip/generator.h>

#include <QFile>
#include <QTemporaryDir>

using namespace IPSERDESIP;

namespace {

QString text(const char* latin1) {
    return QString::fromLatin1(latin1);
}

/// What a lane needs, at 10.3125 G in both directions.
QStringList laneLines(const char* lane, const char* pll = "qpll1", const char* tx = "10.3125",
                      const char* rx = "10.3125") {
    const QString name = text(lane);
    return {name + text("_enable true"),          name.left(2) + text("_enable true"),
            name + text("_tx_rate ") + text(tx),  name + text("_tx_ovs_mode off"),
            name + text("_tx_ovs_ratio na"),      name + text("_rx_rate ") + text(rx),
            name + text("_pll_sel ") + text(pll), name + text("_loopback_mode off"),
            name + text("_cdr_refclk_sel auto")};
}

const auto clock156 = QStringLiteral("q0_refclk1_freq 156.25");

QStringList replaced(QStringList lines, const char* from, const char* to) {
    lines.replaceInStrings(text(from), text(to));
    return lines;
}

} // namespace

class GeneratorTest : public QObject {
    Q_OBJECT

private:
    struct Outcome {
        bool done = false;
        QStringList messages;
        QMap<QString, QString> settings;
        QStringList lines;
    };

    Outcome run(const QStringList& script) {
        const QString path = m_dir.filePath(QStringLiteral("out.csr"));
        QFile::remove(path);
        Outcome outcome;
        generator host;
        outcome.done = host.generate(script, path, outcome.messages);
        if (host.getErrStringList() != outcome.messages) {
            qFatal("the two lists of messages differ");
        }
        QFile file(path);
        if (file.open(QIODevice::ReadOnly) != outcome.done) {
            qFatal("a file without success, or success without a file");
        }
        outcome.lines = QString::fromUtf8(outcome.done ? file.readAll() : QByteArray())
                            .split(QLatin1Char('\n'));
        for (const QString& line : qAsConst(outcome.lines)) {
            outcome.settings.insert(line.section(QLatin1Char(' '), 0, 0),
                                    line.section(QLatin1Char(' '), 1));
        }
        return outcome;
    }

    QTemporaryDir m_dir;

private Q_SLOTS:
    void writesResolvedSettings();
    void acceptsWholeScripts_data();
    void acceptsWholeScripts();
    void valuesMultipliedOutGiveTheRate_data();
    void valuesMultipliedOutGiveTheRate();
    void reportsLines_data();
    void reportsLines();
    void failsSilentlyWithoutSolution();
    void directionsStandAlone();
    void takesTheRecordedReference();
    void leavesTheChoiceToTheHost();
    void respectsOtherInstances_data();
    void respectsOtherInstances();
    void bonds();
    void keepsTheOldFile();
};

void GeneratorTest::writesResolvedSettings() {
    openDevice("RZ7X-60B");
    QStringList script = laneLines("q0_ln2");
    script.append(clock156);
    const Outcome outcome = run(script);
    QVERIFY2(outcome.done, qPrintable(outcome.messages.join(QLatin1Char('\n'))));
    // 156.25 * 33 = 5156.25 MHz; twice that is the rate. Both ranges hold it with d = 1.
    const QStringList expected{text("device RZ7X-60B"),
                               text("class 60k"),
                               text("q0_ln2_enable true"),
                               text("q0_enable true"),
                               text("q0_ln2_tx_rate 10.3125"),
                               text("q0_ln2_tx_ovs_mode off"),
                               text("q0_ln2_tx_ovs_ratio na"),
                               text("q0_ln2_rx_rate 10.3125"),
                               text("q0_ln2_pll_sel qpll1"),
                               text("q0_ln2_loopback_mode off"),
                               text("q0_ln2_cdr_refclk_sel auto"),
                               text("q0_refclk1_freq 156.25"),
                               text("q0_ln2_tx_loop q0_qpll1"),
                               text("q0_ln2_tx_refclk q0_refclk1"),
                               text("q0_ln2_tx_refclk_mhz 156.25"),
                               text("q0_ln2_tx_m 1"),
                               text("q0_ln2_tx_n 33"),
                               text("q0_ln2_tx_d 1"),
                               text("q0_ln2_tx_vco_mhz 5156.25"),
                               text("q0_ln2_tx_made_gbps 10.3125"),
                               text("q0_ln2_tx_error_ppm 0"),
                               text("q0_ln2_rx_loop q0_ln2_cdr"),
                               text("q0_ln2_rx_refclk q0_refclk1"),
                               text("q0_ln2_rx_refclk_mhz 156.25"),
                               text("q0_ln2_rx_m 1"),
                               text("q0_ln2_rx_n 33"),
                               text("q0_ln2_rx_d 1"),
                               text("q0_ln2_rx_vco_mhz 5156.25"),
                               text("q0_ln2_rx_made_gbps 10.3125"),
                               text("q0_ln2_rx_error_ppm 0"),
                               QString()};
    QCOMPARE(outcome.lines, expected);
}

void GeneratorTest::acceptsWholeScripts_data() {
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("folder");
    QTest::newRow("eight lanes") << text("RZ7X-138") << text("138k_eight_lanes");
    QTest::newRow("one sender") << text("RZ7X-60ES") << text("60k_tx_only_manual");
    QTest::newRow("input pin") << text("RZ7X-15A") << text("15k_rx_only_mclk");
}

// Scripts as instances write them; a line of another owner stands in front of them.
void GeneratorTest::acceptsWholeScripts() {
    QFETCH(QString, device);
    QFETCH(QString, folder);
    openDevice(device.toLatin1().constData());
    QFile file(text(SOURCE_DIR "/tests/golden/") + folder + text("/expected/customized.ini"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QStringList script = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    QCOMPARE(script.takeLast(), QString());
    script.removeAll(text("common_setting keep"));
    const Outcome outcome = run(script);
    QVERIFY2(
        outcome.done,
        qPrintable((outcome.messages + serdes::instance()->details()).join(QLatin1Char('\n'))));
}

void GeneratorTest::valuesMultipliedOutGiveTheRate_data() {
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("pll");
    QTest::addColumn<QString>("tx");
    QTest::addColumn<QString>("rx");
    QTest::addColumn<QString>("clock");
    const QList<QStringList> rates{{text("1.25"), text("1.25"), text("125")},
                                   {text("2.5"), text("5"), text("100")},
                                   {text("8"), text("10"), text("100")},
                                   {text("12.5"), text("3.125"), text("156.25")},
                                   {text("2.97"), text("2.97"), text("148.5")},
                                   {text("6.144"), text("9.8304"), text("122.88")}};
    for (const char* device : {"RZ7X-60ES", "RZ7NX-15A", "RZ7X-138B"}) {
        for (const char* pll : {"qpll0", "qpll1", "cpll"}) {
            for (const QStringList& row : rates) {
                QTest::addRow("%s %s %s", device, pll, qPrintable(row.join(QLatin1Char(' '))))
                    << text(device) << text(pll) << row.at(0) << row.at(1) << row.at(2);
            }
        }
    }
}

void GeneratorTest::valuesMultipliedOutGiveTheRate() {
    QFETCH(QString, device);
    QFETCH(QString, pll);
    QFETCH(QString, tx);
    QFETCH(QString, rx);
    QFETCH(QString, clock);
    openDevice(device.toLatin1().constData());
    QStringList script = laneLines("q0_ln0", pll.toLatin1().constData(), tx.toLatin1().constData(),
                                   rx.toLatin1().constData());
    script.append(text("q0_refclk0_freq ") + clock);
    const Outcome outcome = run(script);
    QVERIFY(outcome.done);
    for (const QString& direction : {text("tx"), text("rx")}) {
        const auto value = [&](const char* name) {
            return outcome.settings.value(text("q0_ln0_") + direction + text(name));
        };
        const Milli reference = parseMilli(value("_refclk_mhz"), mhzDecimals).value_or(0);
        const Milli rate = parseMilli(direction == text("tx") ? tx : rx, gbpsDecimals).value_or(0);
        const qint64 below = qint64(value("_m").toInt()) * value("_d").toInt();
        QVERIFY(below > 0);
        QCOMPARE(2 * reference * value("_n").toInt(), rate * below);
        QCOMPARE(value("_error_ppm"), text("0"));
        QCOMPARE(value("_made_gbps"), direction == text("tx") ? tx : rx);
    }
}

void GeneratorTest::reportsLines_data() {
    QTest::addColumn<QStringList>("script");
    QTest::addColumn<QString>("message");
    const QStringList good = laneLines("q0_ln0") + QStringList{clock156};
    const auto row = [](const char* name, const QStringList& script, const char* message) {
        QTest::newRow(name) << script << text(message);
    };
    const auto more = [&](const char* line) { return good + QStringList{text(line)}; };
    // clang-format off
    row("no blank",        more("q0_ln0_enable"), "line 11: \"q0_ln0_enable\" is no setting name, blank and value");
    row("empty line",      more(""), "line 11: \"\" is no setting name, blank and value");
    row("leading blank",   more(" q0_ln0_ctc enable"), "line 11: \" q0_ln0_ctc enable\" is no setting name, blank and value");
    row("no value",        more("q0_ln0_ctc "), "line 11: q0_ln0_ctc \"\": has no value");
    row("two blanks",      more("q0_ln0_ctc  enable"), "line 11: q0_ln0_ctc \" enable\": has a blank in its value");
    row("trailing blank",  more("q0_ln0_ctc enable "), "line 11: q0_ln0_ctc \"enable \": has a blank in its value");
    row("unknown",         more("q0_ln0_colour red"), "line 11: unknown setting \"q0_ln0_colour\"");
    row("option line",     more("-topDRPPorts true"), "line 11: unknown setting \"-topDRPPorts\"");
    row("wrong scope",     more("q0_tx_rate 5"), "line 11: unknown setting \"q0_tx_rate\"");
    row("wrong word",      more("q0_ln0_ctc yes"), "line 11: q0_ln0_ctc \"yes\": must be enable, disable");
    row("wrong integer",   more("q0_ln0_rx_att 11"), "line 11: q0_ln0_rx_att \"11\": must be a whole number from 0 to 10");
    row("wrong hex",       more("q0_ln0_ctc_pattern 7G"), "line 11: q0_ln0_ctc_pattern \"7G\": must be one or two hexadecimal digits");
    row("wrong bits",      more("q0_ln0_word_align_pattern_mask 12"), "line 11: q0_ln0_word_align_pattern_mask \"12\": must be one to ten digits 0 or 1");
    row("wrong swing",     more("q0_ln0_tx_differential_swing 900"), "line 11: q0_ln0_tx_differential_swing \"900\": must be a whole number and \"mV\"");
    row("wrong character", more("q0_ln0_word_align_pattern k28.9"), "line 11: q0_ln0_word_align_pattern \"k28.9\": must be a K character, as k28.5");
    row("wrong lane",      more("q0_ln0_tx_if_mst_sel Q0"), "line 11: q0_ln0_tx_if_mst_sel \"Q0\": must be a lane, as q0_ln0");
    row("no such quad",    more("q1_ln0_ctc enable"), "line 11: q1_ln0_ctc \"enable\": RZ7X-60B has no quad 1");
    row("no such lane",    more("q0_ln4_ctc enable"), "line 11: q0_ln4_ctc \"enable\": RZ7X-60B has no lane 4 in a quad");
    row("no such pin",     more("mclk_freq 50"), "line 11: mclk_freq \"50\": RZ7X-60B has no reference clock MCLK");
    row("contradiction",   more("q0_enable false"), "line 11: q0_enable is \"false\" here and \"true\" in line 2");
    row("second rate",     more("q0_ln0_tx_rate 5"), "line 11: q0_ln0_tx_rate is \"5\" here and \"10.3125\" in line 3");
    row("rate no number",  replaced(good, "tx_rate 10.3125", "tx_rate fast"), "line 3: q0_ln0_tx_rate \"fast\": must be a decimal number of Gbit/s");
    row("rate too low",    replaced(good, "tx_rate 10.3125", "tx_rate 0.999"), "line 3: q0_ln0_tx_rate \"0.999\": must be 1 to 12.5 Gbit/s");
    row("rate too high",   replaced(good, "rx_rate 10.3125", "rx_rate 12.50000001"), "line 6: q0_ln0_rx_rate \"12.50000001\": must be 1 to 12.5 Gbit/s");
    row("clock too low",   replaced(good, "156.25", "49.99999999"), "line 10: q0_refclk1_freq \"49.99999999\": must be 50 to 500 MHz");
    row("clock too high",  replaced(good, "156.25", "500.1"), "line 10: q0_refclk1_freq \"500.1\": must be 50 to 500 MHz");
    row("ratio alone",     replaced(good, "ratio na", "ratio 5x"), "line 5: q0_ln0_tx_ovs_ratio \"5x\": does not go with q0_ln0_tx_ovs_mode \"off\"");
    row("mode alone",      replaced(good, "mode off", "mode buildin").replaceInStrings(text("loopback_mode buildin"), text("loopback_mode off")),
        "line 5: q0_ln0_tx_ovs_ratio \"na\": does not go with q0_ln0_tx_ovs_mode \"buildin\"");
    row("wrong ratio",     replaced(good, "ratio na", "ratio NA"), "line 5: q0_ln0_tx_ovs_ratio \"NA\": must be \"na\" or a whole number and \"x\"");
    row("no receiver clock", replaced(good, "sel auto", "sel "), "line 9: q0_ln0_cdr_refclk_sel has no value");
    row("PLL missing",     good.mid(0, 6) + good.mid(7), "line 1: q0_ln0 is enabled, but q0_ln0_pll_sel is missing");
    row("quad off",        replaced(good, "q0_enable true", "q0_enable false"), "line 1: q0_ln0 is enabled, but q0 is not");
    // clang-format on
}

void GeneratorTest::reportsLines() {
    QFETCH(QStringList, script);
    QFETCH(QString, message);
    openDevice("RZ7X-60B");
    const Outcome outcome = run(script);
    QVERIFY(!outcome.done);
    QCOMPARE(outcome.messages, QStringList{message});
}

void GeneratorTest::failsSilentlyWithoutSolution() {
    serdes* model = openDevice("RZ7X-60B");
    QStringList script = laneLines("q0_ln0", "qpll1", "10.3125", "10.3125");
    script.append(text("q0_refclk1_freq 101"));
    const Outcome outcome = run(script);
    QVERIFY(!outcome.done);
    QVERIFY(outcome.messages.isEmpty());
    // 10312.5 = 2 * 101 * n / m: 51.0517 a step of m; of m = 1 to 4 the nearest n / m are
    // 51 (10302 Mbit/s, -1018.2 ppm) and 205 / 4, above the set; 154 / 3 (10369.333, +5511.1 ppm),
    // 103 / 2 = 51.5 (10403), 51.25 needs n = 205: so 154 / 3 is next above.
    QCOMPARE(
        model->details().value(0),
        text("No divider setting of QPLL1 makes 10.3125 Gbit/s (tx) from Q0 REFCLK1 at 101 MHz "
             "within 100 ppm."));
    QCOMPARE(model->details().value(1),
             text("From 101 MHz the nearest rates of QPLL1 are 10.302 Gbit/s (-1018.2 ppm) and "
                  "10.369333333333 Gbit/s (5511.1 ppm)."));
    QCOMPARE(model->details().size(), 6); // three sentences a direction
    script.last() = clock156;
    QVERIFY(run(script).done);
    QVERIFY2(model->details().isEmpty(), "a success has nothing to explain");
}

void GeneratorTest::directionsStandAlone() {
    openDevice("RZ7X-60B");
    QStringList script = laneLines("q0_ln0", "qpll1", "10.3125", "0.5");
    script.append(clock156);
    QVERIFY(!run(script).done);
    const Outcome sender = run(replaced(script, "loopback_mode off", "loopback_mode tx_only"));
    QVERIFY(sender.done);
    QVERIFY(sender.settings.contains(text("q0_ln0_tx_n")));
    QVERIFY(!sender.settings.contains(text("q0_ln0_rx_n")));
    QVERIFY2(run(replaced(replaced(script, "loopback_mode off", "loopback_mode tx_only"),
                          "sel auto", "sel "))
                 .done,
             "a receiver that is off needs no clock");
    script = laneLines("q0_ln0", "qpll1", "0.5", "10.3125");
    script.append(clock156);
    const Outcome receiver = run(replaced(script, "loopback_mode off", "loopback_mode rx_only"));
    QVERIFY(receiver.done);
    QVERIFY(!receiver.settings.contains(text("q0_ln0_tx_n")));
}

void GeneratorTest::takesTheRecordedReference() {
    serdes* model = openDevice("RZ7X-60B");
    const QStringList lane{text("Q0 Lane0")};
    QStringList script = laneLines("q0_ln0");
    script += QStringList{text("q0_refclk0_freq 101"), clock156};
    QVERIFY2(run(script).done, "no route recorded: any clock that serves");

    const QStringList sources{text("Q0 REFCLK0"), text("Q0 REFCLK1")};
    QVERIFY(model->checkRoute(lane, text("QPLL1"), sources, {101.0, 156.25}, text("REFMUX1"),
                              text("REFMUX1")));
    const Outcome outcome = run(script);
    QVERIFY(outcome.done);
    QCOMPARE(outcome.settings.value(text("q0_ln0_tx_refclk")), text("q0_refclk1"));
    model->resetLane(lane.first(), 0);

    QVERIFY(model->checkRoute(lane, text("QPLL1"), sources, {101.0, 156.25}, text("REFMUX0"),
                              text("REFMUX1")));
    const Outcome refused = run(script);
    QVERIFY2(!refused.done, "the PLL's multiplexer leads to a clock that does not serve");
    QVERIFY(refused.messages.isEmpty());
    model->resetLane(lane.first(), 0);
}

void GeneratorTest::leavesTheChoiceToTheHost() {
    serdes* model = openDevice("RZ7X-15A");
    QVERIFY(model->checkRoute({text("Q0 Lane0")}, text("CPLL"), {text("Q0 REFCLK0"), text("NA")},
                              {156.25, 0.0}, text("GPIO"), text("REFMUX0")));
    QStringList script = laneLines("q0_ln0", "cpll", "10", "10.3125");
    script += QStringList{text("q0_gpio_freq 125"), text("q0_refclk0_freq 156.25")};
    const Outcome outcome = run(script);
    QVERIFY2(outcome.done, qPrintable(model->details().join(QLatin1Char('\n'))));
    QCOMPARE(outcome.settings.value(text("q0_ln0_tx_refclk")), text("q0_refin"));
    // 10.3125 = 2 * 125 * 165 / 4: the transmitter's clock serves the receiver too.
    QCOMPARE(outcome.settings.value(text("q0_ln0_rx_refclk")), text("q0_refin"));
    QCOMPARE(outcome.settings.value(text("q0_ln0_rx_m")), text("4"));
    QCOMPARE(outcome.settings.value(text("q0_ln0_rx_n")), text("165"));
}

void GeneratorTest::respectsOtherInstances_data() {
    QTest::addColumn<QStringList>("script");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* name, const QStringList& script, const char* message) {
        QTest::newRow(name) << script << text(message);
    };
    const QStringList clocks{text("q0_refclk0_freq 125"), clock156};
    // clang-format off
    row("same PLL, same rate", laneLines("q0_ln1") + clocks, "");
    row("another PLL",         laneLines("q0_ln1", "qpll0", "10", "10") + clocks, "");
    row("taken lane",          laneLines("q0_ln2") + clocks, "line 1: Q0 Lane2 is held by link0");
    row("another rate",        laneLines("q0_ln1", "qpll1", "12.5") + clocks,
        "line 3: q0_ln1_tx_rate \"12.5\": Q0_QPLL1 is held by link0 and runs at 10.3125 Gbit/s");
    row("another clock",       laneLines("q0_ln1") + clocks.mid(0, 1),
        "line 7: Q0_QPLL1 is held by link0 with Q0 REFCLK1 at 156.25 MHz as its reference; the script does not give that clock");
    // clang-format on
}

void GeneratorTest::respectsOtherInstances() {
    QFETCH(QStringList, script);
    QFETCH(QString, message);
    serdes* model = openDevice("RZ7X-60B");
    model->setMessage(text("link0"), linkMessage());
    QCOMPARE(run(script).messages, message.isEmpty() ? QStringList() : QStringList{message});
    QCOMPARE(run(script).done, message.isEmpty());
    model->setEditing(text("link0"));
    QVERIFY2(run(script).messages.isEmpty(), "one's own resources are free");
}

void GeneratorTest::bonds() {
    openDevice("RZ7X-138");
    QStringList script = laneLines("q0_ln0", "qpll0", "10", "10");
    script += laneLines("q0_ln1", "qpll0", "5", "5");
    script += laneLines("q1_ln3", "qpll0", "8", "8");
    script += QStringList{text("q0_ln0_ctc_mst_sel  q1_ln3"), text("q0_refclk0_freq 100")};
    const Outcome outcome = run(script);
    QVERIFY2(outcome.done, qPrintable(outcome.messages.join(QLatin1Char('\n'))));
    QCOMPARE(outcome.settings.value(text("q0_ln0_ctc_mst_sel")), text("q1_ln3"));
    // One oscillator a quad: 5000 MHz for 10 and 5, 4000 or 8000 MHz for 8.
    QCOMPARE(outcome.settings.value(text("q0_ln0_tx_vco_mhz")), text("5000"));
    QCOMPARE(outcome.settings.value(text("q0_ln1_tx_vco_mhz")), text("5000"));
    QCOMPARE(outcome.settings.value(text("q0_ln1_tx_d")), text("2"));
    QCOMPARE(outcome.settings.value(text("q1_ln3_tx_loop")), text("q1_qpll0"));
    script.removeAt(script.size() - 2);
    script.replaceInStrings(text("q1_"), text("q0_"));
    const Outcome refused = run(script);
    QVERIFY2(!refused.done, "8 and 10 Gbit/s have no oscillator frequency in common");
    QVERIFY(refused.messages.isEmpty());
}

void GeneratorTest::keepsTheOldFile() {
    openDevice("RZ7X-60B");
    const QString path = m_dir.filePath(QStringLiteral("kept.csr"));
    QStringList messages;
    generator host;
    QVERIFY(host.generate(laneLines("q0_ln0") + QStringList{clock156}, path, messages));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    file.close();
    QVERIFY(!host.generate({text("x")}, path, messages));
    QCOMPARE(messages, QStringList{text("line 1: \"x\" is no setting name, blank and value")});
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), before);

    const QString nowhere = m_dir.filePath(QStringLiteral("absent/out.csr"));
    QVERIFY(!host.generate(laneLines("q0_ln0") + QStringList{clock156}, nowhere, messages));
    QCOMPARE(messages.size(), 1);
    QVERIFY2(messages.first().contains(QStringLiteral("absent")), qPrintable(messages.first()));

    serdes::instance()->openProject(DEV::DeviceArg(text("x"), text("x")), QString(), {});
    QVERIFY(!host.generate({}, path, messages));
    QCOMPARE(messages, QStringList{text("the device \"x\" is not in the device database")});
}

QTEST_GUILESS_MAIN(GeneratorTest)
#include "generator_test.moc"
