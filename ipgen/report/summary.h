#pragma once

#include "ipgen/report/trial.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace Ipgen {

/// The clocking of one direction of a lane as the generator resolves it. Texts keep every digit.
struct LaneClocking {
    QString lane;      ///< "q0_ln0"
    QString direction; ///< "tx" or "rx"
    QString loop;      ///< "q0_qpll1"
    QString reference; ///< "q0_refclk1"
    QString referenceMHz;
    int m = 0;
    int n = 0;
    int d = 0;
    QString vcoMHz;
    QString madeGbps;
    QString errorPpm;
    /// How far the oscillator is from its range's nearer end, in percent of that end; below 0:
    /// not known.
    double vcoMarginPercent = -1;
    double rateMarginPercent = -1; ///< likewise for the line rate
    /// The parallel clocks, MHz: rate over internal width, and over the gearbox too. 0: the script
    /// does not say.
    double wordClockMHz = 0;
    double userClockMHz = 0;
};

/// What an instance runs at.
struct Summary {
    Status status; ///< not ok: there is no instance, IP or script to speak of
    QString name;
    QString ip;
    QString device;
    QStringList lanes;
    QStringList plls;
    double txRate = 0.0; ///< Gbps
    double rxRate = 0.0;
    QStringList references; ///< "Q0_REFCLK0 156.25 MHz"
    QList<LaneClocking> clocks;
    /// Why there are no clocks; empty when there are.
    QStringList problems;
};

/// Generates in the trial's folder and resolves the script that comes out.
Summary summarise(Trial& trial, const CatalogueEntry& entry, const QString& name,
                  const IPSERDESIP::ConfigMap& config, const DEV::DeviceArg& device);

QVariantMap summaryMap(const Summary& summary);
/// Titled tables, for the eye and for documents.
QString summaryMarkdown(const Summary& summary);
/// The same as rows of texts, the first the headings.
QList<QStringList> clockTable(const Summary& summary);

} // namespace Ipgen
