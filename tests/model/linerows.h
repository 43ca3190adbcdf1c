#pragma once

#include <QList>
#include <QMap>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>

class Harness;

/// The four lists that a generation leaves.
struct LineLists {
    QStringList define;
    QStringList param;
    QStringList script;
    QStringList options;
};

/// Keys to set; an invalid value takes the key out.
using Changes = QList<QPair<QString, QVariant>>;
/// A line of the base and what stands in its place. The line must be there exactly once.
using Edits = QList<QPair<QString, QStringList>>;

/// What a changed key changes: a table row that says nothing about the other hundred lines, yet
/// fixes them all, since the whole of the four lists is compared.
struct LineRow {
    QString base; ///< the golden case to start from
    Changes changes;
    Edits edits;
    QMap<QString, QVariant> data; ///< the project's transceiver data store
    QStringList callerScript;     ///< the caller's lines, kept in front
    QStringList callerOptions;
};

Q_DECLARE_METATYPE(LineRow)

/// Adds a row to the test data under way, whose one column is "row".
void addRow(const QString& name, const QString& base, const Changes& changes, const Edits& edits,
            const QMap<QString, QVariant>& data = {}, const QStringList& callerScript = {},
            const QStringList& callerOptions = {});
/// Generates the row's configuration and compares lists and files whole. Empty: as expected.
QString rowProblem(const Harness& host, const LineRow& row);

/// The base's configuration with the changes.
QMap<QString, QVariant> changedConfig(const LineRow& row);
/// The base's expected lists with the edits; `problem` names an edit that does not fit.
LineLists editedLists(const LineRow& row, QString& problem);
/// Empty when equal, else the first difference with its place.
QString difference(const QString& what, const QStringList& actual, const QStringList& expected);
