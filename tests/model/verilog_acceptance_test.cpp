// Real Verilog readers take what is generated: define.vh at the top of a file, param.v inside a
// module.
#include "goldencases.h"
#include "harness.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

namespace {

/// Cases whose configured values cannot make Verilog, so that the readers must refuse them: this
/// also shows that a refusal would be noticed.
const QMap<QString, QString> kNoVerilog{
    {"15k_absent_keys", "parameters without a value"},
    {"60k_absent_keys", "parameters without a value"},
    {"138k_absent_keys", "parameters without a value"},
    {"60k_absent_bonding_two_lanes", "parameters without a value"},
    {"60k_empty_texts", "parameters without a value"},
    {"138k_empty_texts", "parameters without a value"},
    {"60k_wrong_kinds", "a truth value as a hexadecimal pattern"},
    {"138k_unusual_texts", "texts that are no numbers"},
    {"60k_manual_one_source_two_frequencies", "one clock declared twice"},
};

/// What Verilator -Wall may go on about.
const QStringList kWaivers{
    "-Wno-UNUSEDPARAM", // the parameters are for the IP's RTL, which is not part of the holder
};

struct Outcome {
    int status = -1;
    QByteArray output;
};

Outcome run(const QString& program, const QStringList& arguments, const QString& folder) {
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    Outcome outcome;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit) {
        outcome.status = process.exitCode();
        outcome.output = process.readAll();
    } else {
        outcome.output = process.errorString().toUtf8();
    }
    return outcome;
}

} // namespace

class VerilogAcceptanceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void readersTakeIt_data();
    void readersTakeIt();
    void parametersHoldTheirValues();

private:
    Harness m_host;
};

void VerilogAcceptanceTest::initTestCase() {
    QVERIFY2(m_host.error().isEmpty(), qPrintable(m_host.error()));
    QVERIFY2(!QStandardPaths::findExecutable("iverilog").isEmpty(),
             "Icarus Verilog (iverilog) is not installed");
    QVERIFY2(!QStandardPaths::findExecutable("verilator").isEmpty(),
             "Verilator (verilator) is not installed");
}

void VerilogAcceptanceTest::readersTakeIt_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isVerilog");
    for (const GoldenCase& golden : goldenCases()) {
        QTest::newRow(qPrintable(golden.name)) << golden.name << !kNoVerilog.contains(golden.name);
    }
}

namespace {

/// Generates a case and puts a module around its two files, in the folder that they are in.
QString holderFor(const Harness& host, const QString& name, const QByteArray& body) {
    host.openProject(host.workingDir() + '/' + name, QJsonDocument::fromJson(goldenCase(name).input)
                                                         .object()
                                                         .value("data")
                                                         .toObject()
                                                         .toVariantMap());
    auto config = goldenConfig(name);
    const Harness::Result result = host.generate(config);
    if (!result.ok) {
        return {};
    }
    QFile holder(result.folder + "/holder.v");
    if (!holder.open(QIODevice::WriteOnly)) {
        return {};
    }
    holder.write("`include \"define.vh\"\nmodule holder;\n`include \"param.v\"\n" + body +
                 "endmodule\n");
    return result.folder;
}

} // namespace

void VerilogAcceptanceTest::readersTakeIt() {
    QFETCH(QString, name);
    QFETCH(bool, isVerilog);
    const QString folder = holderFor(m_host, name, {});
    QVERIFY(!folder.isEmpty());

    const Outcome icarus =
        run("iverilog", {"-t", "null", "-g2005-sv", "-Wall", "holder.v"}, folder);
    QVERIFY2((icarus.status == 0) == isVerilog, icarus.output.constData());
    const Outcome verilator =
        run("verilator", QStringList{"--lint-only", "-Wall"} + kWaivers + QStringList{"holder.v"},
            folder);
    QVERIFY2((verilator.status == 0) == isVerilog, verilator.output.constData());
    if (isVerilog) {
        // Not a word, not even a warning.
        QCOMPARE(icarus.output, QByteArray());
        QCOMPARE(verilator.output, QByteArray());
    }
}

void VerilogAcceptanceTest::parametersHoldTheirValues() {
    // Elaborated and run, not only parsed.
    const QByteArray body =
        "initial begin\n"
        "  if (q1_ln3_channel_bounding_master_sel !== 6) $fatal(1, \"master\");\n"
        "  if (q1_ln3_3nd_channel_bonding_align_pattern_is_k !== 1) $fatal(1, \"k\");\n"
        "  if (q0_ln0_word_align_pattern_mask !== 10'b1111100000) $fatal(1, \"mask\");\n"
        "  if (q0_ln0_ctc_2nd_pattern !== 8'hF5) $fatal(1, \"pattern\");\n"
        "  if (q0_ln0_loopback_mode != \"lb_enc\") $fatal(1, \"loopback\");\n"
        "  if (q0_refclk1_freq != 156.25) $fatal(1, \"clock\");\n"
        "  if (`Q1_LN2_TX_IF_MST_SEL != 5) $fatal(1, \"define\");\n"
        "`ifndef DRP\n  $fatal(1, \"DRP\");\n`endif\n"
        "`ifndef RZ7X138\n  $fatal(1, \"class\");\n`endif\n"
        "`ifndef Q1_LN1_TX_IF_BONDING\n  $fatal(1, \"bonding\");\n`endif\n"
        "  $display(\"all as configured\");\n"
        "end\n";
    const QString folder = holderFor(m_host, "138k_eight_lanes", body);
    QVERIFY(!folder.isEmpty());
    const Outcome compiled = run("iverilog", {"-g2005-sv", "-o", "holder.vvp", "holder.v"}, folder);
    QVERIFY2(compiled.status == 0, compiled.output.constData());
    const Outcome ran = run("vvp", {"holder.vvp"}, folder);
    QVERIFY2(ran.status == 0, ran.output.constData());
    QVERIFY2(ran.output.contains("all as configured"), ran.output.constData());
}

QTEST_MAIN(VerilogAcceptanceTest)
#include "verilog_acceptance_test.moc"
