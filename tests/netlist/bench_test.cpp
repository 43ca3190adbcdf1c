// The example's bench in Icarus Verilog: it passes for every class, coding and width, for the
// loopbacks, bonding and clock correction, and fails when a line of the model is broken. A sample
// by default; all with the argument --all.

#include "configurations.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

bool wanted = false;

struct Case {
    Configuration configuration;
    bool sample = false; ///< part of the normal run
};

QJsonObject coded(const char* coding, const char* width, const char* ratio) {
    const QString c = QLatin1String(coding);
    const QString w = QLatin1String(width);
    const QString r = QLatin1String(ratio);
    return {{QStringLiteral("TX_ENCODING"), c},
            {QStringLiteral("RX_DECODING"), c},
            {QStringLiteral("TX_INTERNAL_DATA_WIDTH"), w},
            {QStringLiteral("RX_INTERNAL_DATA_WIDTH"), w},
            {QStringLiteral("TX_EXTERNAL_DATA_RATIO"), r},
            {QStringLiteral("RX_EXTERNAL_DATA_RATIO"), r},
            {QStringLiteral("TX_RATE"), QStringLiteral("2.5")},
            {QStringLiteral("RX_RATE"), QStringLiteral("2.5")},
            {QStringLiteral("64B66BMODE"), QStringLiteral("10GBASER with FIFO")}};
}

QJsonObject with(QJsonObject object, const QJsonObject& changes) {
    for (auto it = changes.begin(); it != changes.end(); ++it) {
        object[it.key()] = it.value();
    }
    return object;
}

QJsonObject one(const char* key, const QJsonValue& value) {
    return {{QLatin1String(key), value}};
}

void addCodings(QList<Case>& cases) {
    for (const char* name : {"60k", "15k", "138k"}) {
        const QString device = QLatin1String(name);
        const auto add = [&](const QString& what, const QJsonObject& changes, bool sample) {
            cases.append(
                {configuration(device + QLatin1Char('_') + what, device, {0}, changes), sample});
        };
        for (const char* width : {"8", "10", "16", "20"}) {
            const bool symbols = QByteArray(width).endsWith('0');
            for (const char* ratio : {"1:1", "1:2", "1:4"}) {
                const QString tail =
                    QStringLiteral("_%1_%2").arg(QLatin1String(width)).arg(ratio[2]);
                add(QStringLiteral("off") + tail, coded("OFF", width, ratio),
                    device == QLatin1String("15k") && tail == QLatin1String("_16_1"));
                if (symbols) {
                    add(QStringLiteral("8b10b") + tail,
                        with(coded("8B10B", width, ratio), one("WORD_ALIGNMENT", true)),
                        device != QLatin1String("15k") && tail == QLatin1String("_10_1"));
                }
            }
        }
        if (device == QLatin1String("138k")) {
            continue;
        }
        add(QStringLiteral("64b66b"), coded("64B66B", "16", "1:4"), device == QLatin1String("15k"));
        add(QStringLiteral("64b66b_async"),
            with(coded("64B66B", "16", "1:4"),
                 one("64B66BMODE", QStringLiteral("Async with FIFO"))),
            false);
        add(QStringLiteral("64b67b"), coded("64B67B", "16", "1:4"), device == QLatin1String("60k"));
    }
}

void addOptions(QList<Case>& cases) {
    const QJsonObject base = with(coded("8B10B", "20", "1:2"), one("WORD_ALIGNMENT", true));
    const auto add = [&](const char* name, const char* device, const QList<int>& lanes,
                         const QJsonObject& changes, bool sample = false) {
        cases.append(
            {configuration(QLatin1String(name), QLatin1String(device), lanes, changes), sample});
    };
    const auto text = [](const char* key, const char* value) {
        return one(key, QString::fromLatin1(value));
    };
    add("loopback_nes", "60k", {0}, with(base, text("Loopback_Mode", "LB_NES")));
    add("loopback_enc", "15k", {0}, with(base, text("Loopback_Mode", "LB_ENC")), true);
    add("loopback_fes", "138k", {5}, with(base, text("Loopback_Mode", "LB_FES")));
    add("no_alignment", "60k", {0}, with(base, one("WORD_ALIGNMENT", false)));
    add("other_pattern", "60k", {0}, with(base, text("WAPATTERN0", "K23.7")));
    add("reconfiguration", "60k", {0}, with(base, one("DRP_Ports", true)));
    const QJsonObject bonded = with(base, text("RX_CHANNEL_BONDING", "One Word"));
    add("bonding", "60k", {0, 1}, bonded, true);
    add("bonding_four_both_ways", "60k", {0, 1, 2, 3},
        with(bonded, one("TX_CHANNEL_BONDING", true)));
    add("bonding_across_quads", "138k", {2, 5}, bonded);
    for (const char* source : {"User", "Quad", "TX"}) {
        for (const char* words : {"One Word", "Two Words"}) {
            const QByteArray name =
                QByteArray(source).toLower() + (words[0] == 'O' ? "_one" : "_two");
            const QJsonObject corrected =
                with(with(base, text("CLOCK_CORRECTION", words)), text("CLOCK_CLKSOURCE", source));
            if (source[0] != 'Q') {
                add("correction_" + name, "60k", {0}, corrected, name == "user_two");
            }
            add("bonded_correction_" + name, "60k", {0, 1},
                with(corrected, text("RX_CHANNEL_BONDING", "One Word")));
        }
    }
    add("correction_blocks", "60k", {0},
        with(coded("64B66B", "16", "1:4"), text("CLOCK_CORRECTION", "One Word")));
    add("correction_pair_ends_in_data", "60k", {0},
        with(with(base, text("CLOCK_CORRECTION", "Two Words")), one("CTC_PATTERN1_IS_K", false)));
}

