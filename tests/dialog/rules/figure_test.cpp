// The port figure: every pin with direction, bus flag and side, in order.

#include "dialog/rules/figure.h"

#include <QtTest>

using namespace IPCUSTOMIZED;
using rules::figurePins;
using rules::FigureState;

namespace {

// One pin a word: its name without the lane prefix, behind "o" (output, right), "O" (the same, a
// bus), "i" (input, left) or "I" (the same, a bus).
using Group = const char*;
constexpr Group groupA = "o ready_o o pll_lock_o o rx_cdr_lock_o o signal_detect_o o refclk_o "
                         "i pcs_tx_rst_i i pcs_rx_rst_i i pma_rstn_i o rx_valid_o i tx_clk_i "
                         "o tx_pcs_clkout_o i rx_clk_i o rx_pcs_clkout_o";
constexpr Group groupR64 =
    "o rx_her_hi_o O rx_ctc_del_o[1:0] O rx_ctc_ins_o[1:0] o rx_invld_header_o o rx_dscr_err_o "
    "o rx_dec_err_o o rx_blk_lock_o O rxd_o[63:0] O rxc_o[7:0]";
constexpr Group groupRF = "o rx_fifo_empty_o o rx_fifo_aempty_o O rx_fifo_rdusewd_o[4:0] "
                          "i rx_fifo_rden_i O rx_data_o[87:0]";
constexpr Group groupT64 =
    "o tx_invld_blk_o I tx_ctrl_i[2:0] o tx_fetch_o I txd_i[63:0] I txc_i[7:0]";
// The transmit data stands among the outputs.
constexpr Group groupTF = "o tx_fifo_full_o o tx_fifo_afull_o O tx_fifo_wrusewd_o[4:0] "
                          "i tx_fifo_wren_i O tx_data_i[79:0]";
constexpr Group correction = "i cc_clk_i";
constexpr Group bonding = "i cb_start_i";
constexpr Group alignment = "o word_align_link_o o k_lock_o";
constexpr Group drp = "o drp_clk_o I drp_addr_i[23:0] i drp_wren_i I drp_wrdata_i[31:0] "
                      "I drp_strb_i[7:0] i drp_rden_i o drp_ready_o o drp_rdvld_o "
                      "O drp_rddata_o[31:0] o drp_resp_o";

void append(QStringList& pins, Group group, const QString& lane) {
    const QStringList words = QString::fromLatin1(group).split(' ');
    for (int i = 0; i + 1 < words.size(); i += 2) {
        const QString kind = words.at(i);
        const bool output = kind.toLower() == "o";
        const bool bus = kind == kind.toUpper();
        const QString prefix = lane.isEmpty() ? QString() : lane + "_";
        pins.append(prefix + words.at(i + 1) + (output ? " 1" : " 0") + (bus ? " bus" : "") +
                    (output ? " right" : " left"));
    }
}

QStringList shown(const FigureState& state) {
    QStringList pins;
    for (const Utils::PinFigure& pin : figurePins(state)) {
        const QString side = pin.alignment() == Qt::AlignRight  ? " right"
                             : pin.alignment() == Qt::AlignLeft ? " left"
                                                                : " elsewhere";
        pins.append(pin.name() + ' ' + QString::number(pin.direction()) +
                    (pin.isBus() ? " bus" : "") + side);
    }
    return pins;
}

} // namespace

class FigureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void groupsFollowDeviceAndCoding_data();
    void groupsFollowDeviceAndCoding();
    void optionalPinsComeAfterTheDataPath_data();
    void optionalPinsComeAfterTheDataPath();
    void nothingChecked();
    void reconfigurationAlone();
    void lanesInOrderAndOneReconfigurationPort();
    void countsOfTheStatedCase();
};

void FigureTest::groupsFollowDeviceAndCoding_data() {
    QTest::addColumn<int>("device");
    QTest::addColumn<QString>("rx");
    QTest::addColumn<QString>("tx");
    QTest::addColumn<QString>("groups");
    for (const DeviceClass device : {DeviceClass::K60, DeviceClass::K15}) {
        for (const char* rx : {"OFF", "8B10B", "64B66B", "64B67B", ""}) {
            for (const char* tx : {"OFF", "8B10B", "64B66B", "64B67B", ""}) {
                const auto fifo = [](const QString& coding) {
                    return coding == "OFF" || coding == "8B10B";
                };
                QTest::addRow("%s, rx %s, tx %s", device == DeviceClass::K60 ? "60k" : "15k", rx,
                              tx)
                    << static_cast<int>(device) << rx << tx
                    << QString(fifo(rx) ? "RF" : "R64") + (fifo(tx) ? " TF" : " T64");
            }
        }
    }
    for (const char* coding : {"OFF", "8B10B", "64B66B", "64B67B", ""}) {
        QTest::addRow("138k, %s", coding)
            << static_cast<int>(DeviceClass::K138) << coding << coding << "R64 RF T64 TF";
    }
}

