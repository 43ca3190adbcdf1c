#pragma once

#include <QLatin1String>

namespace IPCUSTOMIZED {

/// The attributes of the IP's description that the plug-in reads.
namespace Info {

constexpr QLatin1String Id("ipcore.id");
constexpr QLatin1String Name("ipcore.name");
constexpr QLatin1String Version("ipcore.version");
constexpr QLatin1String Category("ipcore.category");
constexpr QLatin1String Summary("ipcore.doc.summary");
constexpr QLatin1String Supported("ipcore.device.supported");
constexpr QLatin1String Unsupported("ipcore.device.unsupported");
constexpr QLatin1String DataDir("ipcore.dir.data"); ///< written by the model
constexpr QLatin1String Label("ipcore.label");
constexpr QLatin1String Target("ipcore.target"); ///< default file name
constexpr QLatin1String Module("ipcore.module"); ///< default module name
constexpr QLatin1String Help("ipcore.doc.help");

} // namespace Info

} // namespace IPCUSTOMIZED
