#pragma once

#include "model/config/latin.h"

namespace IPCUSTOMIZED {

/// Texts of options that rules and writers compare with. They are saved as they stand.
namespace Value {

inline constexpr QLatin1String Auto = "Auto"_l1;
inline constexpr QLatin1String Manual = "Manual"_l1;
inline constexpr QLatin1String Off = "OFF"_l1;
inline constexpr QLatin1String None = "None"_l1;
inline constexpr QLatin1String NotConnected = "NA"_l1;

inline constexpr QLatin1String TxAndRx = "TX and RX"_l1;
inline constexpr QLatin1String TxOnly = "TX Only"_l1;
inline constexpr QLatin1String RxOnly = "RX Only"_l1;

inline constexpr QLatin1String Code8B10B = "8B10B"_l1;
inline constexpr QLatin1String Code64B66B = "64B66B"_l1;
inline constexpr QLatin1String Code64B67B = "64B67B"_l1;
inline constexpr QLatin1String TenGBaseR = "10GBASER with FIFO"_l1;
inline constexpr QLatin1String AsyncFifo = "Async with FIFO"_l1;

inline constexpr QLatin1String OneWord = "One Word"_l1;
inline constexpr QLatin1String TwoWords = "Two Words"_l1;
inline constexpr QLatin1String FourWords = "Four Words"_l1;

inline constexpr QLatin1String Qpll0 = "QPLL0"_l1;
inline constexpr QLatin1String Qpll1 = "QPLL1"_l1;
inline constexpr QLatin1String Cpll = "CPLL"_l1;

inline constexpr QLatin1String RefMux[] = {"REFMUX0"_l1, "REFMUX1"_l1, "REFMUX2"_l1, "REFMUX3"_l1};
inline constexpr QLatin1String Gpio = "GPIO"_l1;
inline constexpr QLatin1String Mclk = "MCLK"_l1;
/// The pin behind "GPIO".
inline constexpr QLatin1String GpioPin = "Q0 REFIN"_l1;

} // namespace Value

} // namespace IPCUSTOMIZED
