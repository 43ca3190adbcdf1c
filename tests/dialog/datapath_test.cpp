// Coding, word alignment, bonding and clock correction under a user's hands.

#include "harness.h"

#include <QtTest>

using namespace DialogTest;

namespace {

void addListed() {
    QTest::addColumn<QString>("device");
    QTest::newRow("60k") << "RZ7X-60B";
    QTest::newRow("15k") << "RZ7X-15A";
}

void addClasses() {
    addListed();
    QTest::newRow("138k") << "RZ7X-138";
}

} // namespace

class DataPathTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void widthAndRatioDecide_data();
    void widthAndRatioDecide();
    void metaFrameCoding_data() { addListed(); }
    void metaFrameCoding();
    void block66Coding_data() { addListed(); }
    void block66Coding();
    void transmitBlockCoding_data() { addListed(); }
    void transmitBlockCoding();
    void symbolsSurviveTens_data() { addListed(); }
    void symbolsSurviveTens();
    void metaFrameLength_data();
    void metaFrameLength();
    void oneWidthServesBoth_data();
    void oneWidthServesBoth();
    void wordAlignment_data() { addClasses(); }
    void wordAlignment();
    void maskAndPatternTexts();
    void receiveBonding_data();
    void receiveBonding();
    void receiveMasters();
    void transmitBonding_data() { addClasses(); }
    void transmitBonding();
    void clockCorrection_data();
    void clockCorrection();
    void clockSource();
    void correctionMaster();
    void mastersFollowTheLanes();
};

void DataPathTest::widthAndRatioDecide_data() {
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("width");
    QTest::addColumn<QString>("ratio");
    QTest::addColumn<QStringList>("items");
    for (const char* device : {"RZ7X-60B", "RZ7X-15A"}) {
        for (const char* width : {"8", "10", "16", "20"}) {
            for (const char* ratio : {"1:1", "1:2", "1:4"}) {
                QStringList items{"OFF"};
                const QString w = width;
                if (w == "10" || w == "20") {
                    items << "8B10B";
                } else if (w == "16" && QString(ratio) == "1:4") {
                    items << "64B66B"
                          << "64B67B";
                }
                QTest::addRow("%s %s %s", device, width, ratio)
                    << device << width << ratio << items;
            }
        }
    }
}

void DataPathTest::widthAndRatioDecide() {
    QFETCH(QString, device);
    QFETCH(QString, width);
    QFETCH(QString, ratio);
    QFETCH(QStringList, items);
    Bench bench(device);
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("comboBoxRXInternalDataWidth", width));
        QVERIFY(dialog.choose("comboBoxRXExternalDataRatio", ratio));
        QCOMPARE(dialog.items("comboBoxRxDecoding"), items);
        QCOMPARE(dialog.text("comboBoxRxDecoding"), QString("OFF"));
        // Each side by itself.
        QCOMPARE(dialog.items("comboBoxTxEncoding"), (QStringList{"OFF", "8B10B"}));
        QVERIFY(dialog.choose("comboBoxTXExternalDataRatio", ratio));
        QVERIFY(dialog.choose("comboBoxTXInternalDataWidth", width));
        QCOMPARE(dialog.items("comboBoxTxEncoding"), items);
        QCOMPARE(dialog.items("comboBoxRxDecoding"), items);
    });
    QVERIFY(bench.wasShown());
}

