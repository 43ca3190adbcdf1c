#include "scriptsolver.h"

#include "serdesprivate.h"

#include <algorithm>

namespace IPSERDESIP {

namespace {

constexpr Milli million = 1000000000; // 1 MHz in mHz, 1 Mbit/s in mbit/s

int quadOf(const QString& lane) {
    return lane.mid(1, 1).toInt();
}

/// "Q0 Lane2" of "q0_ln2".
QString caption(const QString& lane) {
    return QStringLiteral("Q%1 Lane%2").arg(lane.mid(1, 1), lane.right(1));
}

QString loopName(const DEV::ClockLoop& loop, const QString& lane) {
    return (loop.shared ? lane.left(2) : lane) + QLatin1Char('_') + loop.kind.toLower();
}

QString gbps(Milli rate) {
    return milliText(rate, gbpsDecimals);
}

QString megahertz(Milli frequency) {
    return milliText(frequency, mhzDecimals);
}

Milli milliOf(double value, int decimals) {
    return parseMilli(QString::number(value, 'f', decimals), decimals).value_or(0);
}

/// "From 130 MHz CPLL makes 1.235 Gbit/s (-12000.0 ppm), …": what is nearest in the range.
QString nearRatesText(const DEV::ClockLoop& loop, Milli reference, Milli rate,
                      const DEV::Range& range) {
    const Neighbours rates = nearestRates(loop, reference, rate);
    QStringList near;
    for (const Milli made : {rates.below, rates.above}) {
        if (made >= range.min * million && made <= range.max * million) {
            const double ppm = double(made - rate) * 1e6 / double(rate);
            near.append(
                QStringLiteral("%1 Gbit/s (%2 ppm)").arg(gbps(made), QString::number(ppm, 'f', 1)));
        }
    }
    return QStringLiteral("From %1 MHz the nearest rates of %2 are %3.")
        .arg(megahertz(reference), loop.kind,
             near.isEmpty() ? QStringLiteral("none") : near.join(QStringLiteral(" and ")));
}

QString nearReferencesText(const DEV::ClockLoop& loop, Milli reference, Milli rate,
                           const DEV::Range& references) {
    const Neighbours clocks = nearestReferences(loop, reference, rate, references);
    QStringList near;
    for (const Milli frequency : {clocks.below, clocks.above}) {
        const QVector<Dividers> dividers = solveDividers(loop, frequency, {rate});
        if (!dividers.isEmpty()) {
            near.append(
                QStringLiteral("%1 MHz (%2 ppm)")
                    .arg(megahertz(frequency), errorPpmText(dividers.first(), frequency, rate)));
        }
    }
    return QStringLiteral("The nearest reference frequencies with which %1 makes %2 Gbit/s are %3.")
        .arg(loop.kind, gbps(rate),
             near.isEmpty() ? QStringLiteral("none") : near.join(QStringLiteral(" and ")));
}

} // namespace

ScriptSolver::ScriptSolver(const Script& script, const DEV::DeviceInfo& device)
    : m_script(script)
    , m_device(device) {}

bool ScriptSolver::transmits(const QString& lane) const {
    return m_script.value(lane + QLatin1String("_loopback_mode")) != QLatin1String("rx_only");
}

bool ScriptSolver::receives(const QString& lane) const {
    return m_script.value(lane + QLatin1String("_loopback_mode")) != QLatin1String("tx_only");
}

Milli ScriptSolver::rateOf(const QString& lane, const QString& direction) const {
    const QString text = m_script.value(QStringLiteral("%1_%2_rate").arg(lane, direction));
    return parseMilli(text, gbpsDecimals).value_or(0);
}

void ScriptSolver::checkFrequencies() {
    const DEV::Range& range = m_device.referenceMHz;
    for (const PinFrequency& given : m_script.pins()) {
        const QString& name = given.setting;
        const Setting setting = m_script.setting(name);
        const Milli frequency = parseMilli(setting.value, mhzDecimals).value_or(0);
        if (frequency < range.min * million || frequency > range.max * million) {
            m_errors.append(
                lineError(setting.line, QStringLiteral("%1 \"%2\": must be %3 to %4 MHz")
                                            .arg(name, setting.value)
                                            .arg(range.min)
                                            .arg(range.max)));
        }
    }
}

void ScriptSolver::checkRate(const QString& name, const DEV::Range& range) {
    const Setting setting = m_script.setting(name);
    const Milli rate = parseMilli(setting.value, gbpsDecimals).value_or(0);
    if (setting.line > 0 && (rate < range.min * million || rate > range.max * million)) {
        m_errors.append(
            lineError(setting.line, QStringLiteral("%1 \"%2\": must be %3 to %4 Gbit/s")
                                        .arg(name, setting.value, gbps(range.min * million),
                                             gbps(range.max * million))));
    }
}

void ScriptSolver::checkOversampling(const QString& lane) {
    const Setting ratio = m_script.setting(lane + QLatin1String("_tx_ovs_ratio"));
    const QString mode = m_script.value(lane + QLatin1String("_tx_ovs_mode"));
    if (ratio.line > 0 &&
        (mode == QLatin1String("buildin")) == (ratio.value == QLatin1String("na"))) {
        m_errors.append(
            lineError(ratio.line, QStringLiteral("%1_tx_ovs_ratio \"%2\": does not go with "
                                                 "%1_tx_ovs_mode \"%3\"")
                                      .arg(lane, ratio.value, mode)));
    }
}

// The dialog takes over what the first quad's PLL runs at; a second quad's, or a route chosen by
// hand, can still disagree with the instance that holds it.
void ScriptSolver::checkHolders(const QString& lane) {
    const serdes* model = serdes::instance();
    const Setting enable = m_script.setting(lane + QLatin1String("_enable"));
    const QStringList holder = model->owners(caption(lane), 1);
    if (!holder.isEmpty()) {
        m_errors.append(lineError(
            enable.line, QStringLiteral("%1 is held by %2").arg(caption(lane), holder.first())));
    }
    const QString kind = m_script.value(lane + QLatin1String("_pll_sel")).toUpper();
    const QString pll = QStringLiteral("Q%1_%2").arg(quadOf(lane)).arg(kind);
    const QMap<QString, QVariant> taken = model->getMessageByPLL(pll);
    if (taken.isEmpty() || !transmits(lane)) {
        return;
    }
    const double fixed = taken.value(QStringLiteral("TX_Line_Rate")).toDouble();
    const Setting rate = m_script.setting(lane + QLatin1String("_tx_rate"));
    const QString owner = model->owners(pll, 1).value(0);
    if (!sameNumber(fixed, rate.value.toDouble())) {
        m_errors.append(
            lineError(rate.line, QStringLiteral("%1_tx_rate \"%2\": %3 is held by %4 "
                                                "and runs at %5 Gbit/s")
                                     .arg(lane, rate.value, pll, owner, numberText(fixed))));
    }
    const QString source = taken.value(QStringLiteral("Reference_Clock_Source")).toString();
    const double frequency = taken.value(QStringLiteral("Reference_Clock_Frequency")).toDouble();
    const QString pin = pinName(source);
    const LaneRoute route = model->route(caption(lane));
    const QVector<Reference> all = candidates(quadOf(lane), kind);
    const bool offered = std::any_of(
        all.begin(), all.end(), [&](const Reference& reference) { return reference.pin == pin; });
    if (!pin.isEmpty() && (route.isNull() ? !offered : route.pllReference != pin)) {
        const QString instead =
            route.isNull() ? QStringLiteral("the script does not give that clock")
                           : QStringLiteral("it cannot take %1").arg(pinText(route.pllReference));
        m_errors.append(
            lineError(m_script.setting(lane + QLatin1String("_pll_sel")).line,
                      QStringLiteral("%1 is held by %2 with %3 at %4 MHz as its reference; %5")
                          .arg(pll, owner, source, numberText(frequency), instead)));
    }
}

void ScriptSolver::checkLane(const QString& lane) {
    const int line = m_script.setting(lane + QLatin1String("_enable")).line;
    QStringList needed{lane + QLatin1String("_pll_sel"), lane + QLatin1String("_loopback_mode")};
    if (transmits(lane)) {
        needed +=
            QStringList{lane + QLatin1String("_tx_rate"), lane + QLatin1String("_tx_ovs_mode"),
                        lane + QLatin1String("_tx_ovs_ratio")};
        checkRate(lane + QLatin1String("_tx_rate"), m_device.txRateMbps);
        checkOversampling(lane);
    }
    if (receives(lane)) {
        needed +=
            QStringList{lane + QLatin1String("_rx_rate"), lane + QLatin1String("_cdr_refclk_sel")};
        checkRate(lane + QLatin1String("_rx_rate"), m_device.rxRateMbps);
        const Setting source = m_script.setting(lane + QLatin1String("_cdr_refclk_sel"));
        if (source.line > 0 && source.value.isEmpty()) {
            m_errors.append(
                lineError(source.line, QStringLiteral("%1_cdr_refclk_sel has no value").arg(lane)));
        }
    }
    for (const QString& name : needed) {
        if (m_script.setting(name).line == 0) {
            m_errors.append(lineError(
                line, QStringLiteral("%1 is enabled, but %2 is missing").arg(lane, name)));
        }
    }
    if (m_script.value(lane.left(2) + QLatin1String("_enable")) != QLatin1String("true")) {
        m_errors.append(lineError(
            line, QStringLiteral("%1 is enabled, but %2 is not").arg(lane, lane.left(2))));
    }
    checkHolders(lane);
}

QVector<ScriptSolver::Group> ScriptSolver::transmitGroups() const {
    QVector<Group> groups;
    for (const QString& lane : m_script.enabledLanes()) {
        if (!transmits(lane)) {
            continue;
        }
        const int quad = quadOf(lane);
        const QString kind = m_script.value(lane + QLatin1String("_pll_sel")).toUpper();
        const DEV::ClockLoop* loop = m_device.loop(kind);
        const auto known = std::find_if(groups.begin(), groups.end(), [&](const Group& group) {
            return loop != nullptr && loop->shared && group.loop == loop && group.quad == quad;
        });
        if (known != groups.end()) {
            known->lanes.append(lane);
        } else {
            groups.append({quad, loop, {lane}});
        }
    }
    return groups;
}

QVector<Reference> ScriptSolver::candidates(int quad, const QString& kind) const {
    QVector<Reference> found;
    for (const PinFrequency& given : m_script.pins()) {
        const QString& pin = given.pin;
        const bool muxed = std::any_of(m_device.multiplexers.begin(), m_device.multiplexers.end(),
                                       [&](const DEV::Multiplexer& mux) {
                                           return mux.quad == quad && mux.sources.contains(pin) &&
                                                  mux.feeds.contains(kind);
                                       });
        const bool direct = std::any_of(m_device.directInputs.begin(), m_device.directInputs.end(),
                                        [&](const DEV::DirectInput& input) {
                                            return input.quad == quad && input.source == pin &&
                                                   input.feeds.contains(kind);
                                        });
        if (muxed || direct) {
            found.append({pin, parseMilli(m_script.value(given.setting), mhzDecimals).value_or(0)});
        }
    }
    return found;
}

namespace {

/// Only the wanted pin, at the script's frequency, else at the recorded one; all when none is
/// wanted or its frequency is not known.
QVector<Reference> wantedOnly(const QVector<Reference>& all, const QString& pin, double recorded) {
    if (pin.isEmpty()) {
        return all;
    }
    const auto it = std::find_if(all.begin(), all.end(),
                                 [&](const Reference& reference) { return reference.pin == pin; });
    if (it != all.end()) {
        return {*it};
    }
    const Milli frequency = recorded > 0.0 ? milliOf(recorded, mhzDecimals) : 0;
    return frequency > 0 ? QVector<Reference>{{pin, frequency}} : all;
}

} // namespace

QVector<Reference> ScriptSolver::transmitCandidates(const Group& group) const {
    const serdes* model = serdes::instance();
    const LaneRoute route = model->route(caption(group.lanes.first()));
    const QVector<Reference> all = candidates(group.quad, group.loop->kind);
    const QString pll = QStringLiteral("Q%1_%2").arg(group.quad).arg(group.loop->kind);
    const QMap<QString, QVariant> taken = model->getMessageByPLL(pll);
    if (!taken.isEmpty()) {
        const QString pin =
            pinName(taken.value(QStringLiteral("Reference_Clock_Source")).toString());
        return wantedOnly(all, pin,
                          taken.value(QStringLiteral("Reference_Clock_Frequency")).toDouble());
    }
    return wantedOnly(all, route.pllReference, route.pllFrequency);
}

QVector<Reference> ScriptSolver::receiveCandidates(const QString& lane) const {
    const LaneRoute route = serdes::instance()->route(caption(lane));
    QVector<Reference> all = candidates(quadOf(lane), m_device.cdr.kind);
    if (m_device.cdrSelectable && !route.rxReference.isEmpty()) {
        return wantedOnly(all, route.rxReference, route.rxFrequency);
    }
    // Left to the host: the transmitter's clock if it serves, else any other.
    const auto transmit = std::find_if(m_clocks.begin(), m_clocks.end(),
                                       [&](const LaneClock& clock) { return clock.lane == lane; });
    if (transmit != m_clocks.end()) {
        const QString pin = transmit->reference.pin;
        std::stable_partition(all.begin(), all.end(),
                              [&](const Reference& reference) { return reference.pin == pin; });
    }
    return all;
}

bool ScriptSolver::solveGroup(const Group& group, const QString& direction,
                              const QVector<Reference>& references) {
    QVector<Milli> rates;
    for (const QString& lane : group.lanes) {
        rates.append(rateOf(lane, direction));
    }
    for (const Reference& reference : references) {
        const QVector<Dividers> dividers = solveDividers(*group.loop, reference.frequency, rates);
        if (dividers.isEmpty()) {
            continue;
        }
        for (int i = 0; i < rates.size(); ++i) {
            m_clocks.append({group.lanes.at(i), direction, loopName(*group.loop, group.lanes.at(i)),
                             reference, rates.at(i), dividers.at(i)});
        }
        return true;
    }
    explain(group, direction, references);
    return false;
}

void ScriptSolver::explain(const Group& group, const QString& direction,
                           const QVector<Reference>& references) {
    const auto note = [this](const QString& sentence) {
        if (!m_details.contains(sentence)) { // lanes alike are explained once
            m_details.append(sentence);
        }
    };
    const DEV::ClockLoop& loop = *group.loop;
    if (references.isEmpty()) {
        note(QStringLiteral("No reference clock of the script reaches %1 of quad %2.")
                 .arg(loop.kind)
                 .arg(group.quad));
    }
    QStringList rates;
    for (const QString& lane : group.lanes) {
        rates.append(gbps(rateOf(lane, direction)));
    }
    rates.removeDuplicates();
    const Milli rate = rateOf(group.lanes.first(), direction);
    for (const Reference& reference : references) {
        note(
            QStringLiteral("No divider setting of %1 makes %2 Gbit/s (%3) from %4 at %5 MHz within "
                           "%6 ppm.")
                .arg(loop.kind, rates.join(QStringLiteral(" and ")), direction,
                     pinText(reference.pin), megahertz(reference.frequency))
                .arg(tolerancePpm));
        if (rates.size() == 1) {
            note(nearRatesText(loop, reference.frequency, rate,
                               direction == QLatin1String("tx") ? m_device.txRateMbps
                                                                : m_device.rxRateMbps));
            note(nearReferencesText(loop, reference.frequency, rate, m_device.referenceMHz));
        }
    }
}

bool ScriptSolver::solve() {
    checkFrequencies();
    const QStringList lanes = m_script.enabledLanes();
    for (const QString& lane : lanes) {
        checkLane(lane);
    }
    if (!m_errors.isEmpty()) {
        return false;
    }
    bool solved = true;
    for (const Group& group : transmitGroups()) {
        solved = solveGroup(group, QStringLiteral("tx"), transmitCandidates(group)) && solved;
    }
    for (const QString& lane : lanes) {
        if (receives(lane)) {
            const Group group{quadOf(lane), &m_device.cdr, {lane}};
            solved = solveGroup(group, QStringLiteral("rx"), receiveCandidates(lane)) && solved;
        }
    }
    return solved;
}

} // namespace IPSERDESIP
