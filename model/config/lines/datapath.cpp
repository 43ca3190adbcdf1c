// Data widths, coding, gearboxes, word alignment, polarity.

#include "model/config/keys.h"
#include "model/config/lines/catalogue.h"
#include "model/config/values.h"

#include <utility>

namespace IPCUSTOMIZED {

namespace {

bool listed(const LineSource& source) {
    return isListed(source.device);
}

bool notListed(const LineSource& source) {
    return !isListed(source.device);
}

LineValue onListed(LineValue value = always()) {
    return when(listed, std::move(value));
}

LineValue onOthers(LineValue value = always()) {
    return when(notListed, std::move(value));
}

LineCondition mode64B66B(QLatin1String mode) {
    return both(listed, both(is(Key::RxDecoding, Value::Code64B66B), is(Key::Mode64B66B, mode)));
}

LineValue ratio(QLatin1String key) {
    return computed([=](const LineSource& source) {
        return QString::number(ratioNumber(source.config.text(key)));
    });
}

LineValue gearbox(QLatin1String key) {
    return when(
        [=](const LineSource& source) {
            return !source.writer.skipUnknownGearbox || ratioNumber(source.config.text(key)) != 0;
        },
        ratio(key));
}

/// The option's own value while its flag is set, else a fixed one.
LineValue whileSet(QLatin1String flag, QLatin1String key, const char* otherwise) {
    return computed([=](const LineSource& source) {
        return source.config.flag(flag) ? source.config.text(key) : QString::fromLatin1(otherwise);
    });
}

LineValue alignmentPattern() {
    return computed([](const LineSource& source) {
        return source.config.flag(Key::EnableWaPattern0)
                   ? source.config.text(Key::WaPattern0).toLower()
                   : QStringLiteral("k28.5");
    });
}

} // namespace

// clang-format off

Lines widthAndCodingLines()
{
    const LineCondition tenGBaseR = mode64B66B(Value::TenGBaseR);
    const LineCondition asyncFifo = mode64B66B(Value::AsyncFifo);
    return {
        // Separate widths and codings
        S("%1_pma_tx_width_mode %2",                 onListed(integer(Key::TxInternalDataWidth))),
        S("%1_pma_rx_width_mode %2",                 onListed(integer(Key::RxInternalDataWidth))),
        P("parameter %1_pma_tx_width = %2;",         onListed(integer(Key::TxInternalDataWidth))),
        D("`define %1_TX_PMA_WIDTH %2",              onListed(integer(Key::TxInternalDataWidth))),
        P("parameter %1_pma_rx_width = %2;",         onListed(integer(Key::RxInternalDataWidth))),
        D("`define %1_RX_PMA_WIDTH %2",              onListed(integer(Key::RxInternalDataWidth))),
        S("%1_tx_encode %2",                         onListed(lower(Key::TxEncoding))),
        S("%1_rx_decode %2",                         onListed(lower(Key::RxDecoding))),
        D("`define %1_%2_ENCODE",                    onListed(when(isNot(Key::TxEncoding, Value::Off), upper(Key::TxEncoding)))),
        D("`define %1_%2_DECODE",                    onListed(when(isNot(Key::RxDecoding, Value::Off), upper(Key::RxDecoding)))),
        S("%1_rx_64b67b_decode_ilk_metaframe_len %2", onListed(when(is(Key::RxDecoding, Value::Code64B67B), integer(Key::RxMetaFrameLength)))),
        S("%1_rx_64b66b_decode_10gbaser %2",         onListed(computed([=](const LineSource& source) {
            return tenGBaseR(source) ? QStringLiteral("enable") : QStringLiteral("disable"); }))),
        P("parameter %1_64b66b_mode = \"tengbaser_with_fifo\";", when(tenGBaseR)),
        D("`define %1_64B66B_TENGBASER_WITH_FIFO",   when(tenGBaseR)),
        P("parameter %1_64b66b_mode = \"async_with_fifo\";", when(asyncFifo)),
        D("`define %1_64B66B_ASYNC_WITH_FIFO",       when(asyncFifo)),

        // One common width and 8B/10B switches
        S("%1_pma_width_mode %2",                    onOthers(integer(Key::InternalDataWidth))),
        P("parameter %1_pma_width = %2;",            onOthers(integer(Key::InternalDataWidth))),
        D("`define %1_PMA_WIDTH %2",                 onOthers(integer(Key::InternalDataWidth))),
        S("%1_8b10b_encode %2",                      onOthers(either(Key::EnableEncoding, "enable", "disable"))),
        D("`define %1_8B10B_ENCODE",                 onOthers(when(isTrue(Key::EnableEncoding)))),
        S("%1_8b10b_decode %2",                      onOthers(either(Key::EnableDecoding, "enable", "disable"))),
        D("`define %1_8B10B_DECODE",                 onOthers(when(isTrue(Key::EnableDecoding)))),
        P("parameter %1_8b10b_encode = %2;",         onOthers(bit(Key::EnableEncoding))),
        P("parameter %1_8b10b_decode = %2;",         onOthers(bit(Key::EnableDecoding))),
    };
}

Lines gearboxScriptLines()
{
    return {
        S("%1_tx_gearbox %2", gearbox(Key::TxExternalDataRatio)),
        S("%1_rx_gearbox %2", gearbox(Key::RxExternalDataRatio)),
    };
}

Lines wordAlignmentScriptLines()
{
    return {
        S("%1_word_align %2",              either(Key::WordAlignment, "enable", "disable")),
        S("%1_word_align_pattern %2",      alignmentPattern()),
        S("%1_word_align_pattern_mask %2", whileSet(Key::EnableMask0, Key::Mask0, "1111111111")),
    };
}

Lines polarityLines()
{
    return {
        S("%1_tx_pol_invert %2", either(Key::TxPolarityInvert, "enable", "disable")),
        S("%1_tx_data_mpl %2",   either(Key::TxPolarityInvert, "enable", "disable")),
        S("%1_rx_pol_invert %2", either(Key::RxPolarityInvert, "enable", "disable")),
        S("%1_rx_data_mpl %2",   either(Key::RxPolarityInvert, "enable", "disable")),
    };
}

Lines gearboxParameterLines()
{
    return {
        P("parameter %1_tx_gearbox = %2;", ratio(Key::TxExternalDataRatio)),
        D("`define %1_TX_GEARBOX %2",      ratio(Key::TxExternalDataRatio)),
        P("parameter %1_rx_gearbox = %2;", ratio(Key::RxExternalDataRatio)),
        D("`define %1_RX_GEARBOX %2",      ratio(Key::RxExternalDataRatio)),
    };
}

Lines wordAlignmentParameterLines()
{
    return {
        P("parameter %1_word_align = %2;",                 bit(Key::WordAlignment)),
        D("`define %1_WORD_ALIGN",                         when(isTrue(Key::WordAlignment))),
        P("parameter %1_word_align_pattern = \"%2\";",     when(isTrue(Key::EnableWaPattern0), lower(Key::WaPattern0))),
        P("parameter %1_word_align_pattern_mask = 10'b%2;", when(isTrue(Key::EnableMask0), text(Key::Mask0))),
    };
}

// clang-format on

} // namespace IPCUSTOMIZED
