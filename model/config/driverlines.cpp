#include "model/config/driverlines.h"

#include "model/config/keys.h"
#include "model/config/lanelines.h"
#include "model/config/lanes.h"
#include "model/config/values.h"

#include <algorithm>

namespace IPCUSTOMIZED {

namespace {

/// How a reference clock is called in the script and, with "parameter", in param.v.
struct RefClockName {
    QLatin1String option;
    QLatin1String setting;
};

// clang-format off
constexpr RefClockName refClockNames[] = {
    {"Q0 REFCLK0"_l1, "q0_refclk0_freq"_l1},
    {"Q0 REFCLK1"_l1, "q0_refclk1_freq"_l1},
    {"Q1 REFCLK0"_l1, "q1_refclk0_freq"_l1},
    {"Q1 REFCLK1"_l1, "q1_refclk1_freq"_l1},
    {"Q0 REFCLK2"_l1, "q0_refclk2_freq"_l1},
    {"Q0 REFCLK3"_l1, "q0_refclk3_freq"_l1},
    {"Q0 REFIN0"_l1,  "q0_gpio0_freq"_l1},
    {"Q0 REFIN1"_l1,  "q0_gpio1_freq"_l1},
    {"Q0 REFIN2"_l1,  "q0_gpio2_freq"_l1},
    {"Q0 REFIN3"_l1,  "q0_gpio3_freq"_l1},
    {"Q0 REFIN"_l1,   "q0_gpio_freq"_l1},
    {"MCLK"_l1,       "mclk_freq"_l1},
};
// clang-format on

void addKey(ReferenceClocks& clocks, const ConfigView& config, QLatin1String source,
            QLatin1String frequency) {
    clocks.names.append(config.text(source));
    clocks.frequencies.append(config.text(frequency));
}

/// A pair of multiplexers on one source at one frequency is one clock: two lines would declare
/// its parameter twice. Sources are equal as texts, frequencies as numbers.
void addMuxPair(ReferenceClocks& clocks, const ConfigView& config, int first) {
    const int second = first + 1;
    addKey(clocks, config, Key::RefMuxSource[first], Key::MuxFreq[first]);
    const bool same =
        config.text(Key::RefMuxSource[first]) == config.text(Key::RefMuxSource[second]) &&
        config.number(Key::MuxFreq[first]) == config.number(Key::MuxFreq[second]);
    if (!same) {
        addKey(clocks, config, Key::RefMuxSource[second], Key::MuxFreq[second]);
    }
}

/// The line of the GPIO or MCLK input, if that is what feeds the PLL.
bool addInputLine(ReferenceClocks& clocks, const ConfigView& config) {
    const QString source = config.text(Key::PllRefSource);
    if (source == Value::GpioPin || source == Value::Gpio) {
        clocks.inputLines.append(
            fill("q0_gpio_freq %1"_l1, scriptNumber(config.number(Key::GpioFreq))));
        return true;
    }
    if (source == Value::Mclk) {
        clocks.inputLines.append(
            fill("mclk_freq %1"_l1, scriptNumber(config.number(Key::MclkFreq))));
        return true;
    }
    return false;
}

QString withoutBlanks(QString text) {
    const auto kept = std::remove_if(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
    text.truncate(static_cast<int>(kept - text.begin()));
    return text;
}

} // namespace

QStringList bondingControlLines(DeviceClass device) {
    QStringList lines;
    for (const Lane& lane : lanes) {
        if (lane.quad == 0 || !isListed(device)) {
            lines.append(fill("%1_trigger_bonding_ctrl fabric"_l1, lane.prefix));
        }
    }
    return lines;
}

ReferenceClocks referenceClocks(const ConfigView& config, DeviceClass device) {
    ReferenceClocks clocks;
    const bool listed = isListed(device);
    if (listed && config.text(Key::OperationMode, Value::TxAndRx) == Value::RxOnly) {
        if (config.is(Key::PllRefSource, Value::RefMux[1])) {
            addKey(clocks, config, Key::RefMuxSource[1], Key::MuxFreq[1]);
        } else {
            addInputLine(clocks, config);
        }
        return clocks;
    }
    if (config.is(Key::RefMode, Value::Auto)) {
        addKey(clocks, config, Key::ReferenceClockSource, Key::ReferenceClockFreq);
        return clocks;
    }
    if (listed && addInputLine(clocks, config)) {
        return clocks;
    }
    addMuxPair(clocks, config, 0);
    if (device == DeviceClass::K60) {
        addMuxPair(clocks, config, 2);
    }
    return clocks;
}

bool appendRefClockFreqLines(const QStringList& names, const QStringList& frequencies,
                             QStringList& script, QStringList& parameters) {
    if (names.size() != frequencies.size()) {
        return false;
    }
    for (int i = 0; i < names.size(); ++i) {
        for (const RefClockName& clock : refClockNames) {
            if (names.at(i) == clock.option) {
                const QString& frequency = frequencies.at(i);
                script.append(fill("%1 %2"_l1, clock.setting, scriptNumber(textNumber(frequency))));
                parameters.append(fill("parameter %1 = %2;"_l1, clock.setting, frequency));
                break;
            }
        }
    }
    return true;
}

void appendReceiveClockLines(const ConfigView& config, QStringList& script) {
    if (!config.takesQuadClock()) {
        return;
    }
    // An unknown master leaves both parts empty.
    QString masterQuad;
    QString masterLane;
    if (const Lane* master = laneByCaption(config.text(Key::RxMasterChannel))) {
        const QStringList parts = QString(master->prefix).split(QLatin1Char('_'));
        masterQuad = parts.at(0);
        masterLane = parts.at(1);
    }

    const QStringList recorded = config.list(Key::RecordLanes);
    const std::array<bool, quadPrefixes.size()> used{usesQuad(recorded, 0), usesQuad(recorded, 1)};
    if (used[0] && used[1]) {
        script.append(QStringLiteral("q0_rx_quad_clk_sel common"));
        script.append(QStringLiteral("q1_rx_quad_clk_sel common"));
        script.append(fill("common_clk_src_sel %1"_l1, masterQuad));
        script.append(fill("common_clk_from_%1_sel %2_pma_rx_clk"_l1, masterQuad, masterLane));
        return;
    }
    for (std::size_t quad = 0; quad < quadPrefixes.size(); ++quad) {
        if (!used[quad]) {
            continue;
        }
        const QString internal = fill("%1_rx_quad_clk_sel internal"_l1, quadPrefixes[quad]);
        if (!script.contains(internal)) {
            script.append(internal);
        }
        script.append(
            fill("%1_rx_quad_clk_internal_sel %2_pma_rx_clk"_l1, quadPrefixes[quad], masterLane));
    }
}

QStringList biasLines(const QStringList& laneCaptions, const std::array<int, 2>& bias) {
    QStringList lines;
    for (std::size_t quad = 0; quad < quadPrefixes.size(); ++quad) {
        if (usesQuad(laneCaptions, static_cast<int>(quad))) {
            lines.append(
                fill("%1_rx_eq_bias %2"_l1, quadPrefixes[quad], QString::number(bias[quad])));
        }
    }
    return lines;
}

QStringList moduleDefineLines(const ConfigView& config, DeviceClass device) {
    QStringList lines{fill("`define MODULE_NAME %1"_l1, config.text(Key::Module))};
    if (config.flag(Key::DrpPorts)) {
        lines.append(QStringLiteral("`define DRP"));
    }
    switch (device) {
    case DeviceClass::K60:
        lines.append(QStringLiteral("`define RZ7X60"));
        break;
    case DeviceClass::K15:
        lines.append(QStringLiteral("`define RZ7X15"));
        break;
    case DeviceClass::K138:
        lines.append(QStringLiteral("`define RZ7X138"));
        break;
    }
    return lines;
}

QStringList optionLines(const ConfigView& config, DeviceClass device) {
    const QString module = config.text(Key::Module);
    QStringList lines;
    const auto option = [&](const char* form, const QString& value = QString()) {
        lines.append(fill(QLatin1String(form), module, value));
    };

    option("-%1protocol_module_type %2", QStringLiteral("customized"));
    for (const Lane& lane : lanes) {
        if (config.flag(lane.key)) {
            option("-%1%2 true", QString(lane.caption).remove(QLatin1Char(' ')));
        }
    }
    option("-%1Clock_Correction %2", withoutBlanks(config.text(Key::ClockCorrection)));
    option(config.flag(Key::WordAlignment) ? "-%1Word_Alignment true" : "-%1Word_Alignment false");
    option("-%1RX_Channel_Bonding %2", withoutBlanks(config.text(Key::RxChannelBonding)));
    if (config.flag(Key::DrpPorts)) {
        option("-%1EnableDRP true");
        option("-%1DRPPorts true");
    } else {
        option("-%1EnableDRP false");
        option("-%1DRPPorts false");
    }
    if (isListed(device)) {
        option("-%1TX_Encoding_Mode %2", config.text(Key::TxEncoding));
        option("-%1RX_Decoding_Mode %2", config.text(Key::RxDecoding));
    }
    return lines;
}

} // namespace IPCUSTOMIZED