QList<Case> allCases() {
    QList<Case> cases;
    addCodings(cases);
    addOptions(cases);
    return cases;
}

struct Outcome {
    bool passed = false;
    QByteArray output;
};

/// Simulates what was generated in `folder` with the model files of `primitives`.
Outcome simulate(const QString& folder, const QString& primitives) {
    const QString data = QStringLiteral(SOURCE_DIR "/ip/data/");
    const QString bench = data + QStringLiteral("example/bench/");
    const QString program = folder + QStringLiteral("/bench.vvp");
    QStringList arguments{QStringLiteral("-g2012"), QStringLiteral("-DBENCH_WORDS=500"),
                          QStringLiteral("-s"),     QStringLiteral("bench"),
                          QStringLiteral("-o"),     program};
    for (const QString& path : {folder, data, bench, primitives}) {
        arguments.append(QStringLiteral("-I") + path);
    }
    for (const char* file : {"bench.v", "bench_lane.v", "bench_source.v", "bench_sink.v"}) {
        arguments.append(bench + QLatin1String(file));
    }
    arguments << data + QStringLiteral("customized_phy_wrapper.v")
              << data + QStringLiteral("customized_phy.v")
              << primitives + QStringLiteral("/xcvr_primitives.v")
              << primitives + QStringLiteral("/xcvr_lane_model.v");
    Outcome outcome;
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral("iverilog"), arguments);
    if (!process.waitForFinished(60000) || process.exitCode() != 0) {
        outcome.output = "iverilog: " + process.readAll();
        return outcome;
    }
    process.start(QStringLiteral("vvp"), {QStringLiteral("-n"), program});
    const bool ended = process.waitForFinished(300000);
    outcome.output = process.readAll();
    outcome.passed = ended && process.exitCode() == 0 && outcome.output.endsWith("\nPASS\n");
    return outcome;
}

const QString primitives = QStringLiteral(SOURCE_DIR "/host/data/primitives");

} // namespace

class BenchTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void passes_data();
    void passes();
    void brokenModelFails_data();
    void brokenModelFails();
    void exampleFromTheProgram();

private:
    QString generated(const QString& name) const {
        return m_folder.filePath(name + QStringLiteral("/link0/temp/CUSTOMIZED"));
    }
    QList<Case> m_cases;
    QTemporaryDir m_folder;
};

void BenchTest::initTestCase() {
    m_cases = allCases();
    QList<Configuration> list;
    for (const Case& c : qAsConst(m_cases)) {
        list.append(c.configuration);
    }
    const QByteArray problem = emitAll(list, m_folder.path());
    QVERIFY2(problem.isEmpty(), problem);
}

void BenchTest::passes_data() {
    QTest::addColumn<QString>("name");
    for (const Case& c : qAsConst(m_cases)) {
        if (wanted || c.sample) {
            QTest::newRow(qPrintable(c.configuration.name)) << c.configuration.name;
        }
    }
}

void BenchTest::passes() {
    QFETCH(QString, name);
    const Outcome outcome = simulate(generated(name), primitives);
    QVERIFY2(outcome.passed, outcome.output.right(2000));
}

