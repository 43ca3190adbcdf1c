#pragma once

#include "serdesip/export.h"

#include <QStringList>

namespace IPSERDESIP {

/// Turns a transceiver script into resolved settings for the open project's device.
class HOST_SERDESIP_EXPORT generator {
public:
    generator();
    /// Parses the script strictly, solves the dividers of every lane's PLL and writes the
    /// settings to `outputFile`, whole or not at all.
    /// @param messages  the lines that went wrong, with number and reason; also what
    ///                  getErrStringList() gives afterwards. Empty on a failure that means only
    ///                  that no divider setting gives the rate.
    /// @return whether the file was written
    bool generate(const QStringList& script, const QString& outputFile, QStringList& messages);
    QStringList getErrStringList() const { return m_errors; }

private:
    QStringList m_errors;
};

} // namespace IPSERDESIP
