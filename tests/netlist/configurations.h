#pragma once

#include "coveringarray.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QString>

/// One configuration to generate from.
struct Configuration {
    QString name;
    QString device;
    QJsonObject config;
};

/// A port of the module: its bits and whether it is an output.
struct Port {
    int bits = 1;
    bool output = false;
};
inline bool operator==(const Port& a, const Port& b) {
    return a.bits == b.bits && a.output == b.output;
}

/// The saved configuration of a one-lane instance of a device class ("60k", "15k", "138k"), with
/// these keys changed. Lanes are numbers, 0 to 7; bonded lanes have the last one as master.
Configuration configuration(const QString& name, const QString& deviceClass,
                            const QList<int>& lanes, const QJsonObject& changes);

/// Configurations over the three classes that hold every possible pair of option values; at least
/// 300.
QList<Configuration> coveringConfigurations(CoveringArray* array,
                                            QList<CoveringArray::Choice>* choices);
CoveringArray coveringArray();

/// The ports that the module of a configuration has, from the rules of the port symbol.
QMap<QString, Port> expectedPorts(const Configuration& configuration);

/// Generates all of them below `folder`, one folder a name. Returns what went wrong, or nothing.
QByteArray emitAll(const QList<Configuration>& configurations, const QString& folder);
