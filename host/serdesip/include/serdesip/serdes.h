#pragma once

#include "serdesip/export.h"
#include "serdesip/message.h"

#include <dev/devicearg.h>
#include <dev/deviceinfo.h>

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

namespace IPSERDESIP {

/// A named resource of the device that an instance of the project may hold.
class HOST_SERDESIP_EXPORT Instance {
public:
    explicit Instance(const QString& name);
    virtual ~Instance();
    const QString& name() const { return m_name; }

private:
    QString m_name;
};

/// A reference clock multiplexer.
class HOST_SERDESIP_EXPORT MUX : public Instance {
public:
    explicit MUX(const QString& name);
    ~MUX() override;
    /// Host name of the source that the multiplexer is set to; empty: not set.
    const QString& point() const { return m_point; }
    void setPoint(const QString& source) { m_point = source; }

private:
    QString m_point;
};

/// A reference clock pin.
class HOST_SERDESIP_EXPORT REF_SOURCE : public Instance {
public:
    explicit REF_SOURCE(const QString& name);
    ~REF_SOURCE() override;
    /// Whether other instances of the project use the pin, and at which frequency (MHz).
    bool inUse() const { return m_inUse; }
    double frequency() const { return m_frequency; }
    void setUse(bool inUse, double frequency);

private:
    bool m_inUse = false;
    double m_frequency = 0.0;
};

/// What the last checkRoute() asked for one lane, until resetLane().
struct HOST_SERDESIP_EXPORT LaneRoute {
    QString pll;               ///< the lane's PLL by kind ("QPLL0"); empty: no route is recorded
    QString pllReference;      ///< host name of the pin that feeds the PLL; empty: unknown
    double pllFrequency = 0.0; ///< MHz; 0: unknown
    QString rxReference;       ///< the same for the receiver; the PLL's where it has no own
    double rxFrequency = 0.0;  ///< MHz; 0: unknown
    bool granted = false;      ///< whether the route was found and is held

    bool isNull() const { return pll.isEmpty(); }
};

/// The transceiver resource model of the open project: who holds what on the device. Built from
/// the instances' resource messages; every query costs the same however many there are. An
/// instance being edited does not stand in its own way. GUI thread only.
class HOST_SERDESIP_EXPORT serdes {
public:
    static serdes* instance();

    // --- what plug-ins ask -------------------------------------------------------------------

    /// The folder that the transceiver IPs of the project write under.
    QString workingDir() const;

    /// The data store that the project's instances share ("Q0_BIAS"); kept with the project.
    QMap<QString, QVariant> globalData() const;
    QVariant getData(const QString& key) const;
    void setData(const QString& key, const QVariant& value);

    /// Captions ("Q0 Lane0") of the device's lanes that no other instance occupies, in lane order.
    QStringList notOccupiedLanes() const;

    /// Whether the named resource ("Q0_MUX1") is used by an enabled instance of the project.
    bool instanceEnable(const QString& name) const;
    /// Every resource of the device by name; the map's pointers stay owned by the model.
    QMap<QString, Instance*> allInstance() const;
    /// A reference source by host name; null when the device has none of that name.
    REF_SOURCE* findRefsource(const QString& name) const;
    REF_SOURCE* FormStringToREFSPtr(const QString& name) const;
    /// The frequency in MHz that an instance has fixed for the source of this option text; 0.0
    /// when none has.
    double getFreqByRefsrc(const QString& option) const;

    /// Whether a shared PLL ("Q0_QPLL1") is used by an enabled instance.
    bool checkPllEnable(const QString& pll) const;
    /// What a taken PLL runs at: "TX_Line_Rate" (real rate, Gbps), "Reference_Clock_Source"
    /// (option text), "Reference_Clock_Frequency" (MHz). Empty: the PLL is not taken.
    QMap<QString, QVariant> getMessageByPLL(const QString& pll) const;

    /// Whether the routing graph has a path from a source to a target ("quad0_TX") that no other
    /// instance's setting forbids. Names may be host names or option texts.
    bool checkAccess(const QString& source, const QString& target) const;
    /// The same through a given multiplexer ("Q0_MUX1").
    bool checkAccess(const QString& mux, const QString& source, const QString& target) const;

    /// Finds the routes of the given lanes (captions) and holds them until resetLane().
    /// Automatic: one source and its frequency for all.
    bool checkRoute(const QStringList& lanes, const QString& pll, const QString& source,
                    double frequency);
    /// Manual: the multiplexers' sources and frequencies by their number, and which multiplexer
    /// or pin feeds the PLL and which the receiver (empty: none).
    bool checkRoute(const QStringList& lanes, const QString& pll, const QStringList& muxSources,
                    const QList<double>& muxFrequencies, const QString& pllSource,
                    const QString& rxSource);
    /// Releases what checkRoute() recorded for a lane (caption), whatever the mode.
    void resetLane(const QString& lane, int mode);

    // --- what the host itself does -----------------------------------------------------------

    /// Starts afresh for a project: its device, its working folder, its data store.
    void openProject(const DEV::DeviceArg& device, const QString& workingDir,
                     const QMap<QString, QVariant>& data);
    const DEV::DeviceArg& device() const;
    /// What the device database knew of the device when the project was opened; may be null.
    std::shared_ptr<const DEV::DeviceInfo> deviceInfo() const;
    /// Enters or replaces what an instance (by its name in the project) holds.
    void setMessage(const QString& owner, const Message& message);
    void removeMessage(const QString& owner);
    /// The instance whose own resources count as free; empty: none.
    void setEditing(const QString& owner);
    QString editing() const;
    /// The messages by owner.
    QMap<QString, Message> messages() const;
    /// Who holds a resource, by name: a lane (caption), PLL, multiplexer or pin. The instance being
    /// edited is left out. `limit` bounds the list (0: all); those that settle how the resource
    /// runs come into it first.
    QStringList owners(const QString& resource, int limit = 0) const;
    /// What checkRoute() recorded for a lane (caption).
    LaneRoute route(const QString& lane) const;
    /// Whether setData() has changed the store since openProject() or clearDataChanged().
    bool dataChanged() const;
    void clearDataChanged();

    /// Why route, access and generation attempts have failed since clearDetails(), one sentence a
    /// line, none twice: the resource, its owner, the limit, the nearest thing that would work. A
    /// generation that succeeds clears them.
    QStringList details() const;
    void addDetail(const QString& sentence);
    void clearDetails();

private:
    serdes();
    ~serdes();
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace IPSERDESIP
