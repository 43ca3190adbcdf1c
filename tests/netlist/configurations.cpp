#include "configurations.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

namespace {

QString laneKey(int lane) {
    return QStringLiteral("Q%1_LN%2").arg(lane / 4).arg(lane % 4);
}
QString laneCaption(int lane) {
    return QStringLiteral("Q%1 Lane%2").arg(lane / 4).arg(lane % 4);
}

QStringList split(const char* text) {
    return QString::fromLatin1(text).split(QLatin1Char('|'));
}

// clang-format off
enum : int { Class, Lanes, TxWidth, RxWidth, TxRatio, RxRatio, TxCoding, RxCoding, BlockMode,
             Align, Pattern, Bonding, TxBonding, Correction, ClockSource, Drp, Loopback, Pll,
             Operation, Rate };

const QList<CoveringArray::Option>& options() {
    static const QList<CoveringArray::Option> list{
        {QStringLiteral("class"), split("60k|15k|138k")},
        {QStringLiteral("lanes"), split("0|3|1 2|0 1 2 3|4|3 4|0 1 2 3 4 5 6 7")},
        {QStringLiteral("TX_INTERNAL_DATA_WIDTH"), split("8|10|16|20")},
        {QStringLiteral("RX_INTERNAL_DATA_WIDTH"), split("8|10|16|20")},
        {QStringLiteral("TX_EXTERNAL_DATA_RATIO"), split("1:1|1:2|1:4")},
        {QStringLiteral("RX_EXTERNAL_DATA_RATIO"), split("1:1|1:2|1:4")},
        {QStringLiteral("TX_ENCODING"), split("OFF|8B10B|64B66B|64B67B")},
        {QStringLiteral("RX_DECODING"), split("OFF|8B10B|64B66B|64B67B")},
        {QStringLiteral("64B66BMODE"), split("|10GBASER with FIFO|Async with FIFO")},
        {QStringLiteral("WORD_ALIGNMENT"), split("false|true")},
        {QStringLiteral("WAPATTERN0"), split("K28.0|K28.5|K23.7|K30.7")},
        {QStringLiteral("RX_CHANNEL_BONDING"), split("None|One Word|Two Words|Four Words")},
        {QStringLiteral("TX_CHANNEL_BONDING"), split("false|true")},
        {QStringLiteral("CLOCK_CORRECTION"), split("None|One Word|Two Words")},
        {QStringLiteral("CLOCK_CLKSOURCE"), split("User|Quad|TX")},
        {QStringLiteral("DRP_Ports"), split("false|true")},
        {QStringLiteral("Loopback_Mode"), split("OFF|LB_NES|LB_FES|LB_ENC")},
        {QStringLiteral("PLL_SELECTION"), split("QPLL0|QPLL1|CPLL")},
        {QStringLiteral("OPERATION_MODE"), split("TX and RX|TX Only|RX Only")},
        {QStringLiteral("rate"), split("0.5|1.25|10.3125")},
    };
    return list;
}
// clang-format on

QString value(const CoveringArray::Choice& choice, int option) {
    return options()[option].values[choice[option]];
}

QList<int> lanesOf(const QString& text) {
    QList<int> lanes;
    for (const QString& lane : text.split(QLatin1Char(' '))) {
        lanes.append(lane.toInt());
    }
    return lanes;
}

bool codingFits(const QString& coding, const QString& width, const QString& ratio, bool listed) {
    if (coding == QLatin1String("8B10B")) {
        return width == QLatin1String("10") || width == QLatin1String("20");
    }
    return coding == QLatin1String("OFF") ||
           (listed && width == QLatin1String("16") && ratio == QLatin1String("1:4"));
}

/// What the dialog's data-path rules leave possible.
bool possible(const CoveringArray::Choice& choice) {
    const bool listed = value(choice, Class) != QLatin1String("138k");
    const QList<int> lanes = lanesOf(value(choice, Lanes));
    if (listed && lanes.last() > 3) {
        return false;
    }
    if (!listed && choice[TxWidth] != choice[RxWidth]) {
        return false; // one width for both directions
    }
    // The block mode has a value exactly while it matters.
    const bool blocks = value(choice, RxCoding) == QLatin1String("64B66B");
    return codingFits(value(choice, TxCoding), value(choice, TxWidth), value(choice, TxRatio),
                      listed) &&
           codingFits(value(choice, RxCoding), value(choice, RxWidth), value(choice, RxRatio),
                      listed) &&
           blocks == (choice[BlockMode] != 0) &&
           (lanes.size() > 1 || value(choice, ClockSource) != QLatin1String("Quad"));
}

Configuration configurationOf(const CoveringArray::Choice& choice, int number) {
    QJsonObject changes;
    for (int i = TxWidth; i <= Operation; ++i) {
        const QString text = value(choice, i);
        const bool truth = text == QLatin1String("true") || text == QLatin1String("false");
        changes[options()[i].name] =
            truth ? QJsonValue(text == QLatin1String("true")) : QJsonValue(text);
    }
    changes[QStringLiteral("TX_RATE")] = value(choice, Rate);
    changes[QStringLiteral("RX_RATE")] = value(choice, Rate);
    changes[QStringLiteral("TX_RATE_RATIO")] =
        QString::fromLatin1(value(choice, Rate) == QLatin1String("0.5") ? "4x" : "NA");
    return configuration(QStringLiteral("c%1").arg(number, 3, 10, QLatin1Char('0')),
                         value(choice, Class), lanesOf(value(choice, Lanes)), changes);
}

} // namespace

