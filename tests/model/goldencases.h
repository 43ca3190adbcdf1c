#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

/// One folder of tests/golden.
struct GoldenCase {
    QString name;
    QString folder;   ///< absolute
    QByteArray input; ///< case.json on one line, as `ipgen emit` reads it; kinds as written

    QString expectedPath(const QString& file) const;
};

/// Every case, by name.
QList<GoldenCase> goldenCases();
/// Stops the test program when there is no such case.
GoldenCase goldenCase(const QString& name);

/// The "config" of a case, lists of texts as QStringList.
QMap<QString, QVariant> goldenConfig(const QString& name);
/// A file's lines; each must be ended by one line feed.
QStringList goldenLines(const QString& name, const QString& file);

/// A file's bytes; stops the test program when it cannot be read.
QByteArray fileBytes(const QString& path);
