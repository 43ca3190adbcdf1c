#include <utils/jsontext.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QByteArray project = R"({
  "format": 1,
  "device": "RZ7X-60B",
  "instances": {
    "link0": {"ip": "customized", "config": {
      "file": "a", "module": "b", "target_device": "RZ7X-60B", "Q0_LN0": true, "Q0_LN1": true,
      "PLL_SELECTION": "QPLL1", "RefMode": "Manual", "TX_RATE": "10.3125", "RX_RATE": "10.3125",
      "PLLREFSOURCE": "REFMUX1", "RXREFSOURCE": "REFMUX1", "REFMUX1SOURCE": "Q0 REFCLK1",
      "MUX1Freq": "156.25"}},
    "link1": {"ip": "customized", "config": {
      "file": "c", "module": "d", "target_device": "RZ7X-60B", "Q0_LN3": true,
      "PLL_SELECTION": "CPLL", "RefMode": "Auto", "TX_RATE": "1.25", "RX_RATE": "1.25",
      "REFERENCE_CLOCK_SOURCE": "Q0 REFCLK1", "REFERENCE_CLOCK_FREQ": "156.25"}}
  },
  "data": {"Q0_BIAS": 9}
}
)";

} // namespace

class ResourcesTest : public QObject {
    Q_OBJECT

private:
    QByteArray run(const QStringList& arguments, int status) {
        QProcess program;
        program.start(QStringLiteral(BUILD_DIR "/bin/ipgen"), arguments);
        if (!program.waitForFinished() || program.exitCode() != status) {
            return "exit status " + QByteArray::number(program.exitCode()) + ": " +
                   program.readAllStandardError();
        }
        return status == 0 ? program.readAllStandardOutput() : program.readAllStandardError();
    }

    void writeProject() {
        QFile file(m_dir.filePath(QStringLiteral("project.json")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(project), qint64(project.size()));
    }

    QTemporaryDir m_dir;

private Q_SLOTS:
    void tellsWhoHoldsWhat();
    void tellsItAsJson();
    void aRemovedInstanceIsGone();
    void namesAMissingProject();
};

void ResourcesTest::tellsWhoHoldsWhat() {
    writeProject();
    const QByteArray expected =
        "resource     held by       setting\n"
        "Q0 Lane0     link0         Customized PHY\n"
        "Q0 Lane1     link0         Customized PHY\n"
        "Q0 Lane2     free\n"
        "Q0 Lane3     link1         Customized PHY\n"
        "Q0_QPLL0     free\n"
        "Q0_QPLL1     link0         10.3125 Gbps from Q0 REFCLK1 at 156.25 MHz\n"
        "Q0_LN0_CPLL  free\n"
        "Q0_LN1_CPLL  free\n"
        "Q0_LN2_CPLL  free\n"
        "Q0_LN3_CPLL  link1         1.25 Gbps from Q0 REFCLK1 at 156.25 MHz\n"
        "Q0_MUX0      free\n"
        "Q0_MUX1      link0         Q0 REFCLK1\n"
        "Q0_MUX2      free\n"
        "Q0_MUX3      free\n"
        "Q0_REFCLK0   free\n"
        "Q0_REFCLK1   link0, link1  156.25 MHz\n"
        "Q0_REFCLK2   free\n"
        "Q0_REFCLK3   free\n"
        "Q0_REFIN0    free\n"
        "Q0_REFIN1    free\n";
    QCOMPARE(run({QStringLiteral("resources"), m_dir.path()}, 0), expected);
}

void ResourcesTest::tellsItAsJson() {
    writeProject();
    QVariant document;
    Utils::JsonError error;
    const QByteArray text =
        run({QStringLiteral("resources"), m_dir.path(), QStringLiteral("--json")}, 0);
    QVERIFY2(Utils::parseJson(text, &document, &error), qPrintable(error.text()));
    const QVariantMap root = document.toMap();
    QCOMPARE(root.value(QStringLiteral("device")).toString(), QStringLiteral("RZ7X-60B"));
    QCOMPARE(root.value(QStringLiteral("lanes")).toList().size(), 4);
    QCOMPARE(root.value(QStringLiteral("referenceClocks")).toList().size(), 6);
    QCOMPARE(root.value(QStringLiteral("multiplexers")).toList().size(), 4);
    const QVariantMap pll = root.value(QStringLiteral("plls")).toList().value(1).toMap();
    const QVariantMap expected{{QStringLiteral("name"), QStringLiteral("Q0_QPLL1")},
                               {QStringLiteral("free"), false},
                               {QStringLiteral("owners"), QStringList{QStringLiteral("link0")}},
                               {QStringLiteral("rate"), 10.3125},
                               {QStringLiteral("source"), QStringLiteral("Q0 REFCLK1")},
                               {QStringLiteral("frequency"), 156.25}};
    QCOMPARE(pll, expected);
    QCOMPARE(root.value(QStringLiteral("data")).toMap().value(QStringLiteral("Q0_BIAS")).toInt(),
             9);
}

void ResourcesTest::aRemovedInstanceIsGone() {
    writeProject();
    run({QStringLiteral("remove"), m_dir.path(), QStringLiteral("link0")}, 0);
    const QByteArray text = run({QStringLiteral("resources"), m_dir.path()}, 0);
    QVERIFY2(text.contains("Q0_QPLL1     free\n"), text.constData());
    QVERIFY(!text.contains("link0"));
    QVERIFY(text.contains("link1"));
}

void ResourcesTest::namesAMissingProject() {
    const QString folder = m_dir.filePath(QStringLiteral("absent"));
    const QByteArray text = run({QStringLiteral("resources"), folder}, 3);
    QVERIFY2(text.startsWith("ipgen: " + folder.toUtf8()), text.constData());
}

QTEST_GUILESS_MAIN(ResourcesTest)
#include "resources_test.moc"
