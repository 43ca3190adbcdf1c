#pragma once

#include "model/config/deviceclass.h"

#include <utils/pinfigure.h>

#include <QList>
#include <QString>
#include <QStringList>

namespace IPCUSTOMIZED::rules {

/// What the port figure depends on.
struct FigureState {
    DeviceClass device = DeviceClass::K138;
    QStringList lanePrefixes; ///< lanes that are checked and enabled, in lane order
    QString txEncoding;
    QString rxDecoding;
    bool clockCorrection = false;
    bool rxBonding = false;
    bool wordAlignment = false;
    bool drp = false;
};

QList<Utils::PinFigure> figurePins(const FigureState& state);

} // namespace IPCUSTOMIZED::rules
