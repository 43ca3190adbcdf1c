#include <serdesip/refnames.h>

#include <QtTest>

using namespace IPSERDESIP;

class RefNamesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void translates_data();
    void translates();
    void refusesOtherTexts_data();
    void refusesOtherTexts();
};

void RefNamesTest::translates_data() {
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("name");
    const auto row = [](const char* option, const char* name) {
        QTest::newRow(option) << QString::fromLatin1(option) << QString::fromLatin1(name);
    };
    row("Q0 REFCLK0", "Q0_REFCLK0");
    row("Q0 REFCLK3", "Q0_REFCLK3");
    row("Q1 REFCLK1", "Q1_REFCLK1");
    row("Q0 REFIN", "Q0_REFIN");
    row("Q0 REFIN0", "Q0_REFIN0");
    row("Q0 REFIN3", "Q0_REFIN3");
    row("MCLK", "MCLK");
}

void RefNamesTest::translates() {
    QFETCH(QString, option);
    QFETCH(QString, name);
    QCOMPARE(refsrcOptTransforSerdesName(option), name);
    QCOMPARE(FromRefOptionToRef(option), name);
    QCOMPARE(refsrcSerdesNameTransforOpt(name), option);
}

void RefNamesTest::refusesOtherTexts_data() {
    QTest::addColumn<QString>("text");
    for (const char* text : {"", "NA", "GPIO", "REFMUX0", "Q2 REFCLK0", "Q0 REFCLK4", "q0 refclk0",
                             "Q0 REFCLK0 ", "Q0  REFCLK0", "MCLK\n"}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void RefNamesTest::refusesOtherTexts() {
    QFETCH(QString, text);
    QCOMPARE(refsrcOptTransforSerdesName(text), QString());
    QCOMPARE(FromRefOptionToRef(text), QString());
    QCOMPARE(refsrcSerdesNameTransforOpt(text), QString());
    QCOMPARE(refsrcSerdesNameTransforOpt(QStringLiteral("Q0 REFCLK0")), QString());
}

QTEST_GUILESS_MAIN(RefNamesTest)
#include "refnames_test.moc"
