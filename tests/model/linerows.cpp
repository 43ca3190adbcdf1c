#include "linerows.h"

#include "goldencases.h"
#include "harness.h"

#include <QTest>

#include <algorithm>

void addRow(const QString& name, const QString& base, const Changes& changes, const Edits& edits,
            const QMap<QString, QVariant>& data, const QStringList& callerScript,
            const QStringList& callerOptions) {
    QTest::newRow(qPrintable(name))
        << LineRow{base, changes, edits, data, callerScript, callerOptions};
}

QString rowProblem(const Harness& host, const LineRow& row) {
    QString problem;
    const LineLists expected = editedLists(row, problem);
    if (!problem.isEmpty()) {
        return problem;
    }
    host.openProject(host.workingDir(), row.data);
    const Harness::Result result =
        host.generate(changedConfig(row), row.callerScript, row.callerOptions);
    if (!result.ok) {
        return QStringLiteral("generate() is false");
    }
    // A case that has lines of its own in front shows them in its expected text.
    const auto inFront = [](const QStringList& callers, const QStringList& lines) {
        return lines.mid(0, callers.size()) == callers ? lines : callers + lines;
    };
    const QStringList script = inFront(row.callerScript, expected.script);
    const auto fileLines = [](const QByteArray& bytes) {
        return QString::fromUtf8(bytes).split(QLatin1Char('\n'));
    };
    const QStringList end{QString()}; // what follows the last line feed
    for (const QString& found :
         {difference("script", result.script, script),
          difference("options", result.options, inFront(row.callerOptions, expected.options)),
          difference("define.vh", fileLines(result.define), expected.define + end),
          difference("param.v", fileLines(result.param), expected.param + end),
          difference("customized.ini", fileLines(result.ini), script + end)}) {
        if (!found.isEmpty()) {
            return found;
        }
    }
    return {};
}

QMap<QString, QVariant> changedConfig(const LineRow& row) {
    QMap<QString, QVariant> config = goldenConfig(row.base);
    for (const auto& [key, value] : row.changes) {
        if (value.isValid()) {
            config.insert(key, value);
        } else {
            config.remove(key);
        }
    }
    return config;
}

LineLists editedLists(const LineRow& row, QString& problem) {
    LineLists lists{goldenLines(row.base, "define.vh"), goldenLines(row.base, "param.v"),
                    goldenLines(row.base, "customized.ini"), goldenLines(row.base, "options.txt")};
    for (const auto& [line, instead] : row.edits) {
        int found = 0;
        for (QStringList* list : {&lists.define, &lists.param, &lists.script, &lists.options}) {
            const int place = int(list->indexOf(line));
            if (place < 0) {
                continue;
            }
            found += int(list->count(line));
            QStringList edited = list->mid(0, place);
            edited += instead;
            edited += list->mid(place + 1);
            *list = edited;
        }
        if (found != 1) {
            problem =
                QStringLiteral("the row's line \"%1\" is there %2 times").arg(line).arg(found);
        }
    }
    return lists;
}

QString difference(const QString& what, const QStringList& actual, const QStringList& expected) {
    const int common = int(std::min(actual.size(), expected.size()));
    for (int i = 0; i < common; ++i) {
        if (actual.at(i) != expected.at(i)) {
            return QStringLiteral("%1, line %2: \"").arg(what).arg(i + 1) + actual.at(i).left(200) +
                   QLatin1String("\" instead of \"") + expected.at(i).left(200) + QLatin1Char('"');
        }
    }
    if (actual.size() != expected.size()) {
        const QStringList& longer = actual.size() > expected.size() ? actual : expected;
        return QStringLiteral("%1: %2 lines instead of %3; the first without partner: ")
                   .arg(what)
                   .arg(actual.size())
                   .arg(expected.size()) +
               longer.at(common).left(200);
    }
    return {};
}
