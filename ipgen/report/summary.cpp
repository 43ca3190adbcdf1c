#include "ipgen/report/summary.h"

#include <core/idecore.h>
#include <serdesip/generator.h>
#include <serdesip/serdes.h>
#include <utils/filereplace.h>

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <memory>

namespace Ipgen {

namespace {

using Settings = QHash<QString, QString>;

/// The lines of resolved settings, "NAME VALUE".
Settings settingsOf(const QByteArray& text, QStringList* names) {
    Settings settings;
    const QStringList lines = QString::fromUtf8(text).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const int blank = line.indexOf(QLatin1Char(' '));
        settings.insert(line.left(blank), line.mid(blank + 1));
        names->append(line.left(blank));
    }
    return settings;
}

/// "10", "width_10" or "x2": the number in a setting's word; 0: none.
double numberIn(const QString& word) {
    static const QRegularExpression digits(QStringLiteral("(\\d+)"));
    return digits.match(word).captured(1).toDouble();
}

double margin(double value, const DEV::Range& range) {
    constexpr double percent = 100.0;
    const auto low = static_cast<double>(range.min);
    const auto high = static_cast<double>(range.max);
    if (low <= 0 || high <= 0) {
        return -1;
    }
    return std::max(0.0, percent * std::min((value - low) / low, (high - value) / high));
}

/// Parallel clocks from the lane's settings: the rate over the width of the direction, or of both.
void addParallelClocks(LaneClocking& clock, const Settings& settings) {
    constexpr double megaPerGiga = 1000.0;
    const QString front = clock.lane + QLatin1Char('_');
    const auto value = [&](const QString& name) { return settings.value(front + name); };
    double width = numberIn(value(QStringLiteral("pma_%1_width_mode").arg(clock.direction)));
    if (width <= 0) {
        width = numberIn(value(QStringLiteral("pma_width_mode")));
    }
    double rate = clock.madeGbps.toDouble() * megaPerGiga;
    const QString oversampled = value(clock.direction + QStringLiteral("_ovs_mode"));
    const double ratio = numberIn(value(clock.direction + QStringLiteral("_ovs_ratio")));
    if (!oversampled.isEmpty() && oversampled != QLatin1String("off") && ratio > 0) {
        rate /= ratio;
    }
    if (width > 0) {
        clock.wordClockMHz = rate / width;
        const double gearbox = numberIn(value(clock.direction + QStringLiteral("_gearbox")));
        clock.userClockMHz = gearbox > 0 ? clock.wordClockMHz / gearbox : 0;
    }
}

void addMargins(LaneClocking& clock, const DEV::DeviceInfo& device) {
    constexpr double megaPerGiga = 1000.0;
    const QString kind = clock.loop.section(QLatin1Char('_'), -1).toUpper();
    if (const DEV::ClockLoop* loop = device.loop(kind)) {
        clock.vcoMarginPercent = margin(clock.vcoMHz.toDouble(), loop->vcoMHz);
    }
    clock.rateMarginPercent =
        margin(clock.madeGbps.toDouble() * megaPerGiga,
               clock.direction == QLatin1String("tx") ? device.txRateMbps : device.rxRateMbps);
}

QList<LaneClocking> clocksOf(const QByteArray& text, const DEV::DeviceInfo* device) {
    static const QRegularExpression loopName(QStringLiteral("^(.+)_(tx|rx)_loop$"));
    QStringList names;
    const Settings settings = settingsOf(text, &names);
    QList<LaneClocking> clocks;
    for (const QString& name : qAsConst(names)) {
        const QRegularExpressionMatch match = loopName.match(name);
        if (!match.hasMatch()) {
            continue;
        }
        LaneClocking clock;
        clock.lane = match.captured(1);
        clock.direction = match.captured(2);
        const QString front = clock.lane + QLatin1Char('_') + clock.direction + QLatin1Char('_');
        const auto value = [&](const char* part) {
            return settings.value(front + QLatin1String(part));
        };
        clock.loop = value("loop");
        clock.reference = value("refclk");
        clock.referenceMHz = value("refclk_mhz");
        clock.m = value("m").toInt();
        clock.n = value("n").toInt();
        clock.d = value("d").toInt();
        clock.vcoMHz = value("vco_mhz");
        clock.madeGbps = value("made_gbps");
        clock.errorPpm = value("error_ppm");
        addParallelClocks(clock, settings);
        if (device != nullptr) {
            addMargins(clock, *device);
        }
        clocks.append(clock);
    }
    return clocks;
}

/// The context of this file's texts.
struct SummaryTexts {
    Q_DECLARE_TR_FUNCTIONS(SummaryTexts)
};

QString shortNumber(double value) {
    constexpr int digits = 9;
    return value > 0 ? QString::number(value, 'g', digits) : QStringLiteral("-");
}

QString percentText(double value) {
    return value < 0 ? QStringLiteral("-") : QString::number(value, 'f', 1) + QStringLiteral(" %");
}

} // namespace

