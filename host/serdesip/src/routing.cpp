#include "serdesprivate.h"

#include "serdesip/refnames.h"

#include <QRegularExpression>

#include <algorithm>

namespace IPSERDESIP {

namespace {

bool reaches(const QStringList& feeds, const QStringList& kinds) {
    return std::any_of(kinds.begin(), kinds.end(),
                       [&](const QString& kind) { return feeds.contains(kind); });
}

QString listText(const QStringList& names) {
    return names.join(QStringLiteral(", "));
}

} // namespace

QString pinName(const QString& text) {
    if (text == QLatin1String("GPIO")) {
        return QStringLiteral("Q0_REFIN");
    }
    const QString host = refsrcOptTransforSerdesName(text);
    return host.isEmpty() && !refsrcSerdesNameTransforOpt(text).isEmpty() ? text : host;
}

QString pinText(const QString& pin) {
    const QString option = refsrcSerdesNameTransforOpt(pin);
    return option.isEmpty() ? pin : option;
}

QString numberText(double value) {
    return QString::number(value, 'g', 15);
}

bool sameNumber(double recorded, double asked) {
    return numberText(recorded) == numberText(asked) ||
           QString::number(recorded, 'g', 6) == numberText(asked);
}

RouteTarget routeTarget(const DEV::DeviceInfo& info, const QString& target) {
    static const QRegularExpression form(QStringLiteral("\\Aquad([0-9])_(TX|RX|LANE)\\z"));
    const QRegularExpressionMatch match = form.match(target);
    RouteTarget result;
    if (!match.hasMatch() || match.captured(1).toInt() >= info.quads) {
        return result;
    }
    result.quad = match.captured(1).toInt();
    if (match.captured(2) != QLatin1String("RX")) {
        for (const DEV::ClockLoop& pll : info.plls) {
            result.kinds.append(pll.kind);
        }
    }
    if (match.captured(2) != QLatin1String("TX")) {
        result.kinds.append(info.cdr.kind);
    }
    return result;
}

// With a multiplexer: through that one. Without: through any of the quad's, or straight.
QString serdes::Private::accessProblem(const QString& mux, const QString& pin, int quad,
                                       const QStringList& kinds) const {
    QStringList blocked;
    QStringList passable; // what would work where the given multiplexer does not
    bool straight = false;
    for (const DEV::DirectInput& input : info->directInputs) {
        straight =
            straight || (input.source == pin && input.quad == quad && reaches(input.feeds, kinds));
    }
    for (const DEV::Multiplexer& candidate : info->multiplexers) {
        if (candidate.quad != quad || !candidate.sources.contains(pin) ||
            !reaches(candidate.feeds, kinds)) {
            continue;
        }
        const Holdings::Use use = other(candidate.name);
        if (use.owner.isEmpty() || use.setting == pin) {
            passable.append(candidate.name);
        } else if (mux.isEmpty() || mux == candidate.name) {
            blocked.append(QStringLiteral("%1 is set to %2 by %3")
                               .arg(candidate.name, pinText(use.setting), use.owner));
        }
    }
    if (mux.isEmpty() ? straight || !passable.isEmpty() : passable.contains(mux)) {
        return {};
    }
    QString sentence = QStringLiteral("%1 cannot reach quad %2").arg(pinText(pin)).arg(quad);
    if (!mux.isEmpty()) {
        sentence += QStringLiteral(" through %1").arg(mux);
    }
    const DEV::Multiplexer* given = info->multiplexer(mux);
    if (!blocked.isEmpty()) {
        sentence += QStringLiteral(": ") + blocked.join(QStringLiteral("; "));
    } else if (given != nullptr && given->quad == quad) {
        QStringList sources;
        for (const QString& source : given->sources) {
            sources.append(pinText(source));
        }
        sentence += QStringLiteral(": it takes %1").arg(listText(sources));
    } else {
        sentence += QStringLiteral(": the device has no such path");
    }
    if (!passable.isEmpty()) {
        sentence += QStringLiteral("; it can pass %1").arg(listText(passable));
    } else if (straight) {
        sentence += QStringLiteral("; it needs no multiplexer");
    }
    return sentence + QLatin1Char('.');
}

QString serdes::Private::pllProblem(const QString& pll, const QString& pin,
                                    double frequency) const {
    const Holdings::Use use = other(pll);
    if (use.owner.isEmpty() || use.reference.isEmpty() ||
        (use.reference == pin && (!(frequency > 0.0) || sameNumber(use.frequency, frequency)))) {
        return {};
    }
    QStringList unoccupied;
    for (const QString& name : info->pllNames()) {
        if (name.startsWith(pll.left(3)) && !name.endsWith(QLatin1String("CPLL")) &&
            other(name).owner.isEmpty()) {
            unoccupied.append(name);
        }
    }
    return QStringLiteral(
               "%1 is held by %2, with %3 at %4 MHz as its reference; it cannot also take "
               "%5. Free: %6.")
        .arg(pll, use.owner, pinText(use.reference), numberText(use.frequency),
             frequency > 0.0
                 ? QStringLiteral("%1 at %2 MHz").arg(pinText(pin), numberText(frequency))
                 : pinText(pin),
             unoccupied.isEmpty() ? QStringLiteral("the lanes' own CPLL")
                                  : listText(unoccupied) + QStringLiteral(", the lanes' own CPLL"));
}

QString serdes::Private::freePins() const {
    QStringList unoccupied;
    for (const QString& name : info->pins) {
        if (other(name).owner.isEmpty()) {
            unoccupied.append(pinText(name));
        }
    }
    return unoccupied.isEmpty() ? QStringLiteral("none") : listText(unoccupied);
}

QString serdes::Private::pinProblem(const QString& pin, double frequency) const {
    const Holdings::Use use = other(pin);
    if (use.owner.isEmpty() || !(frequency > 0.0) || sameNumber(use.frequency, frequency)) {
        return {};
    }
    return QStringLiteral("%1 carries %2 MHz for %3; it cannot be %4 MHz. Free: %5.")
        .arg(pinText(pin), numberText(use.frequency), use.owner, numberText(frequency), freePins());
}

QString serdes::Private::pinUse(const QString& pin) const {
    const Holdings::Use use = other(pin);
    return use.owner.isEmpty() ? QString()
                               : QStringLiteral("%1 carries %2 MHz for %3. Free: %4.")
                                     .arg(pinText(pin), numberText(use.frequency), use.owner,
                                          freePins());
}

QString serdes::Private::laneProblem(const QString& lane) const {
    QStringList unoccupied;
    const QStringList captions = info->laneCaptions();
    if (captions.contains(lane) && other(lane).owner.isEmpty()) {
        return {};
    }
    for (const QString& name : captions) {
        if (other(name).owner.isEmpty()) {
            unoccupied.append(name);
        }
    }
    const QString why = captions.contains(lane)
                            ? QStringLiteral("is held by %1").arg(other(lane).owner)
                            : QStringLiteral("does not exist on %1").arg(info->model);
    return QStringLiteral("%1 %2. Free: %3.")
        .arg(lane, why, unoccupied.isEmpty() ? QStringLiteral("none") : listText(unoccupied));
}

bool serdes::checkAccess(const QString& source, const QString& target) const {
    return checkAccess(QString(), source, target);
}

bool serdes::checkAccess(const QString& mux, const QString& source, const QString& target) const {
    if (!d->info) {
        d->addDetail(QStringLiteral("The device of the project is unknown."));
        return false;
    }
    const QString pin = pinName(source);
    const RouteTarget goal = routeTarget(*d->info, target);
    QString problem;
    if (!d->info->pins.contains(pin)) {
        problem = QStringLiteral("%1 has no reference clock %2.").arg(d->info->model, source);
    } else if (goal.quad < 0) {
        problem = QStringLiteral("%1 has no %2.").arg(d->info->model, target);
    } else {
        problem = d->accessProblem(mux, pin, goal.quad, goal.kinds);
    }
    d->addDetail(problem);
    return problem.isEmpty();
}

} // namespace IPSERDESIP
