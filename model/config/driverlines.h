#pragma once

#include "model/config/configview.h"
#include "model/config/deviceclass.h"

#include <QString>
#include <QStringList>

#include <array>

namespace IPCUSTOMIZED {

// The lines of a configuration as a whole. The generation and the dialog's route check both write
// them, from the saved map and from the widgets' snapshot.

/// "q0_ln0_trigger_bonding_ctrl fabric" ...: the four lanes of quad 0, and of quad 1 where the
/// device has one.
QStringList bondingControlLines(DeviceClass device);

/// The reference clocks that a configuration names, and what it says of the GPIO or MCLK input.
struct ReferenceClocks {
    QStringList names;       ///< option texts ("Q0 REFCLK0"), as stored
    QStringList frequencies; ///< MHz, as stored; parallel to names
    QStringList inputLines;  ///< at most one line, "q0_gpio_freq %1" or "mclk_freq %1"
};
ReferenceClocks referenceClocks(const ConfigView& config, DeviceClass device);

/// Appends a frequency line and a parameter line for each name that is a reference clock.
/// @return false, and nothing is written, when the lists differ in length
bool appendRefClockFreqLines(const QStringList& names, const QStringList& frequencies,
                             QStringList& script, QStringList& parameters);

/// Appends the lines that choose the quads' receive clock, where the configuration takes it.
void appendReceiveClockLines(const ConfigView& config, QStringList& script);

/// "q0_rx_eq_bias %1" ...: a line for each quad that some of the lanes (captions) lie in.
QStringList biasLines(const QStringList& laneCaptions, const std::array<int, 2>& bias);

/// What stands in define.vh behind the lanes' lines.
QStringList moduleDefineLines(const ConfigView& config, DeviceClass device);

/// The option lines for the netlist generation.
QStringList optionLines(const ConfigView& config, DeviceClass device);

} // namespace IPCUSTOMIZED
