#pragma once

#include "ipgen/report/linediff.h"
#include "ipgen/report/summary.h"

#include <QList>
#include <QString>
#include <QVariant>
#include <QVector>

namespace Ipgen {

/// One side of a comparison: a configuration and what it is for.
struct Side {
    QString label; ///< as the user named it
    QString name;
    QString ip; ///< empty: the only one on offer
    QString device;
    IPSERDESIP::ConfigMap config;
    QVariantMap data;
};

/// Reads a side: "PROJECT:NAME", or a file with a configuration as JSON. A file's object is the
/// configuration itself, or has it under "config", beside "ip", "device" and "data" as in a batch
/// of `ipgen emit`.
Status readSide(const QString& text, Side* side);

/// A value that differs; one side may have none.
struct Difference {
    QString key;
    QVariant left;
    QVariant right;
};

/// A generated file that differs.
struct FileDifference {
    QString path; ///< below the instance's folder
    QVector<DiffLine> lines;
};

struct Comparison {
    QList<Difference> fields;
    QList<Difference> derived;
    QList<FileDifference> files;
    bool same() const { return fields.isEmpty() && derived.isEmpty() && files.isEmpty(); }
};

/// Compares fields, derived values and generated lines. Sides that cannot be generated are compared
/// by their fields, and the reason is a derived value.
Status compareSides(const Catalogue& catalogue, const Side& left, const Side& right,
                    Comparison* result);

QVariantMap comparisonMap(const Comparison& comparison, const Side& left, const Side& right);
QString comparisonText(const Comparison& comparison, const Side& left, const Side& right);

} // namespace Ipgen
