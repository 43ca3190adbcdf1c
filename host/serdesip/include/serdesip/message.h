#pragma once

#include "serdesip/export.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

namespace IPSERDESIP {

/// The transceiver resources that one configured instance occupies, in host names ("Q0_LANE0" for
/// a lane's caption "Q0 Lane0"; "Q0_QPLL1"; "Q0_REFCLK1"; "Q0_MUX0"). The resource model is built
/// from these.
class HOST_SERDESIP_EXPORT Message {
public:
    /// The name of the protocol model that made the message.
    QString protocol;
    /// The instance: its configured file, ":", its module.
    QString instance;
    QString file;
    QString module;

    /// Lane captions ("Q0 Lane0"), in lane order.
    QStringList lanes;
    /// Per-lane resource names, "Q0_LN0_LANE", then per direction "Q0_LN0_TX", "Q0_LN0_RX".
    QStringList laneResources;
    /// PLLs in use: "Q0_QPLL0", "Q0_QPLL1", "Q1_QPLL0", "Q1_QPLL1"; "Q0_LN0_CPLL" for a lane's own.
    QStringList plls;
    /// Reference clocks in use, host names, with their frequencies in MHz beside them. The PLL's
    /// reference comes first.
    QStringList refClocks;
    QList<double> refFrequencies;
    /// Multiplexers in use and the host name of the source that each is set to.
    QMap<QString, QString> muxes;

    /// Line rates in Gbps as configured. realTxRate is the serial rate of the transmit PLL: the
    /// configured rate times the oversampling ratio, or the rate taken over from a shared PLL.
    double txRate = 0.0;
    double rxRate = 0.0;
    double realTxRate = 0.0;

    /// Whether there are receivers and no transmitter: such an instance sets neither the rate nor
    /// the reference of the PLLs that it names.
    bool receivesOnly() const;
};

} // namespace IPSERDESIP
