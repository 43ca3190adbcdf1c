#include "serdesprivate.h"

#include <QRegularExpression>

#include <algorithm>

namespace IPSERDESIP {

namespace {

int quadOf(const QString& lane) {
    return lane.mid(1, 1).toInt();
}

/// "QPLL1" of "QPLL1" or "Q0_QPLL1".
QString pllKind(const QString& pll) {
    return pll.section(QLatin1Char('_'), -1);
}

/// The number of "REFMUX2"; -1 for any other text.
int muxNumber(const QString& text) {
    static const QRegularExpression form(QStringLiteral("\\AREFMUX([0-9])\\z"));
    const QRegularExpressionMatch match = form.match(text);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

struct Feed {
    int mux = -1; // -1: straight from the pin, or through whichever multiplexer is free
    QString pin;
    double frequency = 0.0;
};

/// What a choice of the dialogs ("REFMUX1", "GPIO", "Q0 REFIN", "MCLK") stands for.
Feed feedOf(const QString& choice, const QStringList& muxSources,
            const QList<double>& muxFrequencies) {
    Feed feed;
    feed.mux = muxNumber(choice);
    feed.pin = pinName(feed.mux < 0 ? choice : muxSources.value(feed.mux));
    feed.frequency = feed.mux < 0 ? 0.0 : muxFrequencies.value(feed.mux);
    return feed;
}

QString muxName(const Feed& feed, const QString& lane) {
    return feed.mux < 0 ? QString() : QStringLiteral("Q%1_MUX%2").arg(quadOf(lane)).arg(feed.mux);
}

} // namespace

bool serdes::Private::checkLane(const QString& lane, const QString& pllMux, const QString& rxMux,
                                LaneRoute& route) {
    if (!info) {
        addDetail(QStringLiteral("The device of the project is unknown."));
        return false;
    }
    QStringList problems{laneProblem(lane)};
    const DEV::ClockLoop* loop = info->loop(route.pll);
    if (loop == nullptr || route.pll == info->cdr.kind) {
        problems.append(QStringLiteral("%1 has no PLL %2.").arg(info->model, route.pll));
    } else if (problems.first().isEmpty()) {
        const auto path = [&](const QString& mux, const QString& pin, const QString& kind) {
            problems.append(info->pins.contains(pin)
                                ? accessProblem(mux, pin, quadOf(lane), {kind})
                                : QStringLiteral("%1 has no reference clock \"%2\".")
                                      .arg(info->model, pinText(pin)));
        };
        path(pllMux, route.pllReference, route.pll);
        path(rxMux, route.rxReference, info->cdr.kind);
        problems.append(pinProblem(route.pllReference, route.pllFrequency));
        problems.append(pinProblem(route.rxReference, route.rxFrequency));
        if (loop->shared) {
            problems.append(pllProblem(QStringLiteral("Q%1_%2").arg(quadOf(lane)).arg(route.pll),
                                       route.pllReference, route.pllFrequency));
        }
    }
    problems.removeAll(QString());
    for (const QString& problem : problems) {
        addDetail(problem);
    }
    route.granted = problems.isEmpty();
    return route.granted;
}

bool serdes::checkRoute(const QStringList& lanes, const QString& pll, const QString& source,
                        double frequency) {
    const QString pin = pinName(source);
    bool found = true;
    for (const QString& lane : lanes) {
        LaneRoute route;
        route.pll = pllKind(pll);
        route.pllReference = route.rxReference = pin;
        route.pllFrequency = route.rxFrequency = frequency;
        found = d->checkLane(lane, QString(), QString(), route) && found;
        d->routes.insert(lane, route);
    }
    return found;
}

bool serdes::checkRoute(const QStringList& lanes, const QString& pll, const QStringList& muxSources,
                        const QList<double>& muxFrequencies, const QString& pllSource,
                        const QString& rxSource) {
    const Feed pllFeed = feedOf(pllSource, muxSources, muxFrequencies);
    Feed rxFeed = feedOf(rxSource, muxSources, muxFrequencies);
    if (rxFeed.pin.isEmpty() || (d->info && !d->info->cdrSelectable)) {
        rxFeed = pllFeed; // no clock of its own: the receiver follows the PLL's
    }
    bool found = true;
    for (const QString& lane : lanes) {
        LaneRoute route;
        route.pll = pllKind(pll);
        route.pllReference = pllFeed.pin;
        route.pllFrequency = pllFeed.frequency;
        route.rxReference = rxFeed.pin;
        route.rxFrequency = rxFeed.frequency;
        found = d->checkLane(lane, muxName(pllFeed, lane), muxName(rxFeed, lane), route) && found;
        d->routes.insert(lane, route);
    }
    return found;
}

void serdes::resetLane(const QString& lane, int mode) {
    Q_UNUSED(mode)
    d->routes.remove(lane);
}

LaneRoute serdes::route(const QString& lane) const {
    return d->routes.value(lane);
}

} // namespace IPSERDESIP
