#pragma once

#include "ipgen/core/status.h"
#include "ipgen/window/mapdata.h"

namespace Window {

/// The quad map for paper: its title, the map, and a legend that says what each owner holds. Dark
/// on white, whatever the window's theme is.
struct MapSheet {
    QString title;
    QString about;
    QVector<MapCell> cells;
    QMap<QString, OwnerMark> marks;
};

/// Writes the sheet, whole or not at all. The path's suffix says as what: pdf (A4, as many pages
/// as the legend needs), svg or png; another one is refused.
Ipgen::Status writeMapSheet(const MapSheet& sheet, const QString& path);

} // namespace Window
