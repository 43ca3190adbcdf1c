#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariant>

/// What one run of ipgen gave.
struct ProgramRun {
    int status = -1; ///< the exit status; 1000 + signal when it was killed
    QByteArray out;
    QByteArray err;
};

/// Runs the built ipgen with no display and a plain locale. The test plug-in `tiny` is on offer
/// beside what is installed.
ProgramRun runIpgen(const QStringList& arguments, const QByteArray& input = {});

QString ipgenProgram();
/// A folder below the build tree's tests/plugins.
QString testPlugins(const QString& name);

QByteArray contentOf(const QString& path);
void writeFile(const QString& path, const QByteArray& bytes);
/// Paths of all files below the folder, hidden ones too, relative, in order.
QStringList filesBelow(const QString& folder);
QVariant jsonOf(const QByteArray& text);
