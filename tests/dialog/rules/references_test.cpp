// Reference sources, multiplexers, and which reference fields are open.

#include "dialog/rules/references.h"

#include <QtTest>

using namespace IPCUSTOMIZED;
using namespace IPCUSTOMIZED::rules;

namespace {

constexpr DeviceClass classes[] = {DeviceClass::K60, DeviceClass::K15, DeviceClass::K138};

const char* nameOf(DeviceClass device) {
    return device == DeviceClass::K60 ? "60k" : device == DeviceClass::K15 ? "15k" : "138k";
}

/// "source@frequency, ..." to settings.
std::vector<MuxSetting> settings(const QString& text) {
    std::vector<MuxSetting> muxes;
    for (const QString& mux : text.split(", ")) {
        const QStringList parts = mux.split('@');
        muxes.push_back({parts.at(0), parts.value(1)});
    }
    return muxes;
}

} // namespace

class ReferencesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sourceLists();
    void muxesOfQuad1();
    void muxNames_data();
    void muxNames();
    void openFields_data();
    void openFields();
    void routingItems_data();
    void routingItems();
    void frequencyIsBounded_data();
    void frequencyIsBounded();
    void recordedFrequencies_data();
    void recordedFrequencies();
    void muxFaults_data();
    void muxFaults();
    void everyPairConflicts();
};

void ReferencesTest::sourceLists() {
    QCOMPARE(muxCount(DeviceClass::K60), 4);
    QCOMPARE(muxCount(DeviceClass::K15), 2);
    QCOMPARE(muxCount(DeviceClass::K138), 2);
    const QStringList low{"NA", "Q0 REFCLK0", "Q0 REFCLK1", "Q0 REFIN0", "Q0 REFIN1"};
    const QStringList high{"NA", "Q0 REFCLK2", "Q0 REFCLK3"};
    QCOMPARE(muxSources(DeviceClass::K60, 0), low);
    QCOMPARE(muxSources(DeviceClass::K60, 1), low);
    QCOMPARE(muxSources(DeviceClass::K60, 2), high);
    QCOMPARE(muxSources(DeviceClass::K60, 3), high);
    const QStringList two{"NA", "Q0 REFCLK0", "Q0 REFCLK1"};
    const QStringList four{"NA", "Q0 REFCLK0", "Q0 REFCLK1", "Q1 REFCLK0", "Q1 REFCLK1"};
    for (int mux : {0, 1}) {
        QCOMPARE(muxSources(DeviceClass::K15, mux), two);
        QCOMPARE(muxSources(DeviceClass::K138, mux), four);
    }
    QCOMPARE(autoSources(DeviceClass::K60), (QStringList{"Q0 REFCLK0", "Q0 REFCLK1", "Q0 REFCLK2",
                                                         "Q0 REFCLK3", "Q0 REFIN0", "Q0 REFIN1"}));
    QCOMPARE(autoSources(DeviceClass::K15),
             (QStringList{"Q0 REFCLK0", "Q0 REFCLK1", "Q0 REFIN", "MCLK"}));
    QCOMPARE(autoSources(DeviceClass::K138),
             (QStringList{"Q0 REFCLK0", "Q0 REFCLK1", "Q1 REFCLK0", "Q1 REFCLK1"}));
    QCOMPARE(QString(defaultFrequency), QString("125"));
    QCOMPARE(QString(defaultInputFrequency), QString("50"));
}

void ReferencesTest::muxesOfQuad1() {
    const QStringList captions{"Q0 Lane0", "Q0 Lane1", "Q0 Lane2", "Q0 Lane3",
                               "Q1 Lane0", "Q1 Lane1", "Q1 Lane2", "Q1 Lane3"};
    for (unsigned set = 0; set < 256; ++set) {
        QStringList lanes;
        for (int i = 0; i < 8; ++i) {
            if ((set >> i & 1U) != 0) {
                lanes.append(captions.at(i));
            }
        }
        const bool onlyQuad1 = (set & 0x0F) == 0 && (set & 0xF0) != 0;
        QCOMPARE(usesQuad1Muxes(DeviceClass::K138, lanes), onlyQuad1);
        QVERIFY(!usesQuad1Muxes(DeviceClass::K60, lanes));
        QVERIFY(!usesQuad1Muxes(DeviceClass::K15, lanes));
    }
    QCOMPARE(muxHostName(false, 0), QString("Q0_MUX0"));
    QCOMPARE(muxHostName(false, 3), QString("Q0_MUX3"));
    QCOMPARE(muxHostName(true, 1), QString("Q1_MUX1"));
}

