// diff and summary from the outside, with values worked out by hand.

#include <utils/jsontext.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

class ReportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void sameIsZero();
    void fieldsDerivedAndLinesDiffer();
    void filesAreTakenToo();
    void inputErrors_data();
    void inputErrors();
    void summaryValues();
    void summaryMarkdown();
    void nothingIsLeftBehind();

private:
    struct Outcome {
        int code = -1;
        QByteArray output;
        QByteArray errors;
    };
    Outcome run(const QStringList& arguments) const;
    QString place(const char* rest) const { return m_project + QLatin1String(rest); }

    QTemporaryDir m_place;
    QString m_project;
};

ReportTest::Outcome ReportTest::run(const QStringList& arguments) const {
    QProcess process;
    process.start(QStringLiteral(IPGEN), arguments);
    process.waitForFinished(60000);
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

void ReportTest::initTestCase() {
    m_project = m_place.filePath(QStringLiteral("p"));
    QCOMPARE(run({QStringLiteral("new"), m_project, QStringLiteral("--device"),
                  QStringLiteral("RZ7X-60B")})
                 .code,
             0);
    const auto create = [&](const char* name, const QStringList& settings) {
        QStringList arguments{QStringLiteral("create"), m_project, QLatin1String(name)};
        for (const QString& one : settings) {
            arguments << QStringLiteral("--set") << one;
        }
        return run(arguments).code;
    };
    QCOMPARE(create("a", {QStringLiteral("tab1/q0_l0=true")}), 0);
    QCOMPARE(create("b", {QStringLiteral("tab1/q0_l1=true"), QStringLiteral("tab1/TXLineRate=2.5"),
                          QStringLiteral("tab1/RXLineRate=2.5")}),
             0);
}

void ReportTest::sameIsZero() {
    const Outcome outcome =
        run({QStringLiteral("diff"), place(":a"), place(":a"), QStringLiteral("--json")});
    QCOMPARE(outcome.code, 0);
    QVariant document;
    Utils::JsonError error;
    QVERIFY(Utils::parseJson(outcome.output, &document, &error));
    QCOMPARE(document.toMap().value(QStringLiteral("same")).toBool(), true);
    QVERIFY(document.toMap().value(QStringLiteral("fields")).toList().isEmpty());
}

void ReportTest::fieldsDerivedAndLinesDiffer() {
    const Outcome outcome = run({QStringLiteral("diff"), place(":a"), place(":b")});
    QCOMPARE(outcome.code, 1);
    const QString text = QString::fromUtf8(outcome.output);
    for (const char* line :
         {"fields", "  TX_RATE: \"1.25\" -> \"2.5\"", "  Q0_LN0: true -> false", "derived",
          "  tx_gbps: 1.25 -> 2.5", "  lanes: [\"Q0 Lane0\"] -> [\"Q0 Lane1\"]",
          "  - q0_ln0_tx_rate 1.25", "  + q0_ln1_tx_rate 2.5"}) {
        QVERIFY2(text.contains(QLatin1String(line) + QLatin1Char('\n')),
                 qPrintable(QLatin1String(line) + QStringLiteral(" in\n") + text));
    }
}

void ReportTest::filesAreTakenToo() {
    QFile project(m_project + QStringLiteral("/project.json"));
    QVERIFY(project.open(QIODevice::ReadOnly));
    QVariant document;
    Utils::JsonError error;
    QVERIFY(Utils::parseJson(project.readAll(), &document, &error));
    const QVariantMap config = document.toMap()
                                   .value(QStringLiteral("instances"))
                                   .toMap()
                                   .value(QStringLiteral("a"))
                                   .toMap()
                                   .value(QStringLiteral("config"))
                                   .toMap();
    QFile file(m_place.filePath(QStringLiteral("loose.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(Utils::writeJson(config));
    file.close();
    // The fields are the same; the data store, which is the project's, is not in the file.
    const Outcome outcome =
        run({QStringLiteral("diff"), place(":a"), file.fileName(), QStringLiteral("--json")});
    QVERIFY2(outcome.code <= 1, outcome.errors.constData());
    QVERIFY(Utils::parseJson(outcome.output, &document, &error));
    QVERIFY(document.toMap().value(QStringLiteral("fields")).toList().isEmpty());
}

void ReportTest::inputErrors_data() {
    QTest::addColumn<QString>("side");
    QTest::newRow("no such instance") << ":nothing";
    QTest::newRow("no such project") << "/nowhere:a";
    QTest::newRow("no such file") << "/nothing.json";
}

void ReportTest::inputErrors() {
    QFETCH(QString, side);
    const Outcome outcome = run({QStringLiteral("diff"), place(":a"), m_project + side});
    QCOMPARE(outcome.code, 3);
    QVERIFY(outcome.output.isEmpty());
    QCOMPARE(outcome.errors.count('\n'), 1);
    QVERIFY(outcome.errors.startsWith("ipgen: "));
}

void ReportTest::summaryValues() {
    const Outcome outcome =
        run({QStringLiteral("summary"), m_project, QStringLiteral("b"), QStringLiteral("--json")});
    QCOMPARE(outcome.code, 0);
    QVariant document;
    Utils::JsonError error;
    QVERIFY(Utils::parseJson(outcome.output, &document, &error));
    const QVariantMap map = document.toMap();
    QCOMPARE(map.value(QStringLiteral("tx_gbps")).toDouble(), 2.5);
    QCOMPARE(map.value(QStringLiteral("lanes")).toStringList(),
             QStringList{QStringLiteral("Q0 Lane1")});
    const QVariantList clocks = map.value(QStringLiteral("clocks")).toList();
    QCOMPARE(clocks.size(), 2);
    for (const QVariant& one : clocks) {
        const QVariantMap clock = one.toMap();
        const auto number = [&](const char* key) {
            return clock.value(QLatin1String(key)).toDouble();
        };
        // Both edges of the oscillator, divided: 2 * reference * n / (m * d).
        QCOMPARE(2 * number("reference_mhz") * number("n") / (number("m") * number("d")), 2500.0);
        QCOMPARE(number("vco_mhz"), number("reference_mhz") * number("n") / number("m"));
        QCOMPARE(number("made_gbps"), 2.5);
        QCOMPARE(number("error_ppm"), 0.0);
        // 2500 Mbit/s is 1500 above the least of 1000, 150 % of it, and 80 % below 12500.
        QCOMPARE(number("rate_margin_percent"), 80.0);
        // 10 bits a word: 2500 / 10.
        QCOMPARE(number("word_clock_mhz"), 250.0);
    }
}

void ReportTest::summaryMarkdown() {
    const Outcome outcome = run(
        {QStringLiteral("summary"), m_project, QStringLiteral("b"), QStringLiteral("--markdown")});
    QCOMPARE(outcome.code, 0);
    QVERIFY(outcome.output.startsWith("# b\n"));
    QVERIFY(outcome.output.contains("\n- lanes: Q0 Lane1\n"));
    QCOMPARE(outcome.output.count("\n| q0_ln1 "), 2);
}

void ReportTest::nothingIsLeftBehind() {
    // Creating may leave what the IP's dialog tried out; a summary adds nothing to it.
    const auto files = [&] {
        return QDir(m_project + QStringLiteral("/transceiver/b/temp"))
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    };
    const QStringList before = files();
    QCOMPARE(run({QStringLiteral("summary"), m_project, QStringLiteral("b")}).code, 0);
    QCOMPARE(files(), before);
    QVERIFY(!QFile::exists(m_project + QStringLiteral("/transceiver/b/temp/CUSTOMIZED/param.v")));
}

QTEST_MAIN(ReportTest)
#include "report_test.moc"
