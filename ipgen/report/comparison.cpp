#include "ipgen/report/comparison.h"

#include "ipgen/core/installation.h"

#include <utils/filereplace.h>
#include <utils/jsontext.h>

#include <QCoreApplication>
#include <QFileInfo>

namespace Ipgen {

namespace {

const QString configKey = QStringLiteral("config");

/// What one side comes to.
struct Outcome {
    QVariantMap derived;
    QMap<QString, QByteArray> files;
};

Status outcomeOf(const Catalogue& catalogue, const Side& side, Outcome* outcome) {
    const CatalogueEntry* entry = nullptr;
    Status status = catalogue.pick(side.ip, &entry);
    DEV::DeviceArg device;
    if (status.ok()) {
        status = findDevice(side.device, &device);
    }
    if (!status.ok()) {
        return {Exit::BadInput, side.label, status.text()};
    }
    Trial trial(device, side.data);
    const TrialResult generated = trial.run(*entry, side.name, side.config);
    for (auto it = generated.files.constBegin(); it != generated.files.constEnd(); ++it) {
        // The first folder is the instance's own name.
        outcome->files.insert(it.key().section(QLatin1Char('/'), 1), it.value());
    }
    const Summary summary = summarise(trial, *entry, side.name, side.config, device);
    QVariantMap map = summaryMap(summary);
    map.remove(QStringLiteral("name"));
    const QVariantList clocks = map.take(QStringLiteral("clocks")).toList();
    for (const QVariant& one : clocks) {
        const QVariantMap clock = one.toMap();
        const QString front =
            QStringLiteral("%1_%2_").arg(clock.value(QStringLiteral("lane")).toString(),
                                         clock.value(QStringLiteral("direction")).toString());
        for (auto it = clock.constBegin(); it != clock.constEnd(); ++it) {
            if (it.key() != QLatin1String("lane") && it.key() != QLatin1String("direction")) {
                map.insert(front + it.key(), it.value());
            }
        }
    }
    if (!summary.status.ok()) {
        map.insert(QStringLiteral("failure"), summary.status.why());
    }
    outcome->derived = map;
    return {};
}

QList<Difference> differences(const QVariantMap& left, const QVariantMap& right) {
    QList<Difference> result;
    QStringList keys = left.keys() + right.keys();
    keys.removeDuplicates();
    keys.sort();
    const auto bytes = [](const QVariant& value) {
        return Utils::writeJson(value, Utils::JsonForm::Compact);
    };
    for (const QString& key : qAsConst(keys)) {
        if (left.contains(key) != right.contains(key) ||
            bytes(left.value(key)) != bytes(right.value(key))) {
            result.append({key, left.value(key), right.value(key)});
        }
    }
    return result;
}

QStringList linesOf(const QByteArray& bytes) {
    QStringList lines = QString::fromUtf8(bytes).split(QLatin1Char('\n'));
    if (lines.last().isEmpty()) {
        lines.removeLast();
    }
    return lines;
}

QVariantList differenceList(const QList<Difference>& list) {
    QVariantList result;
    for (const Difference& one : list) {
        result.append(QVariantMap{{"key", one.key}, {"a", one.left}, {"b", one.right}});
    }
    return result;
}

QString valueText(const QVariant& value) {
    return value.isValid() ? QString::fromUtf8(Utils::writeJson(value, Utils::JsonForm::Compact))
                           : QStringLiteral("-");
}

void appendDifferences(QStringList& lines, const char* title, const QList<Difference>& list) {
    if (list.isEmpty()) {
        return;
    }
    lines.append(QLatin1String(title));
    for (const Difference& one : list) {
        lines.append(QStringLiteral("  %1: %2 -> %3")
                         .arg(oneLine(one.key), valueText(one.left), valueText(one.right)));
    }
}

} // namespace

Status readSide(const QString& text, Side* side) {
    Side read;
    read.label = text;
    const int colon = text.lastIndexOf(QLatin1Char(':'));
    if (!QFileInfo(text).isFile() && colon > 0) {
        Project project;
        read.name = text.mid(colon + 1);
        Status status = Project::load(text.left(colon), &project);
        if (!status.ok()) {
            return status;
        }
        status = project.checkKnown(read.name);
        if (!status.ok()) { // not Refused, which says that two configurations differ
            return {Exit::BadInput, text, status.why()};
        }
        const ProjectInstance instance = project.instance(read.name);
        read.ip = instance.ip;
        read.config = instance.config;
        read.device = project.deviceName();
        read.data = project.data();
        *side = read;
        return {};
    }
    QByteArray bytes;
    const Utils::FileResult file = Utils::readFile(text, &bytes);
    if (!file) {
        return {Exit::BadInput, file.path,
                file.reason + QStringLiteral("; give PROJECT:NAME or a file with a configuration")};
    }
    QVariant document;
    Utils::JsonError error;
    if (!Utils::parseJson(bytes, &document, &error)) {
        return {Exit::BadInput, text, error.text()};
    }
    if (document.userType() != QMetaType::QVariantMap) {
        return {Exit::BadInput, text, QStringLiteral("is no JSON object")};
    }
    const QVariantMap map = document.toMap();
    const bool wrapped = map.value(configKey).userType() == QMetaType::QVariantMap;
    read.config = wrapped ? map.value(configKey).toMap() : map;
    read.name = QFileInfo(text).completeBaseName();
    read.ip = wrapped ? map.value(QStringLiteral("ip")).toString() : QString();
    read.data = wrapped ? map.value(QStringLiteral("data")).toMap() : QVariantMap();
    read.device = wrapped ? map.value(QStringLiteral("device")).toString() : QString();
    if (read.device.isEmpty()) { // the key that the dialogs' frame looks a saved device up by
        read.device = read.config.value(QStringLiteral("target_device")).toString();
    }
    *side = read;
    return {};
}

Status compareSides(const Catalogue& catalogue, const Side& left, const Side& right,
                    Comparison* result) {
    Outcome a;
    Outcome b;
    Status status = outcomeOf(catalogue, left, &a);
    if (status.ok()) {
        status = outcomeOf(catalogue, right, &b);
    }
    if (!status.ok()) {
        return status;
    }
    result->fields = differences(left.config, right.config);
    result->derived = differences(a.derived, b.derived);
    QStringList paths = a.files.keys() + b.files.keys();
    paths.removeDuplicates();
    paths.sort();
    for (const QString& path : qAsConst(paths)) {
        if (a.files.value(path) != b.files.value(path)) {
            result->files.append(
                {path, diffLines(linesOf(a.files.value(path)), linesOf(b.files.value(path)))});
        }
    }
    return {};
}

QVariantMap comparisonMap(const Comparison& comparison, const Side& left, const Side& right) {
    constexpr int context = 0;
    QVariantList files;
    for (const FileDifference& file : comparison.files) {
        QVariantList lines;
        const auto changes = condensed(file.lines, context);
        for (const DiffLine& line : changes) {
            if (line.kind != DiffLine::Kind::Same) {
                const bool removed = line.kind == DiffLine::Kind::Removed;
                lines.append(QVariantMap{
                    {"change", removed ? QStringLiteral("removed") : QStringLiteral("added")},
                    {"line", removed ? line.left : line.right},
                    {"text", line.text}});
            }
        }
        files.append(QVariantMap{{"path", file.path}, {"lines", lines}});
    }
    return {{"a", left.label},
            {"b", right.label},
            {"same", comparison.same()},
            {"fields", differenceList(comparison.fields)},
            {"derived", differenceList(comparison.derived)},
            {"files", files}};
}

QString comparisonText(const Comparison& comparison, const Side& left, const Side& right) {
    constexpr int context = 1;
    QStringList lines;
    if (comparison.same()) {
        lines.append(QStringLiteral("%1 and %2 are the same")
                         .arg(oneLine(left.label), oneLine(right.label)));
    }
    appendDifferences(lines, "fields", comparison.fields);
    appendDifferences(lines, "derived", comparison.derived);
    for (const FileDifference& file : comparison.files) {
        lines.append(oneLine(file.path));
        const auto changes = condensed(file.lines, context);
        for (const DiffLine& line : changes) {
            const bool leap = line.left == 0 && line.right == 0;
            const char* mark = leap                                   ? "  ..."
                               : line.kind == DiffLine::Kind::Removed ? "  - "
                               : line.kind == DiffLine::Kind::Added   ? "  + "
                                                                      : "    ";
            lines.append(QLatin1String(mark) + oneLine(line.text));
        }
    }
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

} // namespace Ipgen