void ReferencesTest::muxNames_data() {
    QTest::addColumn<QString>("quad");
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("mux");
    QTest::newRow("quad0 0") << "quad0"
                             << "REFMUX0"
                             << "Q0_MUX0";
    QTest::newRow("quad0 1") << "quad0"
                             << "REFMUX1"
                             << "Q0_MUX1";
    QTest::newRow("quad0 2") << "quad0"
                             << "REFMUX2"
                             << "Q0_MUX2";
    QTest::newRow("quad0 3") << "quad0"
                             << "REFMUX3"
                             << "Q0_MUX3";
    QTest::newRow("quad0 4") << "quad0"
                             << "REFMUX4"
                             << "";
    QTest::newRow("quad0, anywhere") << "quad0"
                                     << "the MUX2 of it"
                                     << "Q0_MUX2";
    QTest::newRow("quad0, the first number counts") << "quad0"
                                                    << "MUX3 MUX1"
                                                    << "Q0_MUX1";
    QTest::newRow("quad0, case") << "quad0"
                                 << "refmux0"
                                 << "";
    QTest::newRow("quad0, input") << "quad0"
                                  << "GPIO"
                                  << "";
    QTest::newRow("quad0, empty") << "quad0"
                                  << ""
                                  << "";
    QTest::newRow("quad1 0") << "quad1"
                             << "REFMUX0"
                             << "Q1_MUX0";
    QTest::newRow("quad1 1") << "quad1"
                             << "REFMUX1"
                             << "Q1_MUX1";
    QTest::newRow("quad1 2") << "quad1"
                             << "REFMUX2"
                             << "";
    QTest::newRow("quad1 3") << "quad1"
                             << "REFMUX3"
                             << "";
    QTest::newRow("any other quad") << "quad7"
                                    << "REFMUX1"
                                    << "Q1_MUX1";
    QTest::newRow("no quad") << ""
                             << "REFMUX0"
                             << "Q1_MUX0";
}

void ReferencesTest::muxNames() {
    QFETCH(QString, quad);
    QFETCH(QString, option);
    QTEST(muxInQuad(quad, option), "mux");
}

void ReferencesTest::openFields_data() {
    QTest::addColumn<int>("device");
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("open");
    // clang-format off
    const struct { DeviceClass device; const char* operation; const char* mode; const char* open; }
    table[] = {
        {DeviceClass::K60,  "TX and RX", "Auto",   "auto"},
        {DeviceClass::K60,  "TX and RX", "Manual", "muxes pll rx"},
        {DeviceClass::K60,  "TX and RX", "",       "auto"},
        {DeviceClass::K60,  "",          "Auto",   "auto"},
        {DeviceClass::K60,  "",          "Manual", "muxes pll rx"},
        {DeviceClass::K60,  "",          "",       "auto"},
        {DeviceClass::K60,  "TX Only",   "Auto",   "auto"},
        {DeviceClass::K60,  "TX Only",   "Manual", "muxes pll"},
        {DeviceClass::K60,  "TX Only",   "",       "auto"},
        {DeviceClass::K60,  "RX Only",   "Auto",   "muxes rx"},
        {DeviceClass::K60,  "RX Only",   "Manual", "muxes rx"},
        {DeviceClass::K60,  "RX Only",   "",       "muxes rx"},
        {DeviceClass::K15,  "TX and RX", "Auto",   "auto"},
        {DeviceClass::K15,  "TX and RX", "Manual", "muxes inputs pll rx"},
        {DeviceClass::K15,  "TX and RX", "",       "auto"},
        {DeviceClass::K15,  "",          "Auto",   "auto"},
        {DeviceClass::K15,  "",          "Manual", "muxes inputs pll rx"},
        {DeviceClass::K15,  "",          "",       "auto"},
        {DeviceClass::K15,  "TX Only",   "Auto",   "auto"},
        {DeviceClass::K15,  "TX Only",   "Manual", "muxes inputs pll"},
        {DeviceClass::K15,  "TX Only",   "",       "auto"},
        {DeviceClass::K15,  "RX Only",   "Auto",   "muxes inputs pll rx"},
        {DeviceClass::K15,  "RX Only",   "Manual", "muxes inputs pll rx"},
        {DeviceClass::K15,  "RX Only",   "",       "muxes inputs pll rx"},
        // The class without operation modes is in none of them, whatever its hidden box says.
        {DeviceClass::K138, "TX and RX", "Auto",   "auto"},
        {DeviceClass::K138, "TX and RX", "Manual", "muxes pll rx"},
        {DeviceClass::K138, "TX and RX", "",       "auto"},
        {DeviceClass::K138, "",          "Auto",   "auto"},
        {DeviceClass::K138, "",          "Manual", "muxes pll rx"},
        {DeviceClass::K138, "",          "",       "auto"},
    };
    // clang-format on
    for (const auto& row : table) {
        QTest::addRow("%s, %s, %s", nameOf(row.device), row.operation, row.mode)
            << static_cast<int>(row.device) << row.operation << row.mode << row.open;
    }
}