void FigureTest::groupsFollowDeviceAndCoding() {
    QFETCH(int, device);
    QFETCH(QString, rx);
    QFETCH(QString, tx);
    QFETCH(QString, groups);
    FigureState state;
    state.device = static_cast<DeviceClass>(device);
    state.lanePrefixes = QStringList{"q0_ln2"};
    state.rxDecoding = rx;
    state.txEncoding = tx;
    const QMap<QString, Group> byName{
        {"R64", groupR64}, {"RF", groupRF}, {"T64", groupT64}, {"TF", groupTF}};
    QStringList expected;
    append(expected, groupA, "q0_ln2");
    for (const QString& name : groups.split(' ')) {
        append(expected, byName.value(name), "q0_ln2");
    }
    QCOMPARE(shown(state), expected);
}

void FigureTest::optionalPinsComeAfterTheDataPath_data() {
    QTest::addColumn<bool>("cc");
    QTest::addColumn<bool>("cb");
    QTest::addColumn<bool>("align");
    for (int bits = 0; bits < 8; ++bits) {
        QTest::addRow("correction %d, bonding %d, alignment %d", bits & 1, bits >> 1 & 1,
                      bits >> 2 & 1)
            << ((bits & 1) != 0) << ((bits & 2) != 0) << ((bits & 4) != 0);
    }
}

void FigureTest::optionalPinsComeAfterTheDataPath() {
    QFETCH(bool, cc);
    QFETCH(bool, cb);
    QFETCH(bool, align);
    FigureState state;
    state.device = DeviceClass::K15;
    state.lanePrefixes = QStringList{"q0_ln0"};
    state.rxDecoding = state.txEncoding = "OFF";
    state.clockCorrection = cc;
    state.rxBonding = cb;
    state.wordAlignment = align;
    QStringList expected;
    append(expected, groupA, "q0_ln0");
    append(expected, groupRF, "q0_ln0");
    append(expected, groupTF, "q0_ln0");
    if (cc) {
        append(expected, correction, "q0_ln0");
    }
    if (cb) {
        append(expected, bonding, "q0_ln0");
    }
    if (align) {
        append(expected, alignment, "q0_ln0");
    }
    QCOMPARE(shown(state), expected);
}

void FigureTest::nothingChecked() {
    FigureState state;
    QVERIFY(figurePins(state).isEmpty());
    state.clockCorrection = state.rxBonding = state.wordAlignment = true;
    QVERIFY(figurePins(state).isEmpty());
}

void FigureTest::reconfigurationAlone() {
    FigureState state;
    state.drp = true;
    QStringList expected;
    append(expected, drp, QString());
    QCOMPARE(expected.size(), 10);
    QCOMPARE(shown(state), expected);
}

void FigureTest::lanesInOrderAndOneReconfigurationPort() {
    FigureState state;
    state.device = DeviceClass::K138;
    state.lanePrefixes = QStringList{"q0_ln3", "q1_ln0"};
    state.rxBonding = true;
    state.drp = true;
    QStringList expected;
    for (const char* lane : {"q0_ln3", "q1_ln0"}) {
        for (const Group group : {groupA, groupR64, groupRF, groupT64, groupTF, bonding}) {
            append(expected, group, lane);
        }
    }
    append(expected, drp, QString());
    QCOMPARE(shown(state), expected);
}

void FigureTest::countsOfTheStatedCase() {
    FigureState state;
    state.device = DeviceClass::K60;
    state.lanePrefixes = QStringList{"q0_ln0"};
    state.rxDecoding = "64B66B";
    state.txEncoding = "8B10B";
    const QStringList pins = shown(state);
    QCOMPARE(pins.size(), 13 + 9 + 5);
    QCOMPARE(pins.at(0), QString("q0_ln0_ready_o 1 right"));
    QCOMPARE(pins.at(13), QString("q0_ln0_rx_her_hi_o 1 right"));
    QCOMPARE(pins.at(22), QString("q0_ln0_tx_fifo_full_o 1 right"));
    QCOMPARE(pins.at(26), QString("q0_ln0_tx_data_i[79:0] 1 bus right"));
}

QTEST_APPLESS_MAIN(FigureTest)
#include "figure_test.moc"
