#pragma once

#include "serdesip/export.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace IPSERDESIP {

class protocolGenDlg;

/// What the program lends the frame of the dialogs that it opens: a dialog knows neither which IP
/// of the catalogue it belongs to, nor what has been done with it. What is not lent, the frame does
/// not offer.
struct HOST_SERDESIP_EXPORT FrameServices {
    QString ipPresets;  ///< folder of the presets that came with the IP
    QString ownPresets; ///< folder of the user's presets for the IP; empty: none can be saved
    /// Writes the session script that makes a new instance what the dialog would save now. Not
    /// empty: the fields, or what else, that no steps have been found for.
    std::function<QString(protocolGenDlg*, QByteArray*)> writeScript;

    /// Those of the dialogs that are opened from now on.
    static const FrameServices& current();
    static void lend(const FrameServices& services);
};

} // namespace IPSERDESIP
