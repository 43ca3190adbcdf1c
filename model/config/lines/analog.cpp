// Analog front end.

#include "model/config/keys.h"
#include "model/config/lines/catalogue.h"
#include "model/config/values.h"

namespace IPCUSTOMIZED {

// clang-format off

Lines analogLines()
{
    return {
        S("%1_tx_differential_swing %2", text(Key::DifferentialSwing, "900mV"_l1)),
        S("%1_tx_ffe_mode %2",           lower(Key::FfeMode, Value::Auto)),
        S("%1_tx_ffe_cm %2",             integer(Key::FfeCm)),
        S("%1_tx_ffe_c1 %2",             integer(Key::FfeC1)),
        S("%1_tx_ffe_c0 %2",             integer(Key::FfeC0, 40)),
        S("%1_rx_sd_thsel %2",           text(Key::SdThreshold, "100mV"_l1)),
        S("%1_rx_eq_mode %2",            lower(Key::EqualizationMode, Value::Auto)),
        S("%1_rx_att %2",                integer(Key::Att, 7)),
        S("%1_rx_boost %2",              integer(Key::Boost, 9)),
    };
}

// clang-format on

} // namespace IPCUSTOMIZED
