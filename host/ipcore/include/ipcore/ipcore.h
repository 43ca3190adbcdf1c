#pragma once

#include "ipcore/export.h"

#include <dev/devicearg.h>

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

class QWidget;

namespace IPCore {

/// Reads an IP description file (JSON) into a map of dotted keys: {"ipcore": {"id": "x"}} gives
/// "ipcore.id". Values keep their kinds; a list of texts is a QStringList. A file that cannot be
/// read or is damaged is reported to the user and gives an empty map.
HOST_IPCORE_EXPORT QMap<QString, QVariant> processIPInfoSpec(const QString& path);

/// Whether a description names what every IP needs: non-empty texts "ipcore.id", "ipcore.name",
/// "ipcore.version". What is missing is reported to the user.
HOST_IPCORE_EXPORT bool checkCommonInfo(const QMap<QString, QVariant>& info);

/// A device, by id or model name, is supported when it is in `supported` or that list holds "*",
/// and it is not in `unsupported`.
HOST_IPCORE_EXPORT bool isSupported(const DEV::DeviceArg& device, const QStringList& unsupported,
                                    const QStringList& supported);

/// The folder that makeDirs() and generateFile() never leave; empty: no bound.
HOST_IPCORE_EXPORT void setOutputRoot(const QString& folder);
HOST_IPCORE_EXPORT QString outputRoot();

/// Why makeDirs() refuses a path before it touches anything: an empty, "." or ".." component, or a
/// place outside outputRoot(). Empty: it does not.
HOST_IPCORE_EXPORT QString outputFlaw(const QString& path);

/// Makes a folder and those above it, unless outputFlaw() speaks against it. A failure is reported
/// to the user under the IP's name.
HOST_IPCORE_EXPORT bool makeDirs(const QString& folder, const QString& ipName);

/// Replaces a text file by these lines (UTF-8, each ended by one line feed), whole or not at
/// all; a file that holds these bytes already is not touched. A failure is reported to the user.
/// @param parent  the window that a message may have as parent
/// @param header  put in front of the lines as it stands
HOST_IPCORE_EXPORT bool generateFile(const QString& path, const QStringList& lines, QWidget* parent,
                                     const QString& header);

/// What makeDirs() and generateFile() have put or found in place, in the order of the calls.
struct OutputLog {
    QStringList folders;
    QStringList files;
};
/// Forgets what was logged.
HOST_IPCORE_EXPORT void startOutputLog();
HOST_IPCORE_EXPORT OutputLog outputLog();

} // namespace IPCore
