// Codings, meta-frame length, bonding and clock correction.

#include "dialog/rules/datapath.h"

#include <QtTest>

using namespace IPCUSTOMIZED::rules;

class DataPathTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void widthAndRatioAllowCodings_data();
    void widthAndRatioAllowCodings();
    void blockCodings();
    void symbolsFitTensOnly();
    void metaFrameLength_data();
    void metaFrameLength();
    void everyMetaFrameLength();
    void bondingOpensItsPatterns_data();
    void bondingOpensItsPatterns();
    void correctionOpensItsPatterns_data();
    void correctionOpensItsPatterns();
    void correctionClocksFollowTheLanes();
};

void DataPathTest::widthAndRatioAllowCodings_data() {
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("ratio");
    QTest::addColumn<QStringList>("allowed");
    const QStringList off{"OFF"};
    const QStringList symbols{"OFF", "8B10B"};
    const QStringList blocks{"OFF", "64B66B", "64B67B"};
    // clang-format off
    QTest::newRow("8, 1:1")  <<  8 << "1:1" << off;
    QTest::newRow("8, 1:2")  <<  8 << "1:2" << off;
    QTest::newRow("8, 1:4")  <<  8 << "1:4" << off;
    QTest::newRow("8, none") <<  8 << ""    << off;
    QTest::newRow("10, 1:1") << 10 << "1:1" << symbols;
    QTest::newRow("10, 1:2") << 10 << "1:2" << symbols;
    QTest::newRow("10, 1:4") << 10 << "1:4" << symbols;
    QTest::newRow("10, none")<< 10 << ""    << symbols;
    QTest::newRow("16, 1:1") << 16 << "1:1" << off;
    QTest::newRow("16, 1:2") << 16 << "1:2" << off;
    QTest::newRow("16, 1:4") << 16 << "1:4" << blocks;
    QTest::newRow("16, none")<< 16 << ""    << off;
    QTest::newRow("20, 1:1") << 20 << "1:1" << symbols;
    QTest::newRow("20, 1:2") << 20 << "1:2" << symbols;
    QTest::newRow("20, 1:4") << 20 << "1:4" << symbols;
    QTest::newRow("20, none")<< 20 << ""    << symbols;
    QTest::newRow("no width")<<  0 << "1:4" << off;
    // clang-format on
}

void DataPathTest::widthAndRatioAllowCodings() {
    QFETCH(int, width);
    QFETCH(QString, ratio);
    QTEST(codings(width, ratio), "allowed");
}

void DataPathTest::blockCodings() {
    QVERIFY(isBlockCoding("64B66B"));
    QVERIFY(isBlockCoding("64B67B"));
    QVERIFY(!isBlockCoding("OFF"));
    QVERIFY(!isBlockCoding("8B10B"));
    QVERIFY(!isBlockCoding(""));
    QVERIFY(!isBlockCoding("64b66b"));
}

void DataPathTest::symbolsFitTensOnly() {
    for (int width = 0; width <= 32; ++width) {
        QCOMPARE(fits8B10B(width), width == 10 || width == 20);
    }
}

void DataPathTest::metaFrameLength_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("empty") << ""
                           << "32";
    QTest::newRow("1") << "1"
                       << "32";
    QTest::newRow("4") << "4"
                       << "32";
    QTest::newRow("5") << "5"
                       << "5";
    QTest::newRow("32") << "32"
                        << "32";
    QTest::newRow("2048") << "2048"
                          << "2048";
    QTest::newRow("16383") << "16383"
                           << "16383";
    QTest::newRow("16384") << "16384"
                           << "32";
    QTest::newRow("99999") << "99999"
                           << "32";
    QTest::newRow("no number") << "x"
                               << "32";
}

void DataPathTest::metaFrameLength() {
    QFETCH(QString, typed);
    QTEST(correctedMetaFrameLength(typed), "shown");
}

void DataPathTest::everyMetaFrameLength() {
    for (int length = 0; length <= 99999; ++length) {
        const QString typed = QString::number(length);
        const bool kept = length >= 5 && length <= 16383;
        QCOMPARE(correctedMetaFrameLength(typed), kept ? typed : QString("32"));
    }
}

void DataPathTest::bondingOpensItsPatterns_data() {
    QTest::addColumn<int>("words");
    QTest::addColumn<bool>("first");
    QTest::addColumn<bool>("second");
    QTest::addColumn<bool>("rest");
    QTest::newRow("None") << 0 << false << false << false;
    QTest::newRow("One Word") << 1 << true << false << false;
    QTest::newRow("Two Words") << 2 << true << true << false;
    QTest::newRow("from 3 on all") << 3 << true << true << true;
    QTest::newRow("Four Words") << 4 << true << true << true;
}

void DataPathTest::bondingOpensItsPatterns() {
    QFETCH(int, words);
    const BondingFields fields = bondingFields(words);
    QTEST(fields.first, "first");
    QTEST(fields.second, "second");
    QTEST(fields.rest, "rest");
}

void DataPathTest::correctionOpensItsPatterns_data() {
    QTest::addColumn<int>("data");
    QTest::addColumn<bool>("first");
    QTest::addColumn<bool>("second");
    QTest::newRow("None") << 0 << false << false;
    QTest::newRow("One Word") << 1 << true << false;
    QTest::newRow("2 is no choice") << 2 << true << false;
    QTest::newRow("Two Words") << 3 << true << true;
}

void DataPathTest::correctionOpensItsPatterns() {
    QFETCH(int, data);
    const CorrectionFields fields = correctionFields(data);
    QTEST(fields.first, "first");
    QTEST(fields.second, "second");
}

void DataPathTest::correctionClocksFollowTheLanes() {
    const QStringList one{"User", "TX"};
    const QStringList many{"User", "Quad", "TX"};
    for (int lanes = 0; lanes <= 8; ++lanes) {
        QCOMPARE(correctionClocks(lanes), lanes < 2 ? one : many);
    }
}

QTEST_APPLESS_MAIN(DataPathTest)
#include "datapath_test.moc"