Configuration configuration(const QString& name, const QString& deviceClass,
                            const QList<int>& lanes, const QJsonObject& changes) {
    QFile file(QStringLiteral(SOURCE_DIR "/tests/golden/") + deviceClass +
               QStringLiteral("_one_lane/case.json"));
    const bool opened = file.open(QIODevice::ReadOnly);
    Q_ASSERT(opened);
    const QJsonObject base =
        QJsonDocument::fromJson(opened ? file.readAll() : QByteArray()).object();
    QJsonObject config = base[QStringLiteral("config")].toObject();
    QJsonArray recorded;
    for (int lane = 0; lane < 8; ++lane) {
        config[laneKey(lane)] = lanes.contains(lane);
        if (lanes.contains(lane)) {
            recorded.append(laneCaption(lane));
        }
    }
    config[QStringLiteral("recordlanes")] = recorded;
    const QString master = laneCaption(lanes.last());
    for (const char* key :
         {"RX_MASTER_CHANNEL_SELECTION", "TX_MASTER_CHANNEL_SELECTION", "CLOCK_MASTERCHANNELSEL"}) {
        config[QLatin1String(key)] = master;
    }
    // K28.3, as the dialog's own defaults.
    for (const char* key : {"PATTERN0", "CTC_PATTERN0", "CTC_PATTERN1"}) {
        config[QLatin1String(key)] = QStringLiteral("7C");
    }
    config[QStringLiteral("CTC_PATTERN1_IS_K")] = true;
    for (auto it = changes.begin(); it != changes.end(); ++it) {
        config[it.key()] = it.value();
    }
    const bool align = config[QStringLiteral("WORD_ALIGNMENT")].toBool();
    config[QStringLiteral("ENBALE_WAPATTERN0")] = align;
    config[QStringLiteral("ENABLE_MASK0")] = align;
    // The large devices have one width and switches for the coding.
    config[QStringLiteral("INTERNAL_DATA_WIDTH")] =
        config[QStringLiteral("TX_INTERNAL_DATA_WIDTH")];
    config[QStringLiteral("ENABLE_ENCODING")] =
        config[QStringLiteral("TX_ENCODING")].toString() == QLatin1String("8B10B");
    config[QStringLiteral("ENABLE_DECODING")] =
        config[QStringLiteral("RX_DECODING")].toString() == QLatin1String("8B10B");
    if (config[QStringLiteral("RX_DECODING")].toString() == QLatin1String("64B67B")) {
        config[QStringLiteral("RX_INTERLAKEN_META_FRAME_LENGTH")] = QStringLiteral("32");
    }
    return {name, base[QStringLiteral("device")].toString(), config};
}

CoveringArray coveringArray() {
    return {options(), possible, 20260101U};
}

QList<Configuration> coveringConfigurations(CoveringArray* array,
                                            QList<CoveringArray::Choice>* choices) {
    *choices = array->choices(300);
    QList<Configuration> list;
    for (const CoveringArray::Choice& choice : qAsConst(*choices)) {
        list.append(configurationOf(choice, list.size()));
    }
    return list;
}