void DataPathTest::metaFrameCoding() {
    QFETCH(QString, device);
    Bench bench(device);
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("comboBoxRXInternalDataWidth", "16"));
        QVERIFY(dialog.choose("comboBoxRXExternalDataRatio", "1:4"));
        QVERIFY(dialog.choose("comboBoxRxDecoding", "64B67B"));
        QCOMPARE(dialog.text("lineEditRxInterMetaFrameLength"), QString("32"));
        QVERIFY(dialog.isUsable("lineEditRxInterMetaFrameLength"));
        QCOMPARE(dialog.text("comboBoxRXInternalDataWidth"), QString("16"));
        QCOMPARE(dialog.text("comboBoxRXExternalDataRatio"), QString("1:4"));
        QVERIFY(!dialog.isEnabled("comboBoxRXInternalDataWidth"));
        QVERIFY(!dialog.isEnabled("comboBoxRXExternalDataRatio"));
        QVERIFY(!dialog.isEnabled("comboBox64B66BMode"));
        QCOMPARE(dialog.combo("comboBox64B66BMode")->currentIndex(), -1);
        // The other side stays free.
        QVERIFY(dialog.isEnabled("comboBoxTXInternalDataWidth"));
        QVERIFY(dialog.choose("comboBoxRxDecoding", "OFF"));
        QCOMPARE(dialog.text("lineEditRxInterMetaFrameLength"), QString());
        QVERIFY(!dialog.isEnabled("lineEditRxInterMetaFrameLength"));
        QVERIFY(dialog.isEnabled("comboBoxRXInternalDataWidth"));
        QVERIFY(dialog.isEnabled("comboBoxRXExternalDataRatio"));
    });
    QVERIFY(bench.wasShown());
}

void DataPathTest::block66Coding() {
    QFETCH(QString, device);
    Bench bench(device);
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("comboBoxRXExternalDataRatio", "1:4"));
        QVERIFY(dialog.choose("comboBoxRXInternalDataWidth", "16"));
        QVERIFY(dialog.choose("comboBoxRxDecoding", "64B66B"));
        QVERIFY(dialog.isUsable("comboBox64B66BMode"));
        QCOMPARE(dialog.text("comboBox64B66BMode"), QString("10GBASER with FIFO"));
        QVERIFY(!dialog.isEnabled("lineEditRxInterMetaFrameLength"));
        QCOMPARE(dialog.text("lineEditRxInterMetaFrameLength"), QString());
        QVERIFY(dialog.choose("comboBox64B66BMode", "Async with FIFO"));
        QVERIFY(dialog.choose("comboBoxRxDecoding", "64B67B"));
        QCOMPARE(dialog.text("comboBox64B66BMode"), QString());
        QCOMPARE(dialog.text("lineEditRxInterMetaFrameLength"), QString("32"));
        QVERIFY(dialog.choose("comboBoxRxDecoding", "64B66B"));
        QCOMPARE(dialog.text("comboBox64B66BMode"), QString("10GBASER with FIFO"));
    });
    QVERIFY(bench.wasShown());
}

void DataPathTest::transmitBlockCoding() {
    QFETCH(QString, device);
    Bench bench(device);
    bench.create([&](Dialog& dialog) {
        for (const char* coding : {"64B66B", "64B67B"}) {
            QVERIFY(dialog.choose("comboBoxTXExternalDataRatio", "1:4"));
            QVERIFY(dialog.choose("comboBoxTXInternalDataWidth", "16"));
            QVERIFY(dialog.choose("comboBoxTxEncoding", coding));
            QVERIFY(!dialog.isEnabled("comboBoxTXInternalDataWidth"));
            QVERIFY(!dialog.isEnabled("comboBoxTXExternalDataRatio"));
            QVERIFY(dialog.isEnabled("comboBoxRXInternalDataWidth"));
            // The transmitter has no sub-mode and no meta frame.
            QVERIFY(!dialog.isEnabled("comboBox64B66BMode"));
            QVERIFY(!dialog.isEnabled("lineEditRxInterMetaFrameLength"));
            QVERIFY(dialog.choose("comboBoxTxEncoding", "OFF"));
            QVERIFY(dialog.isEnabled("comboBoxTXInternalDataWidth"));
            QVERIFY(dialog.isEnabled("comboBoxTXExternalDataRatio"));
            QCOMPARE(dialog.text("comboBoxTXInternalDataWidth"), QString("16"));
        }
    });
    QVERIFY(bench.wasShown());
}

