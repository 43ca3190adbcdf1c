#pragma once

#include <QLatin1String>

namespace IPCUSTOMIZED {

/// Texts of options that rules and writers compare with. They are saved as they stand.
namespace Value {

inline constexpr QLatin1String Auto("Auto");
inline constexpr QLatin1String Manual("Manual");
inline constexpr QLatin1String Off("OFF");
inline constexpr QLatin1String None("None");
inline constexpr QLatin1String NotConnected("NA");

inline constexpr QLatin1String TxAndRx("TX and RX");
inline constexpr QLatin1String TxOnly("TX Only");
inline constexpr QLatin1String RxOnly("RX Only");

inline constexpr QLatin1String Code8B10B("8B10B");
inline constexpr QLatin1String Code64B66B("64B66B");
inline constexpr QLatin1String Code64B67B("64B67B");
inline constexpr QLatin1String TenGBaseR("10GBASER with FIFO");
inline constexpr QLatin1String AsyncFifo("Async with FIFO");

inline constexpr QLatin1String OneWord("One Word");
inline constexpr QLatin1String TwoWords("Two Words");
inline constexpr QLatin1String FourWords("Four Words");

inline constexpr QLatin1String Qpll0("QPLL0");
inline constexpr QLatin1String Qpll1("QPLL1");
inline constexpr QLatin1String Cpll("CPLL");

inline constexpr QLatin1String RefMux[] = {QLatin1String("REFMUX0"), QLatin1String("REFMUX1"),
                                    QLatin1String("REFMUX2"), QLatin1String("REFMUX3")};
inline constexpr QLatin1String Gpio("GPIO");
inline constexpr QLatin1String Mclk("MCLK");
/// The pin behind "GPIO".
inline constexpr QLatin1String GpioPin("Q0 REFIN");

} // namespace Value

} // namespace IPCUSTOMIZED