Summary summarise(Trial& trial, const CatalogueEntry& entry, const QString& name,
                  const IPSERDESIP::ConfigMap& config, const DEV::DeviceArg& device) {
    Summary summary;
    summary.name = name;
    summary.ip = entry.id;
    summary.device = device.id();
    entry.protocol->setDevice(device);
    const std::unique_ptr<IPSERDESIP::Message> message(entry.protocol->resourceMessage(config));
    if (message) {
        summary.lanes = message->lanes;
        summary.plls = message->plls;
        summary.txRate = message->txRate;
        summary.rxRate = message->rxRate;
        for (int i = 0; i < message->refClocks.size(); ++i) {
            summary.references.append(
                QStringLiteral("%1 %2 MHz")
                    .arg(message->refClocks.at(i), shortNumber(message->refFrequencies.value(i))));
        }
    }
    const TrialResult generated = trial.run(entry, name, config);
    summary.status = generated.status;
    if (!summary.status.ok()) {
        return summary;
    }
    IPSERDESIP::serdes* model = IPSERDESIP::serdes::instance();
    model->clearDetails();
    const QString path = trial.folder() + QStringLiteral("/resolved");
    QStringList messages;
    QByteArray resolved;
    if (IPSERDESIP::generator().generate(generated.script, path, messages)) {
        Utils::readFile(path, &resolved);
        const auto info = Core::IdeCore::deviceDataBase().info(device);
        summary.clocks = clocksOf(resolved, info.get());
    } else {
        summary.problems = messages + model->details();
        if (summary.problems.isEmpty()) {
            summary.problems.append(SummaryTexts::tr("no divider setting gives these rates"));
        }
    }
    model->clearDetails();
    return summary;
}

QVariantMap summaryMap(const Summary& summary) {
    QVariantList clocks;
    for (const LaneClocking& clock : summary.clocks) {
        QVariantMap one{{"lane", clock.lane},
                        {"direction", clock.direction},
                        {"loop", clock.loop},
                        {"reference", clock.reference},
                        {"reference_mhz", clock.referenceMHz.toDouble()},
                        {"m", clock.m},
                        {"n", clock.n},
                        {"d", clock.d},
                        {"vco_mhz", clock.vcoMHz.toDouble()},
                        {"made_gbps", clock.madeGbps.toDouble()},
                        {"error_ppm", clock.errorPpm.toDouble()}};
        const auto add = [&one](const char* key, double value, bool known) {
            one.insert(QLatin1String(key), known ? QVariant(value) : QVariant());
        };
        add("vco_margin_percent", clock.vcoMarginPercent, clock.vcoMarginPercent >= 0);
        add("rate_margin_percent", clock.rateMarginPercent, clock.rateMarginPercent >= 0);
        add("word_clock_mhz", clock.wordClockMHz, clock.wordClockMHz > 0);
        add("user_clock_mhz", clock.userClockMHz, clock.userClockMHz > 0);
        clocks.append(one);
    }
    return {{"name", summary.name},      {"ip", summary.ip},
            {"device", summary.device},  {"lanes", summary.lanes},
            {"plls", summary.plls},      {"references", summary.references},
            {"tx_gbps", summary.txRate}, {"rx_gbps", summary.rxRate},
            {"clocks", clocks},          {"problems", summary.problems}};
}

QList<QStringList> clockTable(const Summary& summary) {
    QList<QStringList> rows;
    rows.append({SummaryTexts::tr("lane"), SummaryTexts::tr("loop"), SummaryTexts::tr("reference"),
                 QStringLiteral("m"), QStringLiteral("n"), QStringLiteral("d"),
                 SummaryTexts::tr("oscillator MHz"), SummaryTexts::tr("margin"),
                 SummaryTexts::tr("rate Gbps"), SummaryTexts::tr("error ppm"),
                 SummaryTexts::tr("rate margin"), SummaryTexts::tr("word clock MHz"),
                 SummaryTexts::tr("user clock MHz")});
    for (const LaneClocking& clock : summary.clocks) {
        rows.append({clock.lane + QLatin1Char(' ') + clock.direction, clock.loop,
                     QStringLiteral("%1 %2 MHz").arg(clock.reference, clock.referenceMHz),
                     QString::number(clock.m), QString::number(clock.n), QString::number(clock.d),
                     clock.vcoMHz, percentText(clock.vcoMarginPercent), clock.madeGbps,
                     clock.errorPpm, percentText(clock.rateMarginPercent),
                     shortNumber(clock.wordClockMHz), shortNumber(clock.userClockMHz)});
    }
    return rows;
}

QString summaryMarkdown(const Summary& summary) {
    QStringList lines{QStringLiteral("# %1").arg(summary.name), QString()};
    const auto item = [&lines](const QString& name, const QString& value) {
        lines.append(
            QStringLiteral("- %1: %2").arg(name, value.isEmpty() ? QStringLiteral("-") : value));
    };
    const QString comma = QStringLiteral(", ");
    item(SummaryTexts::tr("IP"), summary.ip);
    item(SummaryTexts::tr("device"), summary.device);
    item(SummaryTexts::tr("lanes"), summary.lanes.join(comma));
    item(SummaryTexts::tr("PLLs"), summary.plls.join(comma));
    item(SummaryTexts::tr("references"), summary.references.join(comma));
    item(SummaryTexts::tr("line rate, transmit"),
         shortNumber(summary.txRate) + QStringLiteral(" Gbps"));
    item(SummaryTexts::tr("line rate, receive"),
         shortNumber(summary.rxRate) + QStringLiteral(" Gbps"));
    for (const QString& problem : summary.problems) {
        item(SummaryTexts::tr("problem"), problem);
    }
    if (!summary.clocks.isEmpty()) {
        lines.append(QString());
        const QList<QStringList> rows = clockTable(summary);
        for (int i = 0; i < rows.size(); ++i) {
            lines.append(QStringLiteral("| %1 |").arg(rows.at(i).join(QStringLiteral(" | "))));
            if (i == 0) {
                lines.append(QLatin1Char('|') + QStringLiteral("---|").repeated(rows.at(0).size()));
            }
        }
    }
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

} // namespace Ipgen