void DataPathTest::symbolsSurviveTens() {
    QFETCH(QString, device);
    Bench bench(device);
    bench.create([&](Dialog& dialog) {
        for (const QString side : {"RX", "TX"}) {
            const QString width = "comboBox" + side + "InternalDataWidth";
            const QString coding = side == "RX" ? "comboBoxRxDecoding" : "comboBoxTxEncoding";
            QVERIFY(dialog.choose(coding, "8B10B"));
            QVERIFY(dialog.choose(width, "20"));
            QCOMPARE(dialog.text(coding), QString("8B10B"));
            QVERIFY(dialog.choose(width, "8"));
            QCOMPARE(dialog.text(coding), QString("OFF"));
            QVERIFY(dialog.choose(width, "10"));
            QCOMPARE(dialog.text(coding), QString("OFF"));
        }
    });
    QVERIFY(bench.wasShown());
}

void DataPathTest::metaFrameLength_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("4") << "4"
                       << "32";
    QTest::newRow("5") << "5"
                       << "5";
    QTest::newRow("16383") << "16383"
                           << "16383";
    QTest::newRow("16384") << "16384"
                           << "32";
    QTest::newRow("empty") << ""
                           << "32";
}

void DataPathTest::metaFrameLength() {
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    Bench bench("RZ7X-60B");
    bench.create([&](Dialog& dialog) {
        // While it is shut the rule leaves it alone.
        dialog.run("checkRXInterlakenMetaFrameLength");
        QCOMPARE(dialog.text("lineEditRxInterMetaFrameLength"), QString());
        QVERIFY(dialog.choose("comboBoxRXInternalDataWidth", "16"));
        QVERIFY(dialog.choose("comboBoxRXExternalDataRatio", "1:4"));
        QVERIFY(dialog.choose("comboBoxRxDecoding", "64B67B"));
        QVERIFY(dialog.type("lineEditRxInterMetaFrameLength", "100"));
        QVERIFY(dialog.type("lineEditRxInterMetaFrameLength", typed));
        QCOMPARE(dialog.text("lineEditRxInterMetaFrameLength"), shown);
    });
    QVERIFY(bench.wasShown());
}

void DataPathTest::oneWidthServesBoth_data() {
    QTest::addColumn<QString>("width");
    QTest::addColumn<bool>("open");
    QTest::newRow("8") << "8" << false;
    QTest::newRow("10") << "10" << true;
    QTest::newRow("16") << "16" << false;
    QTest::newRow("20") << "20" << true;
}

void DataPathTest::oneWidthServesBoth() {
    QFETCH(QString, width);
    QFETCH(bool, open);
    Bench bench("RZ7X-138");
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.check("checkBoxEncoding", true));
        QVERIFY(dialog.check("checkBoxDecoding", true));
        QVERIFY(dialog.choose("comboBoxInternalDataWidth", width));
        for (const char* box : {"checkBoxEncoding", "checkBoxDecoding"}) {
            QCOMPARE(dialog.isEnabled(box), open);
            QCOMPARE(dialog.box(box)->isChecked(), open);
        }
        // What a narrow width has unchecked stays unchecked.
        QVERIFY(dialog.choose("comboBoxInternalDataWidth", "20"));
        QVERIFY(dialog.isEnabled("checkBoxEncoding"));
        QCOMPARE(dialog.box("checkBoxEncoding")->isChecked(), open);
    });
    QVERIFY(bench.wasShown());
}

void DataPathTest::wordAlignment() {
    QFETCH(QString, device);
    Bench bench(device);
    bench.create([&](Dialog& dialog) {
        for (const bool on : {true, false, true}) {
            QVERIFY(dialog.check("WordAlignment", on));
            QCOMPARE(dialog.isEnabled("comboBoxPattern"), on);
            QCOMPARE(dialog.isEnabled("lineEditMask"), on);
            QCOMPARE(dialog.text("comboBoxPattern"), QString("K28.5"));
            QCOMPARE(dialog.text("lineEditMask"), QString("1111111111"));
        }
    });
    QVERIFY(bench.wasShown());
}

