#pragma once

#include <dev/deviceinfo.h>
#include <serdesip/message.h>

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Window {

/// One resource of the device and who holds it.
struct MapCell {
    enum class Kind { Pin, Multiplexer, SharedPll, LanePll, Lane };
    Kind kind = Kind::Lane;
    QString resource; ///< host name, "Q0_MUX1"
    QString label;    ///< what stands in its box
    int quad = -1;    ///< -1: of the device
    int lane = -1;    ///< Lane and LanePll: within its quad
    QStringList owners;
    /// How each owner uses it, beside owners: "156.25 MHz", "set to Q0_REFCLK1". May be empty.
    QStringList uses;
    /// Owners that cannot both have it: the reason; empty: no conflict.
    QString conflict;
    /// Multiplexer: the pin that it is set to, when all owners agree.
    QString setting;

    bool isFree() const { return owners.isEmpty(); }
};

/// Every resource of a device: pins, then per quad multiplexers, shared PLLs, lanes with their own
/// PLLs.
QVector<MapCell> mapCells(const DEV::DeviceInfo& device,
                          const QMap<QString, IPSERDESIP::Message>& messages);

/// An owner's mark. Marks of one project differ in letter; colour and pattern tell neighbours
/// apart, together and each for itself.
struct OwnerMark {
    QString letter;  ///< "A" … "Z", "AA" …
    int color = 0;   ///< index below ownerColorCount
    int pattern = 0; ///< index below ownerPatternCount
};
constexpr int ownerColorCount = 8;
constexpr int ownerPatternCount = 7;

/// Marks of all that hold anything, by their order.
QMap<QString, OwnerMark> ownerMarks(const QMap<QString, IPSERDESIP::Message>& messages);

/// "lane", "reference pin" …, for the user.
QString kindText(MapCell::Kind kind);
/// "free", the owner, or the owners and why they are in conflict.
QString ownerText(const MapCell& cell);

} // namespace Window
