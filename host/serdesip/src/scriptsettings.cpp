#include "scriptsettings.h"

#include "serdesip/clocksolver.h"

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cstring>
#include <map>

namespace IPSERDESIP {

namespace {

constexpr auto onOff = "enable|disable";
constexpr auto truth = "true|false";
constexpr auto widths = "8|10|16|20";
constexpr auto codings = "off|8b10b|64b66b|64b67b";
constexpr auto powers = "1|2|4";
constexpr auto modes = "auto|manual";
constexpr auto laneClocks = "ln0_pma_rx_clk|ln1_pma_rx_clk|ln2_pma_rx_clk|ln3_pma_rx_clk";

// clang-format off
constexpr SettingRow rows[] = {
    {Scope::Lane,   "enable",                               Form::Word,       truth},
    {Scope::Lane,   "tx_rate",                              Form::Rate},
    {Scope::Lane,   "tx_ovs_mode",                          Form::Word,       "off|buildin"},
    {Scope::Lane,   "tx_ovs_ratio",                         Form::Ratio},
    {Scope::Lane,   "rx_rate",                              Form::Rate},
    {Scope::Lane,   "pll_sel",                              Form::Word,       "qpll0|qpll1|cpll"},
    {Scope::Lane,   "loopback_mode",                        Form::Word,       "off|lb_nes|lb_fes|lb_enc|tx_only|rx_only"},
    {Scope::Lane,   "pma_width_mode",                       Form::Word,       widths},
    {Scope::Lane,   "pma_tx_width_mode",                    Form::Word,       widths},
    {Scope::Lane,   "pma_rx_width_mode",                    Form::Word,       widths},
    {Scope::Lane,   "8b10b_encode",                         Form::Word,       onOff},
    {Scope::Lane,   "8b10b_decode",                         Form::Word,       onOff},
    {Scope::Lane,   "tx_encode",                            Form::Word,       codings},
    {Scope::Lane,   "rx_decode",                            Form::Word,       codings},
    {Scope::Lane,   "rx_64b67b_decode_ilk_metaframe_len",   Form::Integer,    "", 1, 16383},
    {Scope::Lane,   "rx_64b66b_decode_10gbaser",            Form::Word,       onOff},
    {Scope::Lane,   "tx_gearbox",                           Form::Word,       powers},
    {Scope::Lane,   "rx_gearbox",                           Form::Word,       powers},
    {Scope::Lane,   "word_align",                           Form::Word,       onOff},
    {Scope::Lane,   "word_align_pattern",                   Form::Character},
    {Scope::Lane,   "word_align_pattern_mask",              Form::Bits},
    {Scope::Lane,   "tx_pol_invert",                        Form::Word,       onOff},
    {Scope::Lane,   "tx_data_mpl",                          Form::Word,       onOff},
    {Scope::Lane,   "rx_pol_invert",                        Form::Word,       onOff},
    {Scope::Lane,   "rx_data_mpl",                          Form::Word,       onOff},
    {Scope::Lane,   "channel_bonding",                      Form::Word,       onOff},
    {Scope::Lane,   "channel_bonding_align_length",         Form::Word,       powers},
    {Scope::Lane,   "channel_bonding_master_sel",           Form::Lane},
    {Scope::Lane,   "channel_bonding_align_pattern",        Form::Hex},
    {Scope::Lane,   "2nd_channel_bonding_align_pattern",    Form::Hex},
    {Scope::Lane,   "3rd_channel_bonding_align_pattern",    Form::Hex},
    {Scope::Lane,   "4th_channel_bonding_align_pattern",    Form::Hex},
    {Scope::Lane,   "2nd_channel_bonding_align_pattern_is_k", Form::Word,     truth},
    {Scope::Lane,   "3rd_channel_bonding_align_pattern_is_k", Form::Word,     truth},
    {Scope::Lane,   "4th_channel_bonding_align_pattern_is_k", Form::Word,     truth},
    {Scope::Lane,   "channel_bonding_max_skew",             Form::Integer,    "", 0, 31},
    {Scope::Lane,   "rx_bonding_rd_start_depth",            Form::Integer,    "", 0, 31},
    {Scope::Lane,   "rx_bonding_clk_src_sel",               Form::Word,       "quad_rx_clk|lane_rx_clk"},
    {Scope::Lane,   "tx_if_mst_sel",                        Form::Lane},
    {Scope::Lane,   "tx_if_rd_start_depth",                 Form::Integer,    "", 0, 31},
    {Scope::Lane,   "ctc",                                  Form::Word,       onOff},
    {Scope::Lane,   "two_words_ctc",                        Form::Word,       onOff},
    {Scope::Lane,   "ctc_clk_src_sel",                      Form::Word,       "fabric_clk|lane_bond_clk|lane_tx_clk"},
    {Scope::Lane,   "ctc_mst_sel",                          Form::Lane},
    {Scope::Lane,   "ctc_pattern",                          Form::Hex},
    {Scope::Lane,   "ctc_2nd_pattern",                      Form::Hex},
    {Scope::Lane,   "ctc_2nd_pattern_is_k",                 Form::Word,       truth},
    {Scope::Lane,   "ctc_rd_start_depth",                   Form::Integer,    "", 0, 31},
    {Scope::Lane,   "tx_differential_swing",                Form::Millivolts},
    {Scope::Lane,   "tx_ffe_mode",                          Form::Word,       modes},
    {Scope::Lane,   "tx_ffe_cm",                            Form::Integer,    "", 0, 40},
    {Scope::Lane,   "tx_ffe_c1",                            Form::Integer,    "", 0, 40},
    {Scope::Lane,   "tx_ffe_c0",                            Form::Integer,    "", 0, 40},
    {Scope::Lane,   "rx_sd_thsel",                          Form::Millivolts},
    {Scope::Lane,   "rx_eq_mode",                           Form::Word,       modes},
    {Scope::Lane,   "rx_att",                               Form::Integer,    "", 0, 10},
    {Scope::Lane,   "rx_boost",                             Form::Integer,    "", 0, 15},
    {Scope::Lane,   "cdr_refclk_sel",                       Form::Optional,   "auto|refmux0|refmux1|refmux2|refmux3|gpio|mclk"},
    {Scope::Lane,   "trigger_bonding_ctrl",                 Form::Word,       "fabric"},
    {Scope::Quad,   "enable",                               Form::Word,       truth},
    {Scope::Quad,   "rx_quad_clk_sel",                      Form::Word,       "internal|common"},
    {Scope::Quad,   "rx_quad_clk_internal_sel",             Form::Word,       laneClocks},
    {Scope::Quad,   "rx_eq_bias",                           Form::Integer,    "", 0, 15},
    {Scope::Quad,   "refclk0_freq",                         Form::Frequency},
    {Scope::Quad,   "refclk1_freq",                         Form::Frequency},
    {Scope::Quad,   "refclk2_freq",                         Form::Frequency},
    {Scope::Quad,   "refclk3_freq",                         Form::Frequency},
    {Scope::Quad,   "gpio_freq",                            Form::Frequency},
    {Scope::Quad,   "gpio0_freq",                           Form::Frequency},
    {Scope::Quad,   "gpio1_freq",                           Form::Frequency},
    {Scope::Quad,   "gpio2_freq",                           Form::Frequency},
    {Scope::Quad,   "gpio3_freq",                           Form::Frequency},
    {Scope::Device, "mclk_freq",                            Form::Frequency},
    {Scope::Device, "common_clk_src_sel",                   Form::Word,       "q0|q1"},
    {Scope::Device, "common_clk_from_q0_sel",               Form::Word,       laneClocks},
    {Scope::Device, "common_clk_from_q1_sel",               Form::Word,       laneClocks},
};
// clang-format on

QRegularExpression whole(const char* pattern) {
    return QRegularExpression(QStringLiteral("\\A(?:%1)\\z").arg(QLatin1String(pattern)));
}

bool isDigit(QChar c) {
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool isHexDigit(QChar c) {
    return isDigit(c) || (c >= QLatin1Char('A') && c <= QLatin1Char('F')) ||
           (c >= QLatin1Char('a') && c <= QLatin1Char('f'));
}

bool isBit(QChar c) {
    return c == QLatin1Char('0') || c == QLatin1Char('1');
}

/// Whether the value is one to `most` characters of a kind.
bool isRun(bool (*kind)(QChar), int most, const QString& value) {
    return !value.isEmpty() && value.size() <= most &&
           std::all_of(value.begin(), value.end(), kind);
}

/// The digit behind `letters` at `at`, where a "_" follows it; else -1.
int numberBehind(QLatin1String letters, const QString& name, int at) {
    const int digit = at + letters.size();
    const bool is = name.size() > digit + 1 && name.midRef(at, letters.size()) == letters &&
                    isDigit(name.at(digit)) && name.at(digit + 1) == QLatin1Char('_');
    return is ? name.at(digit).digitValue() : -1;
}

/// Whether the value is one of the words, which stand apart by '|'.
bool isWord(const char* words, const QString& value) {
    while (*words != '\0') {
        const char* const end = std::strchr(words, '|');
        const int length =
            end != nullptr ? static_cast<int>(end - words) : static_cast<int>(std::strlen(words));
        if (value == QLatin1String(words, length)) {
            return true;
        }
        words += length + (end != nullptr ? 1 : 0);
    }
    return false;
}

QString wordProblem(const SettingRow& row, const QString& value) {
    if (isWord(row.words, value)) {
        return {};
    }
    const QStringList words = QString::fromLatin1(row.words).split(QLatin1Char('|'));
    return QStringLiteral("must be %1").arg(words.join(QStringLiteral(", ")));
}

QString integerProblem(const SettingRow& row, const QString& value) {
    constexpr int maxDigits = 9;
    const bool digits = isRun(isDigit, maxDigits, value);
    return digits && value.toInt() >= row.min && value.toInt() <= row.max
               ? QString()
               : QStringLiteral("must be a whole number from %1 to %2").arg(row.min).arg(row.max);
}

} // namespace

SettingPrefix settingPrefix(const QString& name) {
    SettingPrefix prefix;
    prefix.quad = numberBehind(QLatin1String("q"), name, 0);
    if (prefix.quad < 0) {
        return prefix;
    }
    prefix.scope = Scope::Quad;
    prefix.length = 3;
    prefix.lane = numberBehind(QLatin1String("ln"), name, prefix.length);
    if (prefix.lane >= 0) {
        prefix.scope = Scope::Lane;
        prefix.length += 4;
    }
    return prefix;
}

const SettingRow* findSetting(const QString& name, const SettingPrefix& prefix) {
    using Rows = QHash<QString, const SettingRow*>;
    static const std::map<Scope, Rows> byScope = [] {
        std::map<Scope, Rows> map;
        for (const SettingRow& row : rows) {
            map[row.scope].insert(QString::fromLatin1(row.name), &row);
        }
        return map;
    }();
    return byScope.at(prefix.scope).value(name.mid(prefix.length));
}

QString valueProblem(const SettingRow& row, const QString& value) {
    // Compiled once: a script has hundreds of values.
    static const QRegularExpression millivolts = whole("[0-9]{1,4}mV");
    static const QRegularExpression ratio = whole("na|[1-9][0-9]?x");
    static const QRegularExpression lane = whole("q[0-9]_ln[0-9]");
    static const QRegularExpression character = whole("k(28\\.[0-7]|23\\.7|27\\.7|29\\.7|30\\.7)");
    const auto check = [](bool good, const char* wanted) {
        return good ? QString() : QStringLiteral("must be %1").arg(QLatin1String(wanted));
    };
    if (value.isEmpty()) {
        return row.form == Form::Optional ? QString() : QStringLiteral("has no value");
    }
    switch (row.form) {
    case Form::Word:
    case Form::Optional:
        return wordProblem(row, value);
    case Form::Integer:
        return integerProblem(row, value);
    case Form::Rate:
        return check(parseMilli(value, gbpsDecimals).has_value(), "a decimal number of Gbit/s");
    case Form::Frequency:
        return check(parseMilli(value, mhzDecimals).has_value(), "a decimal number of MHz");
    case Form::Hex:
        return check(isRun(isHexDigit, 2, value), "one or two hexadecimal digits");
    case Form::Bits:
        return check(isRun(isBit, 10, value), "one to ten digits 0 or 1");
    case Form::Millivolts:
        return check(millivolts.match(value).hasMatch(), "a whole number and \"mV\"");
    case Form::Ratio:
        return check(ratio.match(value).hasMatch(), "\"na\" or a whole number and \"x\"");
    case Form::Lane:
        return check(lane.match(value).hasMatch(), "a lane, as q0_ln0");
    case Form::Character:
        return check(character.match(value).hasMatch(), "a K character, as k28.5");
    }
    return {};
}

} // namespace IPSERDESIP
