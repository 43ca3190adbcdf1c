#pragma once

#include <QLatin1String>

namespace IPCUSTOMIZED {

/// The attributes of the IP's description that the plug-in reads.
namespace Info {

inline constexpr QLatin1String Id("ipcore.id");
inline constexpr QLatin1String Name("ipcore.name");
inline constexpr QLatin1String Version("ipcore.version");
inline constexpr QLatin1String Category("ipcore.category");
inline constexpr QLatin1String Summary("ipcore.doc.summary");
inline constexpr QLatin1String Supported("ipcore.device.supported");
inline constexpr QLatin1String Unsupported("ipcore.device.unsupported");
inline constexpr QLatin1String DataDir("ipcore.dir.data"); ///< written by the model
inline constexpr QLatin1String Label("ipcore.label");
inline constexpr QLatin1String Target("ipcore.target"); ///< default file name
inline constexpr QLatin1String Module("ipcore.module"); ///< default module name
inline constexpr QLatin1String Help("ipcore.doc.help");

} // namespace Info

} // namespace IPCUSTOMIZED
