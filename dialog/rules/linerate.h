#pragma once

#include <QString>
#include <QStringList>

namespace IPCUSTOMIZED::rules {

/// What a rate field shows once it is left: the typed rate when it lies in range (Gbps, bounds
/// included), else "1.25". A rate without its leading zero gets it: Verilog reads no ".625".
QString correctedTxRate(const QString& typed); ///< 0.025 ... 12.5: oversampling serves slow rates
QString correctedRxRate(const QString& typed); ///< 1.0 ... 12.5

/// Text with every "x" removed, as a number; 0 for a text that is no number.
double ratioFactor(const QString& ratio);

/// The transmit ratio box after a change of the rate or of the shared PLL.
struct RatioBox {
    /// Which rule follows a choice of the user's.
    enum class Follows { Nothing, CheckRate, SetRate };

    QStringList items;
    QString selected;
    bool enabled = false;
    Follows follows = Follows::Nothing;
};
/// @param rate        the transmit rate, Gbps
/// @param realRate    the rate that another instance fixes on the PLL, Gbps; 0: the PLL is free
/// @param remembered  the ratio chosen so far
RatioBox ratioBox(double rate, double realRate, const QString& remembered);

/// A rate below 1 Gbps must reach it with its ratio, unless another instance fixes the PLL.
bool reachesOneGigabit(double rate, double realRate, const QString& ratio);

/// The transmit rate that a fixed real rate leaves at a ratio ("NA" is 1); empty: no change,
/// because the PLL is free or the text is no ratio.
QString rateAtRatio(double realRate, const QString& ratio);

} // namespace IPCUSTOMIZED::rules