void ReferencesTest::openFields() {
    QFETCH(int, device);
    QFETCH(QString, operation);
    QFETCH(QString, mode);
    const ReferenceFields fields =
        referenceFields(static_cast<DeviceClass>(device), operation, mode);
    QStringList open;
    const auto note = [&](bool isOpen, const char* name) {
        if (isOpen) {
            open.append(name);
        }
    };
    note(fields.autoFields, "auto");
    note(fields.muxes, "muxes");
    note(fields.inputs, "inputs");
    note(fields.pllSource, "pll");
    note(fields.rxSource, "rx");
    QTEST(open.join(' '), "open");
}

void ReferencesTest::routingItems_data() {
    QTest::addColumn<int>("device");
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("pll");
    QTest::addColumn<QString>("rx");
    const char* four = "REFMUX0 REFMUX1 REFMUX2 REFMUX3";
    const char* twoAndInputs = "REFMUX0 REFMUX1 GPIO MCLK";
    const auto row = [](DeviceClass device, const char* operation, const char* pll,
                        const char* rx) {
        QTest::addRow("%s, %s", nameOf(device), operation)
            << static_cast<int>(device) << operation << pll << rx;
    };
    row(DeviceClass::K60, "TX and RX", four, four);
    row(DeviceClass::K60, "", four, four);
    row(DeviceClass::K60, "TX Only", four, "");
    row(DeviceClass::K60, "RX Only", "REFMUX1", four);
    row(DeviceClass::K15, "TX and RX", twoAndInputs, twoAndInputs);
    row(DeviceClass::K15, "", twoAndInputs, twoAndInputs);
    row(DeviceClass::K15, "TX Only", twoAndInputs, twoAndInputs);
    row(DeviceClass::K15, "RX Only", "REFMUX1 REFMUX0 GPIO MCLK", twoAndInputs);
    row(DeviceClass::K138, "TX and RX", "REFMUX0 REFMUX1", "REFMUX0 REFMUX1");
    row(DeviceClass::K138, "", "REFMUX0 REFMUX1", "REFMUX0 REFMUX1");
}

void ReferencesTest::routingItems() {
    QFETCH(int, device);
    QFETCH(QString, operation);
    QTEST(pllSourceItems(static_cast<DeviceClass>(device), operation).join(' '), "pll");
    QTEST(rxSourceItems(static_cast<DeviceClass>(device), operation).join(' '), "rx");
}

void ReferencesTest::frequencyIsBounded_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("empty") << ""
                           << "125";
    QTest::newRow("0") << "0"
                       << "125";
    QTest::newRow("49.9") << "49.9"
                          << "125";
    QTest::newRow("49.99999999") << "49.99999999"
                                 << "125";
    QTest::newRow("50") << "50"
                        << "50";
    QTest::newRow("050") << "050"
                         << "050";
    QTest::newRow("156.25") << "156.25"
                            << "156.25";
    QTest::newRow("322.265625") << "322.265625"
                                << "322.265625";
    QTest::newRow("500") << "500"
                         << "500";
    QTest::newRow("500.00000000") << "500.00000000"
                                  << "500.00000000";
    QTest::newRow("500.00000001") << "500.00000001"
                                  << "125";
    QTest::newRow("500.1") << "500.1"
                           << "125";
    QTest::newRow("999") << "999"
                         << "125";
    QTest::newRow("no number") << "x"
                               << "125";
}

