// Transmit taps, the shared bias, and the analog lists.

#include "dialog/rules/analog.h"

#include <QtTest>

#include <algorithm>

using namespace IPCUSTOMIZED::rules;

namespace {

const QStringList captions{"Q0 Lane0", "Q0 Lane1", "Q0 Lane2", "Q0 Lane3",
                           "Q1 Lane0", "Q1 Lane1", "Q1 Lane2", "Q1 Lane3"};

/// The lanes of a set given as bits, in lane order.
QStringList lanesOf(unsigned set) {
    QStringList chosen;
    for (int i = 0; i < captions.size(); ++i) {
        if ((set >> i & 1U) != 0) {
            chosen.append(captions.at(i));
        }
    }
    return chosen;
}

} // namespace

class AnalogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tapsSumToForty();
    void theMainTapMustExceedTwenty();
    void biasComesFromTheOnlyQuad();
    void biasReachesTheOtherLanesOfUsedQuads();
    void biasNames_data();
    void biasNames();
    void swings();
    void thresholds();
    void depthsAreUnpaddedNumbers();
};

void AnalogTest::tapsSumToForty() {
    for (int cm = 0; cm <= 19; ++cm) {
        for (int c1 = 0; c1 <= 19; ++c1) {
            QCOMPARE(mainTap(cm, c1) + cm + c1, 40);
        }
    }
    QCOMPARE(mainTap(0, 0), 40);
    QCOMPARE(mainTap(19, 19), 2);
    QCOMPARE(mainTap(10, 9), 21);
}

void AnalogTest::theMainTapMustExceedTwenty() {
    int refused = 0;
    for (int cm = 0; cm <= 19; ++cm) {
        for (int c1 = 0; c1 <= 19; ++c1) {
            const bool valid = isMainTapValid(mainTap(cm, c1));
            QCOMPARE(valid, cm + c1 < 20);
            refused += valid ? 0 : 1;
        }
    }
    // cm = k leaves the c1 from 20 - k to 19: k of them, 0 + 1 + ... + 19.
    QCOMPARE(refused, 190);
    QVERIFY(!isMainTapValid(20));
    QVERIFY(isMainTapValid(21));
}

void AnalogTest::biasComesFromTheOnlyQuad() {
    for (unsigned set = 0; set < 256; ++set) {
        const bool quad0 = (set & 0x0F) != 0;
        const bool quad1 = (set & 0xF0) != 0;
        const BiasFrom expected = quad0 == quad1 ? BiasFrom::Default
                                  : quad0        ? BiasFrom::Quad0
                                                 : BiasFrom::Quad1;
        QVERIFY2(biasFrom(lanesOf(set)) == expected, qPrintable(lanesOf(set).join(',')));
    }
    QCOMPARE(defaultBias, 7);
    QCOMPARE(automaticAtt, 7);
    QCOMPARE(automaticBoost, 9);
}

void AnalogTest::biasReachesTheOtherLanesOfUsedQuads() {
    for (unsigned set = 0; set < 256; ++set) {
        unsigned reached = 0;
        reached |= (set & 0x0F) != 0 ? 0x0FU & ~set : 0U;
        reached |= (set & 0xF0) != 0 ? 0xF0U & ~set : 0U;
        QCOMPARE(lanesSharingBias(lanesOf(set)), lanesOf(reached));
    }
}

void AnalogTest::biasNames_data() {
    QTest::addColumn<QStringList>("selected");
    QTest::addColumn<QString>("others");
    QTest::newRow("none") << QStringList() << "";
    QTest::newRow("two of quad 0") << QStringList{"Q0 Lane0", "Q0 Lane1"} << "Q0 Lane2, Q0 Lane3";
    QTest::newRow("whole quad 0") << QStringList(captions.mid(0, 4)) << "";
    QTest::newRow("whole quad 1") << QStringList(captions.mid(4, 4)) << "";
    QTest::newRow("both whole") << captions << "";
    QTest::newRow("one of each") << QStringList{"Q0 Lane2", "Q1 Lane1"}
                                 << "Q0 Lane0, Q0 Lane1, Q0 Lane3, Q1 Lane0, Q1 Lane2, Q1 Lane3";
    QTest::newRow("whole and part") << QStringList(captions.mid(0, 5)) << "Q1 Lane1, Q1 Lane2, Q1 Lane3";
}

void AnalogTest::biasNames() {
    QFETCH(QStringList, selected);
    QTEST(lanesSharingBias(selected).join(", "), "others");
}

void AnalogTest::swings() {
    const QStringList expected{"180mV", "228mV", "276mV", "324mV", "372mV", "420mV",
                               "468mV", "516mV", "564mV", "612mV", "660mV", "708mV",
                               "756mV", "804mV", "852mV", "900mV"};
    QCOMPARE(millivolts(180, 900, 48), expected);
}

void AnalogTest::thresholds() {
    const QStringList expected{"25mV", "50mV", "75mV", "100mV", "125mV", "150mV", "175mV", "200mV"};
    QCOMPARE(millivolts(25, 200, 25), expected);
}

void AnalogTest::depthsAreUnpaddedNumbers() {
    const QStringList texts = depths();
    QCOMPARE(texts.size(), 32);
    QCOMPARE(texts.mid(0, 11).join(' '), QString("0 1 2 3 4 5 6 7 8 9 10"));
    QCOMPARE(texts.mid(11, 11).join(' '), QString("11 12 13 14 15 16 17 18 19 20 21"));
    QCOMPARE(texts.mid(22).join(' '), QString("22 23 24 25 26 27 28 29 30 31"));
}

QTEST_APPLESS_MAIN(AnalogTest)
#include "analog_test.moc"