void BenchTest::brokenModelFails_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("broken");
    const auto row = [](const char* tag, const char* name, const char* file, const char* line,
                        const char* broken, bool sample) {
        if (sample || wanted) {
            QTest::newRow(tag) << QString::fromLatin1(name) << QString::fromLatin1(file)
                               << QByteArray(line) << QByteArray(broken);
        }
    };
    row("one code of the encoder", "60k_8b10b_10_1", "xcvr_8b10b.vh", "5'd9:  six_of = 6'b100101;",
        "5'd9:  six_of = 6'b100110;", true);
    row("one code of the decoder", "60k_8b10b_10_1", "xcvr_8b10b.vh",
        "6'b110100:            five_of = {1'b1, 5'd11};",
        "6'b110100:            five_of = {1'b1, 5'd12};", true);
    row("the encoder's disparity", "60k_8b10b_10_1", "xcvr_8b10b.vh",
        "if (rd) six = ~six;\n        mid = ~rd;", "mid = ~rd;", false);
    row("the alternate form", "60k_8b10b_20_4", "xcvr_8b10b.vh", "d[4:0] == 5'd17 ||", "", false);
    row("the alignment", "60k_8b10b_10_1", "xcvr_lane_model.v", "symbol_bits = 10;", "", false);
    row("a tap of the scrambler", "60k_64b67b", "xcvr_64b66b.vh",
        "  scramble[i] = p[i] ^ s[38] ^ s[57];", "  scramble[i] = p[i] ^ s[37] ^ s[57];", true);
    row("a block type", "15k_64b66b", "xcvr_64b66b.vh", "3: terminate_type = 8'hB4;",
        "3: terminate_type = 8'hAA;", false);
    row("the bonding pattern", "bonding", "xcvr_lane_model.v",
        "is_pattern = unit[9:0] == {2'b01, BOND_PATTERN};", "is_pattern = 1'b1;", false);
    row("the deletion of a pair", "correction_user_two", "xcvr_lane_model.v",
        "unit_rd = unit_rd + SPARE;", "unit_rd = unit_rd + 1;", false);
}

void BenchTest::brokenModelFails() {
    QFETCH(QString, name);
    QFETCH(QString, file);
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, broken);
    QTemporaryDir model;
    for (const QString& entry : QDir(primitives).entryList(QDir::Files)) {
        QVERIFY(QFile::copy(primitives + QLatin1Char('/') + entry, model.filePath(entry)));
    }
    QFile source(model.filePath(file));
    QVERIFY(source.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(source.open(QIODevice::ReadWrite));
    QByteArray text = source.readAll();
    QCOMPARE(text.count(line), 1);
    text.replace(line, broken);
    source.resize(0);
    source.seek(0);
    source.write(text);
    source.close();
    const Outcome outcome = simulate(generated(name), model.path());
    QVERIFY2(!outcome.passed, outcome.output.right(2000));
    QVERIFY2(outcome.output.contains("\nFAIL: "), outcome.output.right(2000));
}

// ipgen example, twice into different folders, and its Makefile.
void BenchTest::exampleFromTheProgram() {
    const QString ipgen = QStringLiteral(BUILD_DIR "/bin/ipgen");
    const QString project = m_folder.filePath(QStringLiteral("project"));
    const Configuration c =
        configuration(QStringLiteral("link0"), QStringLiteral("60k"), {0},
                      with(coded("8B10B", "10", "1:1"), one("WORD_ALIGNMENT", true)));
    QCOMPARE(QProcess::execute(
                 ipgen, {QStringLiteral("new"), project, QStringLiteral("--device"), c.device}),
             0);
    QFile file(project + QStringLiteral("/project.json"));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QJsonObject json = QJsonDocument::fromJson(file.readAll()).object();
    json[QStringLiteral("instances")] =
        QJsonObject{{c.name, QJsonObject{{QStringLiteral("ip"), QStringLiteral("customized")},
                                         {QStringLiteral("config"), c.config}}}};
    file.resize(0);
    file.seek(0);
    file.write(QJsonDocument(json).toJson());
    file.close();
    const auto example = [&](const QString& folder) {
        return QProcess::execute(ipgen, {QStringLiteral("example"), project, c.name,
                                         QStringLiteral("--out"), m_folder.filePath(folder)});
    };
    QCOMPARE(example(QStringLiteral("first")), 0);
    QCOMPARE(example(QStringLiteral("second")), 0);
    const QDir first(m_folder.filePath(QStringLiteral("first")));
    int files = 0;
    QDirIterator it(first.path(), QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QFile a(it.next());
        QFile b(
            m_folder.filePath(QStringLiteral("second/") + first.relativeFilePath(a.fileName())));
        QVERIFY(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
        const QByteArray bytes = a.readAll();
        QCOMPARE(bytes, b.readAll());
        QVERIFY2(!bytes.contains("@MODULE@"), qPrintable(a.fileName()));
        ++files;
    }
    QVERIFY(files > 15);
    // Nothing was written into the project.
    QCOMPARE(QDir(project).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList(QStringLiteral("project.json")));
    for (const char* target : {"simulate", "lint", "netlist"}) {
        QProcess make;
        make.setProcessChannelMode(QProcess::MergedChannels);
        make.start(QStringLiteral("make"),
                   {QStringLiteral("-C"), first.path(), QLatin1String(target)});
        QVERIFY(make.waitForFinished(120000));
        QVERIFY2(make.exitCode() == 0, make.readAll().right(2000));
    }
}

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QStringList arguments = app.arguments();
    wanted = arguments.removeAll(QStringLiteral("--all")) > 0;
    BenchTest test;
    return QTest::qExec(&test, arguments);
}
#include "bench_test.moc"