void ReferencesTest::frequencyIsBounded() {
    QFETCH(QString, typed);
    QTEST(correctedFrequency(typed), "shown");
}

void ReferencesTest::recordedFrequencies_data() {
    QTest::addColumn<double>("recorded");
    QTest::addColumn<QString>("field");
    QTest::addColumn<bool>("same");
    QTest::newRow("equal") << 125.0 << "125" << true;
    QTest::newRow("equal numbers") << 125.0 << "125.00" << true;
    QTest::newRow("other") << 125.0 << "156.25" << false;
    QTest::newRow("as the user typed it") << 322.265625 << "322.265625" << true;
    QTest::newRow("as a locked field shows it") << 322.265625 << "322.266" << true;
    QTest::newRow("seven digits are no six") << 322.265625 << "322.2656" << false;
    QTest::newRow("recorded in six digits") << 322.266 << "322.265625" << false;
    QTest::newRow("empty") << 125.0 << "" << false;
}

void ReferencesTest::recordedFrequencies() {
    QFETCH(double, recorded);
    QFETCH(QString, field);
    QTEST(sameFrequency(recorded, field), "same");
}

void ReferencesTest::muxFaults_data() {
    QTest::addColumn<int>("device");
    QTest::addColumn<QString>("muxes");
    QTest::addColumn<QString>("pll");
    QTest::addColumn<QString>("rx");
    QTest::addColumn<QString>("fault");
    const auto row = [](DeviceClass device, const char* muxes, const char* pll, const char* rx,
                        const char* fault) {
        QTest::addRow("%s | %s | %s | %s", nameOf(device), muxes, pll, rx)
            << static_cast<int>(device) << muxes << pll << rx << fault;
    };
    // clang-format off
    const DeviceClass k60 = DeviceClass::K60;
    row(k60, "NA@, NA@, NA@, NA@", "",        "",        "source");
    row(k60, "NA@, NA@, NA@, NA@", "REFMUX0", "REFMUX0", "source");
    row(k60, "Q0 REFCLK0@125, NA@, NA@, NA@", "",        "",        "none");
    row(k60, "Q0 REFCLK0@125, NA@, NA@, NA@", "REFMUX0", "REFMUX0", "none");
    row(k60, "Q0 REFCLK0@125, NA@, NA@, NA@", "REFMUX1", "REFMUX0", "source");
    row(k60, "Q0 REFCLK0@125, NA@, NA@, NA@", "REFMUX0", "REFMUX1", "source");
    row(k60, "Q0 REFCLK0@125, NA@, NA@, NA@", "REFMUX2", "REFMUX0", "source");
    row(k60, "Q0 REFCLK0@125, NA@, NA@, NA@", "REFMUX0", "REFMUX2", "source");
    row(k60, "Q0 REFCLK0@125, NA@, NA@, NA@", "REFMUX3", "REFMUX0", "source");
    row(k60, "Q0 REFCLK0@125, NA@, NA@, NA@", "REFMUX0", "REFMUX3", "source");
    row(k60, "NA@, NA@, NA@, Q0 REFCLK2@125", "REFMUX3", "REFMUX3", "none");
    row(k60, "NA@, NA@, NA@, Q0 REFCLK2@125", "REFMUX0", "REFMUX3", "source");
    row(k60, "NA@, NA@, NA@, Q0 REFCLK2@125", "REFMUX3", "",        "none");
    row(k60, "Q0 REFCLK0@100, Q0 REFCLK0@125, NA@, NA@", "REFMUX0", "REFMUX0", "frequency");
    row(k60, "Q0 REFCLK0@125, Q0 REFCLK0@125.0, NA@, NA@", "REFMUX0", "REFMUX1", "none");
    row(k60, "Q0 REFCLK0@100, Q0 REFCLK1@125, NA@, NA@", "REFMUX0", "REFMUX1", "none");
    row(k60, "Q0 REFCLK0@125, NA@, Q0 REFCLK2@100, Q0 REFCLK2@125", "REFMUX0", "REFMUX0", "frequency");
    // The source fault comes first.
    row(k60, "Q0 REFCLK0@100, Q0 REFCLK0@125, NA@, NA@", "REFMUX2", "REFMUX0", "source");
    // A multiplexer of another instance may show nothing: it is not "NA".
    row(k60, "@, NA@, NA@, NA@", "REFMUX0", "REFMUX0", "none");

    const DeviceClass k15 = DeviceClass::K15;
    row(k15, "NA@, NA@", "",        "",        "none");
    row(k15, "NA@, NA@", "GPIO",    "GPIO",    "none");
    row(k15, "NA@, NA@", "MCLK",    "REFMUX0", "none");
    row(k15, "NA@, NA@", "REFMUX0", "",        "source");
    row(k15, "NA@, NA@", "REFMUX1", "",        "source");
    row(k15, "Q0 REFCLK0@125, NA@", "REFMUX0", "REFMUX1", "none");
    row(k15, "Q0 REFCLK0@125, NA@", "REFMUX1", "REFMUX0", "source");
    row(k15, "NA@, Q0 REFCLK0@125", "REFMUX1", "REFMUX0", "none");
    row(k15, "NA@, Q0 REFCLK0@125", "REFMUX0", "REFMUX1", "source");
    row(k15, "Q0 REFCLK0@100, Q0 REFCLK0@125", "REFMUX0", "", "frequency");
    row(k15, "Q0 REFCLK0@100, Q0 REFCLK0@125", "GPIO",    "", "frequency");
    row(k15, "Q0 REFCLK0@100, Q0 REFCLK1@125", "REFMUX0", "", "none");
    row(k15, "Q0 REFCLK0@100, Q0 REFCLK0@100.00", "REFMUX0", "", "none");

    const DeviceClass k138 = DeviceClass::K138;
    row(k138, "NA@, NA@", "",        "",        "source");
    row(k138, "NA@, NA@", "REFMUX0", "REFMUX1", "source");
    row(k138, "Q0 REFCLK0@125, NA@", "REFMUX0", "REFMUX0", "none");
    row(k138, "Q0 REFCLK0@125, NA@", "REFMUX1", "REFMUX0", "source");
    row(k138, "Q0 REFCLK0@125, NA@", "REFMUX0", "REFMUX1", "source");
    row(k138, "NA@, Q1 REFCLK0@125", "REFMUX1", "REFMUX1", "none");
    row(k138, "NA@, Q1 REFCLK0@125", "REFMUX0", "REFMUX1", "source");
    row(k138, "Q1 REFCLK1@100, Q1 REFCLK1@125", "REFMUX0", "REFMUX1", "frequency");
    row(k138, "Q1 REFCLK1@125, Q1 REFCLK1@125", "REFMUX0", "REFMUX1", "none");
    row(k138, "Q1 REFCLK1@100, Q0 REFCLK1@125", "REFMUX0", "REFMUX1", "none");
    // clang-format on
}

