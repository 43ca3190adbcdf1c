#pragma once

#include "dev/export.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace DEV {

/// Both bounds belong to the range.
struct Range {
    qint64 min = 0;
    qint64 max = 0;
    bool contains(qint64 value) const { return value >= min && value <= max; }
};

/// One clock loop: a PLL, or the receiver's clock recovery. With the reference F (MHz) its
/// oscillator runs at F * n / m MHz, and the line at 2 * oscillator / d Mbit/s (both edges).
struct ClockLoop {
    /// "QPLL0", "QPLL1", "CPLL" or "CDR".
    QString kind;
    /// One for the whole quad; otherwise each lane has its own.
    bool shared = false;
    Range vcoMHz;
    /// The divider values that exist, ascending, none twice, all above 0: of the reference, of the
    /// feedback, of the output.
    QVector<int> m;
    QVector<int> n;
    QVector<int> d;
};

/// A reference clock multiplexer of one quad.
struct Multiplexer {
    QString name; ///< "Q0_MUX1"
    int quad = 0;
    QStringList sources; ///< host names of the pins that it can be set to
    QStringList feeds;   ///< kinds of the quad's loops that it reaches
};

/// A pin that reaches loops of a quad without a multiplexer.
struct DirectInput {
    QString source;
    int quad = 0;
    QStringList feeds;
};

/// All that the database knows of one device. Units: MHz and Mbit/s, whole numbers.
struct HOST_DEV_EXPORT DeviceInfo {
    QString id;
    QString model;
    QString className;
    int quads = 0;
    int lanesPerQuad = 0;
    QStringList pins; ///< host names of the reference clock pins ("Q0_REFCLK0", "MCLK")
    QVector<Multiplexer> multiplexers;
    QVector<DirectInput> directInputs;
    QVector<ClockLoop> plls; ///< the kinds that a transmitter can use
    ClockLoop cdr;
    /// Whether a receiver's reference can be chosen apart from the PLL's; otherwise it takes any
    /// reference that serves.
    bool cdrSelectable = false;
    Range txRateMbps; ///< on the line: after oversampling
    Range rxRateMbps;
    Range referenceMHz;

    /// "Q0 Lane0", quad by quad.
    QStringList laneCaptions() const;
    /// "Q0_QPLL0" for a quad's, "Q0_LN0_CPLL" for a lane's own.
    QStringList pllNames() const;
    /// The multiplexers' names.
    QStringList multiplexerNames() const;
    /// The PLL of a kind or the "CDR"; null when the device has none.
    const ClockLoop* loop(const QString& kind) const;
    /// Null when the device has none of the name.
    const Multiplexer* multiplexer(const QString& name) const;
};

} // namespace DEV