void DataPathTest::maskAndPatternTexts() {
    Bench bench("RZ7X-138");
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.check("WordAlignment", true));
        QVERIFY(dialog.type("lineEditMask", "0101010101"));
        QCOMPARE(dialog.text("lineEditMask"), QString("0101010101"));
        dialog.type("lineEditMask", "1"); // the rest is zeros
        QCOMPARE(dialog.text("lineEditMask"), QString("1000000000"));
        QVERIFY(!dialog.type("lineEditMask", "2222222222"));
        QVERIFY(dialog.choose("comboBoxRXChannelBoding", "One Word"));
        dialog.type("lineEditPattern0", "bc");
        QCOMPARE(dialog.text("lineEditPattern0"), QString("BC"));
        dialog.type("lineEditPattern0", "0f");
        QCOMPARE(dialog.text("lineEditPattern0"), QString("0F"));
    });
    QVERIFY(bench.wasShown());
}

void DataPathTest::receiveBonding_data() {
    QTest::addColumn<QString>("bonding");
    QTest::addColumn<int>("open"); // how far the groups of fields are open
    QTest::newRow("None") << "None" << 0;
    QTest::newRow("One Word") << "One Word" << 1;
    QTest::newRow("Two Words") << "Two Words" << 2;
    QTest::newRow("Four Words") << "Four Words" << 3;
}

void DataPathTest::receiveBonding() {
    QFETCH(QString, bonding);
    QFETCH(int, open);
    const QList<QStringList> groups{
        {"lineEditPattern0", "comboBoxPatternMaxSkew", "comboBoxRXReadStartDepth"},
        {"lineEditPattern1", "checkBoxPattern1Character"},
        {"lineEditPattern2", "lineEditPattern3", "checkBoxPattern2Character",
         "checkBoxPattern3Character"}};
    for (const char* device : {"RZ7X-60B", "RZ7X-15A", "RZ7X-138"}) {
        Bench bench(device);
        bench.create([&](Dialog& dialog) {
            QVERIFY(dialog.choose("comboBoxRXChannelBoding", "Four Words"));
            QVERIFY(dialog.choose("comboBoxRXChannelBoding", bonding));
            for (int group = 0; group < groups.size(); ++group) {
                for (const QString& name : groups.at(group)) {
                    QVERIFY2(dialog.isEnabled(name) == (group < open), qPrintable(name));
                }
            }
            QCOMPARE(dialog.isEnabled("comboBoxRXMasterChannelSelection"), open > 0);
        });
        QVERIFY(bench.wasShown());
    }
}

void DataPathTest::receiveMasters() {
    Bench bench("RZ7X-138");
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.check("q1_l2", true));
        QVERIFY(dialog.check("q0_l3", true));
        QVERIFY(dialog.check("q0_l1", true));
        QCOMPARE(dialog.items("comboBoxRXMasterChannelSelection"), QStringList());
        QVERIFY(dialog.choose("comboBoxRXChannelBoding", "One Word"));
        QCOMPARE(dialog.items("comboBoxRXMasterChannelSelection"),
                 (QStringList{"Q0 Lane1", "Q0 Lane3", "Q1 Lane2"}));
        QVERIFY(dialog.choose("comboBoxRXMasterChannelSelection", "Q1 Lane2"));
        // Another bonding starts the choice afresh.
        QVERIFY(dialog.choose("comboBoxRXChannelBoding", "Two Words"));
        QCOMPARE(dialog.text("comboBoxRXMasterChannelSelection"), QString("Q0 Lane1"));
        QVERIFY(dialog.choose("comboBoxRXChannelBoding", "None"));
        QCOMPARE(dialog.items("comboBoxRXMasterChannelSelection"), QStringList());
        // A lane that is checked but shut does not count.
        QVERIFY(dialog.choose("comboBoxRXChannelBoding", "One Word"));
        dialog.find("q0_l1")->setEnabled(false);
        dialog.run("updateRXMasterChannelSelection");
        QCOMPARE(dialog.items("comboBoxRXMasterChannelSelection"),
                 (QStringList{"Q0 Lane3", "Q1 Lane2"}));
        dialog.box("checkBoxTXChannelBoding")->setChecked(true);
        QCOMPARE(dialog.items("comboBoxTXMasterChannelSelection"),
                 (QStringList{"Q0 Lane3", "Q1 Lane2"}));
    });
    QVERIFY(bench.wasShown());
}

