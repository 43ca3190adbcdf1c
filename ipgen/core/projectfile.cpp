#include "ipgen/core/projectfile.h"

#include <utils/filereplace.h>
#include <utils/jsontext.h>

namespace Ipgen {

namespace {

/// What keeps a document from being a project, and the key where it shows.
struct Flaw {
    QString reason; ///< empty: there is none
    QStringList key;
};

/// Empty: the value under the key is of the kind, or absent where it may be.
QString kindFlaw(const QVariantMap& map, const QString& key, QMetaType::Type kind, bool required) {
    if (!map.contains(key)) {
        return required ? QStringLiteral("the key \"%1\" is missing").arg(key) : QString();
    }
    if (map.value(key).userType() == kind) {
        return {};
    }
    const QString name = kind == QMetaType::QString ? QStringLiteral("text")
                         : kind == QMetaType::Int   ? QStringLiteral("whole number")
                                                    : QStringLiteral("object");
    return QStringLiteral("the key \"%1\" is no %2").arg(key, name);
}

Flaw flawOf(const QVariantMap& document) {
    struct Rule {
        QString key;
        QMetaType::Type kind;
        bool required;
    };
    const QString format = QStringLiteral("format");
    const QString instancesKey = QStringLiteral("instances");
    for (const Rule& rule : {Rule{format, QMetaType::Int, true},
                             Rule{QStringLiteral("device"), QMetaType::QString, true},
                             Rule{QStringLiteral("data"), QMetaType::QVariantMap, false},
                             Rule{instancesKey, QMetaType::QVariantMap, false}}) {
        const QString reason = kindFlaw(document, rule.key, rule.kind, rule.required);
        if (!reason.isEmpty()) {
            return {reason, {rule.key}};
        }
        if (rule.key == format && document.value(format).toInt() != 1) {
            return {QStringLiteral("the format is %1; this program reads format 1")
                        .arg(document.value(format).toInt()),
                    {format}};
        }
    }
    const QVariantMap instances = document.value(instancesKey).toMap();
    for (auto it = instances.begin(); it != instances.end(); ++it) {
        if (it.value().userType() != QMetaType::QVariantMap) {
            return {QStringLiteral("the instance \"%1\" is no object").arg(it.key()),
                    {instancesKey, it.key()}};
        }
        const QVariantMap instance = it.value().toMap();
        for (const Rule& rule : {Rule{QStringLiteral("ip"), QMetaType::QString, true},
                                 Rule{QStringLiteral("config"), QMetaType::QVariantMap, true},
                                 Rule{QStringLiteral("copiedFrom"), QMetaType::QString, false}}) {
            const QString reason = kindFlaw(instance, rule.key, rule.kind, rule.required);
            if (!reason.isEmpty()) {
                QStringList key{instancesKey, it.key()};
                if (instance.contains(rule.key)) {
                    key.append(rule.key);
                }
                return {QStringLiteral("the instance \"%1\": %2").arg(it.key(), reason), key};
            }
        }
    }
    return {};
}

/// QVariant's == finds 1 and 1.0 and "1" equal; here a change of kind is a change.
bool same(const QVariant& a, const QVariant& b) {
    return a.userType() == b.userType() && Utils::writeJson(a, Utils::JsonForm::Compact) ==
                                               Utils::writeJson(b, Utils::JsonForm::Compact);
}

/// @return the key that both sides changed, each in its own way; empty: none
QString mergeInto(QVariantMap* theirs, const QVariantMap& base, const QVariantMap& mine) {
    const QStringList keys = base.keys() + mine.keys();
    for (const QString& key : keys) {
        const bool inBase = base.contains(key);
        const bool inMine = mine.contains(key);
        if (inBase == inMine && same(base.value(key), mine.value(key))) {
            continue;
        }
        const bool inTheirs = theirs->contains(key);
        const bool done = inTheirs == inMine && same(theirs->value(key), mine.value(key));
        const bool untouched = inTheirs == inBase && same(theirs->value(key), base.value(key));
        if (!done && !untouched) {
            return key;
        }
        if (inMine) {
            theirs->insert(key, mine.value(key));
        } else {
            theirs->remove(key);
        }
    }
    return {};
}

} // namespace

Status readProjectFile(const QString& path, QVariantMap* document) {
    QByteArray bytes;
    const Utils::FileResult read = Utils::readFile(path, &bytes);
    if (!read) {
        return {Exit::BadInput, path, read.reason};
    }
    QVariant value;
    Utils::JsonError error;
    if (!Utils::parseJson(bytes, &value, &error)) {
        return {Exit::BadInput, path, error.text()};
    }
    if (value.userType() != QMetaType::QVariantMap) {
        return {Exit::BadInput, path, QStringLiteral("a project file is a JSON object")};
    }
    const QVariantMap map = value.toMap();
    const Flaw flaw = flawOf(map);
    if (!flaw.reason.isEmpty()) {
        const Utils::JsonError place = Utils::errorAtKey(bytes, flaw.key, flaw.reason);
        return {Exit::BadInput, path, place.isNull() ? flaw.reason : place.text()};
    }
    *document = map;
    return {};
}

Status mergeProjects(const QVariantMap& base, const QVariantMap& mine, const QVariantMap& theirs,
                     QVariantMap* merged) {
    QVariantMap result = theirs;
    QVariantMap baseRest = base;
    QVariantMap mineRest = mine;
    const auto refused = [](const QString& what) {
        return Status(Exit::Refused, what,
                      QStringLiteral("another program changed it in the meantime; nothing was "
                                     "saved: look at its state, then do it again"));
    };
    for (const QString& part : {QStringLiteral("instances"), QStringLiteral("data")}) {
        QVariantMap map = theirs.value(part).toMap();
        const QString clash =
            mergeInto(&map, baseRest.take(part).toMap(), mineRest.take(part).toMap());
        if (!clash.isEmpty()) {
            return refused(part == QLatin1String("data") ? QStringLiteral("data \"%1\"").arg(clash)
                                                         : clash);
        }
        if (!map.isEmpty() || theirs.contains(part) || mine.contains(part)) {
            result.insert(part, map);
        }
    }
    const QString clash = mergeInto(&result, baseRest, mineRest);
    if (!clash.isEmpty()) {
        return refused(QStringLiteral("key \"%1\"").arg(clash));
    }
    *merged = result;
    return {};
}

} // namespace Ipgen
