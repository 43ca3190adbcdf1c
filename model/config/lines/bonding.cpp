// Receive and transmit channel bonding.

#include "model/config/keys.h"
#include "model/config/lanes.h"
#include "model/config/lines/catalogue.h"
#include "model/config/values.h"

namespace IPCUSTOMIZED {

namespace {

/// The lane's index 0 ... 7 that the option names; 0 when it names none.
QString masterIndex(const LineSource& source, QLatin1String key) {
    const Lane* lane = laneByCaption(source.config.text(key));
    return QString::number(lane != nullptr ? laneIndex(*lane) : 0);
}

LineValue rxMasterIndex() {
    return computed([](const LineSource& s) { return masterIndex(s, Key::RxMasterChannel); });
}

LineValue txMasterIndex() {
    return computed([](const LineSource& s) {
        return s.config.flag(Key::TxChannelBonding) ? masterIndex(s, Key::TxMasterChannel)
                                                    : QStringLiteral("0");
    });
}

std::optional<QString> rxMasterPrefix(const LineSource& source) {
    const Lane* lane = laneByCaption(source.config.text(Key::RxMasterChannel));
    return lane != nullptr ? std::optional<QString>(lane->prefix) : std::nullopt;
}

/// Empty for an unknown master: its lines are written all the same.
QString txMasterPrefix(const LineSource& source) {
    const Lane* lane = laneByCaption(source.config.text(Key::TxMasterChannel));
    return lane != nullptr ? QString(lane->prefix) : QString();
}

bool isRxBonded(const LineSource& source) {
    return source.config.is(Key::RxChannelBonding, Value::OneWord) ||
           source.config.is(Key::RxChannelBonding, Value::TwoWords) ||
           source.config.is(Key::RxChannelBonding, Value::FourWords);
}

QString bondingClock(const LineSource& source) {
    return source.config.takesQuadClock() ? QStringLiteral("quad_rx_clk")
                                          : QStringLiteral("lane_rx_clk");
}

} // namespace

// clang-format off

Lines rxBondingScriptLines()
{
    return {
        S("%1_channel_bonding %2", choose(Key::RxChannelBonding, {
            {Value::None,      "disable"},
            {Value::OneWord,   "enable"},
            {Value::TwoWords,  "enable"},
            {Value::FourWords, "enable"},
        })),
        S("%1_channel_bonding_align_length %2", choose(Key::RxChannelBonding, {
            {Value::None,      "1"},
            {Value::OneWord,   "1"},
            {Value::TwoWords,  "2"},
            {Value::FourWords, "4"},
        })),
        S("%1_channel_bonding_master_sel %2",             rxMasterPrefix),
        S("%1_channel_bonding_align_pattern %2",          text(Key::Pattern0)),
        S("%1_2nd_channel_bonding_align_pattern %2",      text(Key::Pattern1)),
        S("%1_3rd_channel_bonding_align_pattern %2",      text(Key::Pattern2)),
        S("%1_4th_channel_bonding_align_pattern %2",      text(Key::Pattern3)),
        S("%1_2nd_channel_bonding_align_pattern_is_k %2", either(Key::Pattern1IsK, "true", "false")),
        S("%1_3rd_channel_bonding_align_pattern_is_k %2", either(Key::Pattern2IsK, "true", "false")),
        S("%1_4th_channel_bonding_align_pattern_is_k %2", either(Key::Pattern3IsK, "true", "false")),
        S("%1_channel_bonding_max_skew %2",               text(Key::PatternMaxSkew)),
        S("%1_rx_bonding_rd_start_depth %2",              text(Key::RxReadStartDepth)),
    };
}

Lines rxBondingClockLines()
{
    return {
        S("%1_rx_bonding_clk_src_sel %2",                  computed(bondingClock)),
        P("parameter %1_rx_bonding_clk_src_sel = \"%2\";", computed(bondingClock)),
    };
}

Lines txBondingScriptLines()
{
    return {
        S("%1_tx_if_mst_sel %2",        when(isTrue(Key::TxChannelBonding), computed(txMasterPrefix))),
        S("%1_tx_if_rd_start_depth %2", when(isTrue(Key::TxChannelBonding), text(Key::TxReadStartDepth))),
        // The master's define, not the lane's: every lane of the bond repeats it.
        of(LineSubject::TxMasterKey,
           D("`define %1_TX_IF_BONDING", when(isTrue(Key::TxChannelBonding)))),
    };
}

Lines rxBondingParameterLines()
{
    return {
        P("parameter %1_channel_bonding = %2;",                          computed([](const LineSource& s) {
            return isRxBonded(s) ? QStringLiteral("1") : QStringLiteral("0"); })),
        D("`define %1_CHANNEL_BONDING",                                  when(isRxBonded)),
        P("parameter %1_channel_bounding_master_sel = %2;",              rxMasterIndex()),
        D("`define %1_CHANNEL_BONDING_MASTER_SEL %2",                    rxMasterIndex()),
        P("parameter %1_channel_bonding_align_pattern = 8'h%2;",         text(Key::Pattern0)),
        P("parameter %1_2nd_channel_bonding_align_pattern = 8'h%2;",     text(Key::Pattern1)),
        P("parameter %1_2nd_channel_bonding_align_pattern_is_k = %2;",   bit(Key::Pattern1IsK)),
        P("parameter %1_3rd_channel_bonding_align_pattern = 8'h%2;",     text(Key::Pattern2)),
        P("parameter %1_3nd_channel_bonding_align_pattern_is_k = %2;",   bit(Key::Pattern2IsK)),
        P("parameter %1_4th_channel_bonding_align_pattern = 8'h%2;",     text(Key::Pattern3)),
        P("parameter %1_4nd_channel_bonding_align_pattern_is_k = %2;",   bit(Key::Pattern3IsK)),
        P("parameter %1_channel_bonding_max_skew = %2;",                 text(Key::PatternMaxSkew)),
        P("parameter %1_rx_bonding_rd_start_depth = %2;",                text(Key::RxReadStartDepth)),
    };
}

Lines txBondingParameterLines()
{
    return {
        P("parameter %1_tx_if_mst_sel = %2;",        txMasterIndex()),
        D("`define %1_TX_IF_MST_SEL %2",             txMasterIndex()),
        P("parameter %1_tx_if_rd_start_depth = %2;", text(Key::TxReadStartDepth)),
    };
}

// clang-format on

} // namespace IPCUSTOMIZED