void DataPathTest::transmitBonding() {
    QFETCH(QString, device);
    Bench bench(device);
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.check("q0_l2", true));
        QVERIFY(dialog.check("q0_l0", true));
        QVERIFY(dialog.check("checkBoxTXChannelBoding", true));
        QVERIFY(dialog.isEnabled("comboBoxTXReadStartDepth"));
        QVERIFY(dialog.isEnabled("comboBoxTXMasterChannelSelection"));
        QCOMPARE(dialog.items("comboBoxTXMasterChannelSelection"),
                 (QStringList{"Q0 Lane0", "Q0 Lane2"}));
        QVERIFY(dialog.check("checkBoxTXChannelBoding", false));
        QVERIFY(!dialog.isEnabled("comboBoxTXReadStartDepth"));
        QVERIFY(!dialog.isEnabled("comboBoxTXMasterChannelSelection"));
        QCOMPARE(dialog.items("comboBoxTXMasterChannelSelection"), QStringList());
    });
    QVERIFY(bench.wasShown());
}

void DataPathTest::clockCorrection_data() {
    QTest::addColumn<QString>("correction");
    QTest::addColumn<bool>("first");
    QTest::addColumn<bool>("second");
    QTest::newRow("None") << "None" << false << false;
    QTest::newRow("One Word") << "One Word" << true << false;
    QTest::newRow("Two Words") << "Two Words" << true << true;
}

void DataPathTest::clockCorrection() {
    QFETCH(QString, correction);
    QFETCH(bool, first);
    QFETCH(bool, second);
    for (const char* device : {"RZ7X-60B", "RZ7X-15A", "RZ7X-138"}) {
        Bench bench(device);
        bench.create([&](Dialog& dialog) {
            QVERIFY(dialog.choose("comboBoxClockCorrection", "Two Words"));
            QVERIFY(dialog.choose("comboBoxClockCorrection", correction));
            QCOMPARE(dialog.isEnabled("comboBoxCTCReadStartDepth"), first);
            QCOMPARE(dialog.isEnabled("lineEditCTCPattern0"), first);
            QCOMPARE(dialog.isEnabled("lineEditCTCPattern1"), second);
            QCOMPARE(dialog.isEnabled("checkBoxCTCPattern1isK"), second);
            QCOMPARE(dialog.isEnabled("comboBoxMasterChannelSel"), first);
        });
        QVERIFY(bench.wasShown());
    }
}

void DataPathTest::clockSource() {
    Bench bench("RZ7X-60B");
    bench.create([&](Dialog& dialog) {
        const QStringList few{"User", "TX"};
        const QStringList many{"User", "Quad", "TX"};
        QCOMPARE(dialog.items("comboBoxClockSource"), few);
        QVERIFY(dialog.check("q0_l0", true));
        QCOMPARE(dialog.items("comboBoxClockSource"), few);
        QVERIFY(dialog.choose("comboBoxClockSource", "TX"));
        QVERIFY(dialog.check("q0_l1", true));
        QCOMPARE(dialog.items("comboBoxClockSource"), many);
        QCOMPARE(dialog.text("comboBoxClockSource"), QString("TX"));
        QVERIFY(dialog.choose("comboBoxClockSource", "Quad"));
        QVERIFY(dialog.check("q0_l2", true));
        QCOMPARE(dialog.text("comboBoxClockSource"), QString("Quad"));
        QVERIFY(dialog.check("q0_l2", false));
        QVERIFY(dialog.check("q0_l1", false));
        QCOMPARE(dialog.items("comboBoxClockSource"), few);
        QCOMPARE(dialog.text("comboBoxClockSource"), QString("User"));
    });
    QVERIFY(bench.wasShown());
}