void ReferencesTest::muxFaults() {
    QFETCH(int, device);
    QFETCH(QString, muxes);
    QFETCH(QString, pll);
    QFETCH(QString, rx);
    const MuxFault fault = muxFault(static_cast<DeviceClass>(device), settings(muxes), pll, rx);
    const QString name = fault == MuxFault::None     ? "none"
                         : fault == MuxFault::Source ? "source"
                                                     : "frequency";
    QTEST(name, "fault");
}

/// Each pair of multiplexers that share a source must agree on its frequency, each alone.
void ReferencesTest::everyPairConflicts() {
    for (const DeviceClass device : classes) {
        const auto count = static_cast<std::size_t>(muxCount(device));
        for (std::size_t n = 0; n < count; ++n) {
            for (std::size_t m = n + 1; m < count; ++m) {
                std::vector<MuxSetting> muxes;
                for (std::size_t i = 0; i < count; ++i) {
                    muxes.push_back({QString("source %1").arg(i), QString::number(100 + i)});
                }
                QVERIFY(muxFault(device, muxes, "REFMUX0", "REFMUX1") == MuxFault::None);
                muxes[m].source = muxes[n].source;
                QVERIFY(muxFault(device, muxes, "REFMUX0", "REFMUX1") == MuxFault::Frequency);
                muxes[m].frequency = muxes[n].frequency;
                QVERIFY(muxFault(device, muxes, "REFMUX0", "REFMUX1") == MuxFault::None);
            }
        }
    }
}

QTEST_APPLESS_MAIN(ReferencesTest)
#include "references_test.moc"