QMap<QString, Port> expectedPorts(const Configuration& configuration) {
    struct Row {
        const char* name;
        int bits;
        bool output;
    };
    // clang-format off
    static const Row always[] = {
        {"ready_o", 1, true}, {"pll_lock_o", 1, true}, {"rx_cdr_lock_o", 1, true},
        {"signal_detect_o", 1, true}, {"refclk_o", 1, true}, {"pcs_tx_rst_i", 1, false},
        {"pcs_rx_rst_i", 1, false}, {"pma_rstn_i", 1, false}, {"rx_valid_o", 1, true},
        {"tx_clk_i", 1, false}, {"tx_pcs_clkout_o", 1, true}, {"rx_clk_i", 1, false},
        {"rx_pcs_clkout_o", 1, true}};
    static const Row rxBlock[] = {
        {"rx_her_hi_o", 1, true}, {"rx_ctc_del_o", 2, true}, {"rx_ctc_ins_o", 2, true},
        {"rx_invld_header_o", 1, true}, {"rx_dscr_err_o", 1, true}, {"rx_dec_err_o", 1, true},
        {"rx_blk_lock_o", 1, true}, {"rxd_o", 64, true}, {"rxc_o", 8, true}};
    static const Row rxFifo[] = {
        {"rx_fifo_empty_o", 1, true}, {"rx_fifo_aempty_o", 1, true},
        {"rx_fifo_rdusewd_o", 5, true}, {"rx_fifo_rden_i", 1, false}, {"rx_data_o", 88, true}};
    static const Row txBlock[] = {
        {"tx_invld_blk_o", 1, true}, {"tx_ctrl_i", 3, false}, {"tx_fetch_o", 1, true},
        {"txd_i", 64, false}, {"txc_i", 8, false}};
    // The data input is drawn among the outputs; in the module it is an input.
    static const Row txFifo[] = {
        {"tx_fifo_full_o", 1, true}, {"tx_fifo_afull_o", 1, true},
        {"tx_fifo_wrusewd_o", 5, true}, {"tx_fifo_wren_i", 1, false}, {"tx_data_i", 80, false}};
    static const Row correction[] = {{"cc_clk_i", 1, false}};
    static const Row bonding[] = {{"cb_start_i", 1, false}};
    static const Row alignment[] = {{"word_align_link_o", 1, true}, {"k_lock_o", 1, true}};
    static const Row reconfiguration[] = {
        {"drp_clk_o", 1, true}, {"drp_addr_i", 24, false}, {"drp_wren_i", 1, false},
        {"drp_wrdata_i", 32, false}, {"drp_strb_i", 8, false}, {"drp_rden_i", 1, false},
        {"drp_ready_o", 1, true}, {"drp_rdvld_o", 1, true}, {"drp_rddata_o", 32, true},
        {"drp_resp_o", 1, true}};
    // clang-format on
    QMap<QString, Port> ports;
    QString prefix;
    const auto add = [&](const auto& rows) {
        for (const Row& row : rows) {
            ports.insert(prefix + QLatin1String(row.name), {row.bits, row.output});
        }
    };
    const auto text = [&](const char* key) {
        return configuration.config[QLatin1String(key)].toString();
    };
    const auto isBlock = [](const QString& coding) {
        return coding.startsWith(QLatin1String("64B"));
    };
    const bool all = configuration.device == QLatin1String("RZ7X-138");
    for (int lane = 0; lane < 8; ++lane) {
        if (!configuration.config[laneKey(lane)].toBool()) {
            continue;
        }
        prefix = laneKey(lane).toLower() + QLatin1Char('_');
        add(always);
        if (all || isBlock(text("RX_DECODING"))) {
            add(rxBlock);
        }
        if (all || !isBlock(text("RX_DECODING"))) {
            add(rxFifo);
        }
        if (all || isBlock(text("TX_ENCODING"))) {
            add(txBlock);
        }
        if (all || !isBlock(text("TX_ENCODING"))) {
            add(txFifo);
        }
        if (text("CLOCK_CORRECTION") != QLatin1String("None")) {
            add(correction);
        }
        if (text("RX_CHANNEL_BONDING") != QLatin1String("None")) {
            add(bonding);
        }
        if (configuration.config[QStringLiteral("WORD_ALIGNMENT")].toBool()) {
            add(alignment);
        }
    }
    prefix.clear();
    if (configuration.config[QStringLiteral("DRP_Ports")].toBool()) {
        add(reconfiguration);
    }
    return ports;
}

QByteArray emitAll(const QList<Configuration>& configurations, const QString& folder) {
    QFile batch(folder + QStringLiteral("/batch.jsonl"));
    if (!batch.open(QIODevice::WriteOnly)) {
        return batch.errorString().toUtf8();
    }
    for (const Configuration& one : configurations) {
        const QJsonObject line{{QStringLiteral("name"), one.name},
                               {QStringLiteral("device"), one.device},
                               {QStringLiteral("config"), one.config}};
        batch.write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
    }
    batch.close();
    QProcess ipgen;
    ipgen.setProcessChannelMode(QProcess::MergedChannels);
    ipgen.start(QStringLiteral(BUILD_DIR "/bin/ipgen"),
                {QStringLiteral("emit"), QStringLiteral("--batch"), batch.fileName(),
                 QStringLiteral("--out"), folder, QStringLiteral("--report"),
                 folder + QStringLiteral("/report.jsonl"), QStringLiteral("--jobs"),
                 QStringLiteral("2")});
    if (!ipgen.waitForFinished(120000)) {
        return ipgen.errorString().toUtf8();
    }
    return ipgen.exitCode() == 0 ? QByteArray() : ipgen.readAll();
}