void DataPathTest::correctionMaster() {
    Bench bench("RZ7X-138");
    bench.create([&](Dialog& dialog) {
        const QString master = "comboBoxMasterChannelSel";
        QVERIFY(dialog.check("q0_l1", true));
        QVERIFY(dialog.check("q1_l3", true));
        QCOMPARE(dialog.items(master), QStringList());
        QVERIFY(dialog.choose("comboBoxClockCorrection", "One Word"));
        QCOMPARE(dialog.items(master), (QStringList{"Q0 Lane1", "Q1 Lane3"}));
        QVERIFY(dialog.choose(master, "Q1 Lane3"));
        QVERIFY(dialog.choose("comboBoxClockCorrection", "Two Words"));
        QCOMPARE(dialog.text(master), QString("Q1 Lane3")); // this one is remembered
        QVERIFY(dialog.check("q0_l0", true));
        QCOMPARE(dialog.items(master), (QStringList{"Q0 Lane0", "Q0 Lane1", "Q1 Lane3"}));
        QCOMPARE(dialog.text(master), QString("Q1 Lane3"));
        QVERIFY(dialog.check("q1_l3", false));
        QCOMPARE(dialog.text(master), QString("Q0 Lane0"));
        QVERIFY(dialog.choose("comboBoxClockCorrection", "None"));
        QVERIFY(!dialog.isEnabled(master));
        QCOMPARE(dialog.items(master), QStringList());
        // This list takes the checked lanes, shut ones too.
        dialog.find("q0_l0")->setEnabled(false);
        QVERIFY(dialog.choose("comboBoxClockCorrection", "One Word"));
        QCOMPARE(dialog.items(master), (QStringList{"Q0 Lane0", "Q0 Lane1"}));
    });
    QVERIFY(bench.wasShown());
}

void DataPathTest::mastersFollowTheLanes() {
    Bench bench("RZ7X-60B");
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.check("q0_l1", true));
        QVERIFY(dialog.check("q0_l2", true));
        QVERIFY(dialog.check("checkBoxTXChannelBoding", true));
        QVERIFY(dialog.choose("comboBoxRXChannelBoding", "One Word"));
        QVERIFY(dialog.choose("comboBoxTXMasterChannelSelection", "Q0 Lane2"));
        QVERIFY(dialog.choose("comboBoxRXMasterChannelSelection", "Q0 Lane2"));
        // A lane change, a PLL change and a mode change put the first lane back.
        const auto change = [&](const std::function<bool()>& act) {
            QVERIFY(dialog.choose("comboBoxTXMasterChannelSelection", "Q0 Lane2"));
            QVERIFY(dialog.choose("comboBoxRXMasterChannelSelection", "Q0 Lane2"));
            QVERIFY(act());
            QCOMPARE(dialog.text("comboBoxTXMasterChannelSelection"), QString("Q0 Lane1"));
            QCOMPARE(dialog.text("comboBoxRXMasterChannelSelection"), QString("Q0 Lane1"));
        };
        change([&] { return dialog.check("q0_l3", true); });
        change([&] { return dialog.choose("CombBoxPLLSelection", "QPLL0"); });
        change([&] {
            return dialog.choose("comboBoxMode", "Manual") && dialog.choose("comboBoxMode", "Auto");
        });
    });
    QVERIFY(bench.wasShown());
}

QTEST_MAIN(DataPathTest)
#include "datapath_test.moc"
