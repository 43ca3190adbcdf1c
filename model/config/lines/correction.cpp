// Receive clock correction (clock tolerance compensation).

#include "model/config/keys.h"
#include "model/config/lanes.h"
#include "model/config/lines/catalogue.h"
#include "model/config/values.h"

namespace IPCUSTOMIZED {

namespace {

LineValue ctcClock() {
    return choose(Key::ClockSource, {
                                        {"User"_l1, "fabric_clk"},
                                        {"Quad"_l1, "lane_bond_clk"},
                                        {"TX"_l1, "lane_tx_clk"},
                                    });
}

std::optional<QString> ctcMasterLane(const LineSource& source) {
    const Lane* lane = laneByCaption(source.config.text(Key::ClockMasterChannel));
    if (lane == nullptr) {
        return std::nullopt;
    }
    const bool pad = lane->quad == 1 && source.writer.padQuad1CtcMaster;
    return (pad ? QStringLiteral(" ") : QString()) + lane->prefix;
}

std::optional<QString> ctcMasterIndex(const LineSource& source) {
    const Lane* lane = laneByCaption(source.config.text(Key::ClockMasterChannel));
    return lane != nullptr ? std::optional<QString>(QString::number(laneIndex(*lane)))
                           : std::nullopt;
}

bool corrects(const LineSource& source) {
    return source.config.is(Key::ClockCorrection, Value::OneWord) ||
           source.config.is(Key::ClockCorrection, Value::TwoWords);
}

} // namespace

// clang-format off

Lines clockCorrectionLines()
{
    return {
        S("%1_ctc %2", choose(Key::ClockCorrection, {
            {Value::None,     "disable"},
            {Value::OneWord,  "enable"},
            {Value::TwoWords, "enable"},
        })),
        S("%1_two_words_ctc %2", choose(Key::ClockCorrection, {
            {Value::None,     "disable"},
            {Value::OneWord,  "disable"},
            {Value::TwoWords, "enable"},
        })),
        S("%1_ctc_clk_src_sel %2",                  ctcClock()),
        P("parameter %1_ctc_clk_src_sel = \"%2\";", ctcClock()),
        S("%1_ctc_mst_sel %2",                      ctcMasterLane),
        P("parameter %1_ctc_master_sel = %2;",      ctcMasterIndex),
        D("`define %1_CTC_MASTER_SEL %2",           ctcMasterIndex),
        S("%1_ctc_pattern %2",                      text(Key::CtcPattern0)),
        S("%1_ctc_2nd_pattern %2",                  text(Key::CtcPattern1)),
        S("%1_ctc_2nd_pattern_is_k %2",             either(Key::CtcPattern1IsK, "true", "false")),
        P("parameter %1_ctc_2nd_pattern_is_k = %2;", bit(Key::CtcPattern1IsK)),
        S("%1_ctc_rd_start_depth %2",               text(Key::CtcReadStartDepth)),
        P("parameter %1_ctc = %2;",                 computed([](const LineSource& s) {
            return corrects(s) ? QStringLiteral("1") : QStringLiteral("0"); })),
        P("parameter %1_two_words_ctc = %2;",       computed([](const LineSource& s) {
            return s.config.is(Key::ClockCorrection, Value::TwoWords) ? QStringLiteral("1") : QStringLiteral("0"); })),
        D("`define %1_CTC",                         when(corrects)),
        P("parameter %1_ctc_pattern = 8'h%2;",      text(Key::CtcPattern0)),
        P("parameter %1_ctc_2nd_pattern = 8'h%2;",  text(Key::CtcPattern1)),
        P("parameter %1_ctc_rd_start_depth = %2;",  text(Key::CtcReadStartDepth)),
    };
}

// clang-format on

} // namespace IPCUSTOMIZED
