#pragma once

#include "model/config/latin.h"

namespace IPCUSTOMIZED {

/// The attributes of the IP's description that the plug-in reads.
namespace Info {

inline constexpr QLatin1String Id = "ipcore.id"_l1;
inline constexpr QLatin1String Name = "ipcore.name"_l1;
inline constexpr QLatin1String Version = "ipcore.version"_l1;
inline constexpr QLatin1String Category = "ipcore.category"_l1;
inline constexpr QLatin1String Summary = "ipcore.doc.summary"_l1;
inline constexpr QLatin1String Supported = "ipcore.device.supported"_l1;
inline constexpr QLatin1String Unsupported = "ipcore.device.unsupported"_l1;
inline constexpr QLatin1String DataDir = "ipcore.dir.data"_l1; ///< written by the model
inline constexpr QLatin1String Label = "ipcore.label"_l1;
inline constexpr QLatin1String Target = "ipcore.target"_l1; ///< default file name
inline constexpr QLatin1String Module = "ipcore.module"_l1; ///< default module name
inline constexpr QLatin1String Help = "ipcore.doc.help"_l1;

} // namespace Info

} // namespace IPCUSTOMIZED
