#pragma once

#include "holdings.h"

#include "serdesip/serdes.h"

#include <QHash>

#include <memory>
#include <vector>

namespace IPSERDESIP {

struct serdes::Private {
    DEV::DeviceArg device;
    std::shared_ptr<const DEV::DeviceInfo> info;
    QString workingDir;
    QMap<QString, QVariant> data;
    bool dataChanged = false;

    Holdings holdings;
    QString editing;
    QHash<QString, LaneRoute> routes; // by lane
    QStringList details;

    /// The device's resources as plug-ins see them. Their uses are brought up to date when they
    /// are next asked for.
    std::vector<std::unique_ptr<Instance>> resources;
    QMap<QString, Instance*> resourceByName;
    bool resourcesStale = false;

    void createResources();
    void refreshResources();
    /// The use of a resource by an instance that is not being edited.
    Holdings::Use other(const QString& resource) const { return holdings.other(resource, editing); }

    // What refuses a part of a route; an empty text: nothing does. The sentence is for the user.
    QString accessProblem(const QString& mux, const QString& pin, int quad,
                          const QStringList& kinds) const;
    QString pllProblem(const QString& pll, const QString& pin, double frequency) const;
    QString pinProblem(const QString& pin, double frequency) const;
    QString laneProblem(const QString& lane) const;
    /// Who uses a pin, and which are free; empty: nobody else does.
    QString pinUse(const QString& pin) const;
    QString freePins() const;
    /// The whole route of a lane; notes every problem and tells whether there is none.
    bool checkLane(const QString& lane, const QString& pllMux, const QString& rxMux,
                   LaneRoute& route);

    void addDetail(const QString& sentence);
};

/// The host name of a pin given by host name or option text ("GPIO" is Q0_REFIN); else empty.
QString pinName(const QString& text);
/// "Q0 REFCLK1" for "Q0_REFCLK1": pins in sentences read as in the dialogs.
QString pinText(const QString& pin);
/// The quad and kinds of loops of a target, "quad0_TX", "quad1_RX", "quad0_LANE". Quad -1: none.
struct RouteTarget {
    int quad = -1;
    QStringList kinds;
};
RouteTarget routeTarget(const DEV::DeviceInfo& info, const QString& target);
/// Whether a frequency (or rate) asked for is the one recorded, in full or as dialogs show it,
/// with six digits.
bool sameNumber(double recorded, double asked);
/// Six digits are for the eye; a reader compares with what he typed, so all that count.
QString numberText(double value);

} // namespace IPSERDESIP
