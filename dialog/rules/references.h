#pragma once

#include "model/config/deviceclass.h"
#include "model/config/latin.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace IPCUSTOMIZED::rules {

/// What a free reference runs at until the user says otherwise, MHz.
inline constexpr QLatin1String defaultFrequency = "125"_l1;
/// The same for the GPIO and MCLK inputs.
inline constexpr QLatin1String defaultInputFrequency = "50"_l1;

/// How many reference multiplexers the class has in a quad.
int muxCount(DeviceClass device);
/// What a free multiplexer offers, "NA" first.
QStringList muxSources(DeviceClass device, int mux);
/// What "Auto" offers, in item order; the index is the item data.
QStringList autoSources(DeviceClass device);

/// Whether the multiplexers are those of quad 1: the 138k class, all selected lanes in quad 1.
bool usesQuad1Muxes(DeviceClass device, const QStringList& selectedLanes);
/// "Q0_MUX1".
QString muxHostName(bool quad1, int mux);
/// The multiplexer that an option text names in a quad ("quad0", "quad1"); empty: none.
QString muxInQuad(const QString& quad, const QString& option);

/// Which reference fields are open, and what the routing combos offer.
struct ReferenceFields {
    bool autoFields = false; ///< the reference clock source and its frequency
    bool muxes = false;      ///< multiplexer sources and frequencies
    bool inputs = false;     ///< GPIO and MCLK frequency
    bool pllSource = false;
    bool rxSource = false;
};
/// Empty texts read as "TX and RX" and "Auto". "RX Only" routes by multiplexers in either mode;
/// the class without operation modes is never in it.
ReferenceFields referenceFields(DeviceClass device, const QString& operationMode,
                                const QString& referenceMode);
bool isRxOnly(DeviceClass device, const QString& operationMode);
bool isTxOnly(DeviceClass device, const QString& operationMode);

QStringList pllSourceItems(DeviceClass device, const QString& operationMode);
QStringList rxSourceItems(DeviceClass device, const QString& operationMode);

/// 50 ... 500 MHz, bounds included; else "125".
QString correctedFrequency(const QString& typed);

/// A recorded frequency and the number in a field: equal, or equal as a locked field shows it.
bool sameFrequency(double recorded, const QString& field);

/// The settings of the multiplexers that are shown.
struct MuxSetting {
    QString source;
    QString frequency;
};
enum class MuxFault { None, Source, Frequency };
/// Whether multiplexers and routing fit together; the first fault counts.
MuxFault muxFault(DeviceClass device, const std::vector<MuxSetting>& muxes,
                  const QString& pllSource, const QString& rxSource);

} // namespace IPCUSTOMIZED::rules
