#pragma once

#include <QLatin1String>

namespace IPCUSTOMIZED {

/// Texts of options that rules and writers compare with. They are saved as they stand.
namespace Value {

constexpr QLatin1String Auto("Auto");
constexpr QLatin1String Manual("Manual");
constexpr QLatin1String Off("OFF");
constexpr QLatin1String None("None");
constexpr QLatin1String NotConnected("NA");

constexpr QLatin1String TxAndRx("TX and RX");
constexpr QLatin1String TxOnly("TX Only");
constexpr QLatin1String RxOnly("RX Only");

constexpr QLatin1String Code8B10B("8B10B");
constexpr QLatin1String Code64B66B("64B66B");
constexpr QLatin1String Code64B67B("64B67B");
constexpr QLatin1String TenGBaseR("10GBASER with FIFO");
constexpr QLatin1String AsyncFifo("Async with FIFO");

constexpr QLatin1String OneWord("One Word");
constexpr QLatin1String TwoWords("Two Words");
constexpr QLatin1String FourWords("Four Words");

constexpr QLatin1String Qpll0("QPLL0");
constexpr QLatin1String Qpll1("QPLL1");
constexpr QLatin1String Cpll("CPLL");

constexpr QLatin1String RefMux[] = {QLatin1String("REFMUX0"), QLatin1String("REFMUX1"),
                                    QLatin1String("REFMUX2"), QLatin1String("REFMUX3")};
constexpr QLatin1String Gpio("GPIO");
constexpr QLatin1String Mclk("MCLK");
/// The pin behind "GPIO".
constexpr QLatin1String GpioPin("Q0 REFIN");

} // namespace Value

} // namespace IPCUSTOMIZED
