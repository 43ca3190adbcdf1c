// Line rates, reference clock, PLL, loopback.

#include "model/config/keys.h"
#include "model/config/lines/catalogue.h"
#include "model/config/values.h"

namespace IPCUSTOMIZED {

namespace {

double txRate(const LineSource& source) {
    return source.config.number(Key::TxRate);
}

/// A lane slower than 1 Gbps runs its serial side faster and repeats each bit.
bool isOversampled(const LineSource& source) {
    return txRate(source) < 1.0;
}

bool isNotOversampled(const LineSource& source) {
    return !isOversampled(source);
}

QString oversampledRate(const LineSource& source) {
    const QString ratio = source.config.text(Key::TxRateRatio).remove(QLatin1Char('x'));
    return scriptNumber(txRate(source) * textNumber(ratio));
}

QString operationMode(const LineSource& source) {
    return source.config.text(Key::OperationMode, Value::TxAndRx);
}

/// On the listed devices a lane of one direction has no loopback: the mode stands in its place.
std::optional<QString> loopback(const LineSource& source) {
    const QString mode = operationMode(source);
    if (!isListed(source.device) || mode == Value::TxAndRx) {
        return source.config.text(Key::LoopbackMode).toLower();
    }
    if (mode == Value::TxOnly) {
        return QStringLiteral("tx_only");
    }
    if (mode == Value::RxOnly) {
        return QStringLiteral("rx_only");
    }
    return std::nullopt;
}

QString cdrReference(const LineSource& source) {
    const bool manual = source.config.text(Key::RefMode, Value::Auto) != Value::Auto;
    bool selectable = true;
    if (source.writer.cdrByDevice) {
        const QString mode = operationMode(source);
        const bool oneDirection = mode == Value::RxOnly || mode == Value::TxOnly;
        selectable = source.device == DeviceClass::K138 ||
                     (source.device == DeviceClass::K60 && !oneDirection);
    }
    return manual && selectable ? source.config.text(Key::RxRefSource, Value::RefMux[0]).toLower()
                                : QStringLiteral("auto");
}

} // namespace

// clang-format off

Lines headerLines()
{
    return {
        D("`define %1"),
    };
}

Lines rateParameterLines()
{
    return {
        P("parameter %1_tx_rate = %2;", text(Key::TxRate)),
        P("parameter %1_rx_rate = %2;", text(Key::RxRate)),
    };
}

// Sources of different quads and kinds share a number: a device has only one of each.
Lines referenceSourceLines()
{
    return {
        P("parameter %1_refclk_source = %2;", choose(Key::ReferenceClockSource, {
            {"Q0 REFCLK0"_l1, "0"},
            {"Q0 REFCLK1"_l1, "1"},
            {"Q1 REFCLK0"_l1, "2"},
            {"Q1 REFCLK1"_l1, "3"},
            {"Q0 REFCLK2"_l1, "2"},
            {"Q0 REFCLK3"_l1, "3"},
            {"Q0 REFIN0"_l1,  "4"},
            {"Q0 REFIN1"_l1,  "5"},
            {"Q0 REFIN2"_l1,  "6"},
            {"Q0 REFIN3"_l1,  "7"},
            {"Q0 REFIN"_l1,   "2"},
            {"MCLK"_l1,       "3"},
        })),
    };
}

// The quad's line comes with every lane of the quad.
Lines enableLines()
{
    return {
        S("%1_enable true"),
        of(LineSubject::QuadPrefix, S("%1_enable true")),
    };
}

Lines txRateLines()
{
    return {
        S("%1_tx_rate %2",             when(isOversampled, computed(oversampledRate))),
        S("%1_tx_ovs_mode buildin",    when(isOversampled)),
        S("%1_tx_ovs_ratio %2",        when(isOversampled, text(Key::TxRateRatio))),
        S("%1_tx_rate %2",             when(isNotOversampled, text(Key::TxRate))),
        S("%1_tx_ovs_mode off",        when(isNotOversampled)),
        S("%1_tx_ovs_ratio na",        when(isNotOversampled)),
    };
}

Lines rxRateLines()
{
    return {
        S("%1_rx_rate %2", text(Key::RxRate)),
    };
}

Lines pllLines()
{
    return {
        S("%1_pll_sel %2", lower(Key::PllSelection)),
        P("parameter %1_pll_sel = %2;", choose(Key::PllSelection, {
            {Value::Qpll0, "0"},
            {Value::Qpll1, "1"},
            {Value::Cpll,  "2"},
        })),
    };
}

Lines loopbackLines()
{
    return {
        S("%1_loopback_mode %2",                  loopback),
        P("parameter %1_loopback_mode = \"%2\";", lower(Key::LoopbackMode)),
    };
}

Lines cdrReferenceLines()
{
    return {
        S("%1_cdr_refclk_sel %2", computed(cdrReference)),
    };
}

// clang-format on

} // namespace IPCUSTOMIZED
