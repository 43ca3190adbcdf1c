#include "ipgen/core/projectfile.h"

#include <utils/filereplace.h>
#include <utils/jsontext.h>

namespace Ipgen {

namespace {

/// Empty: the document is a project.
QString flawOf(const QVariantMap& document) {
    const auto kindOf = [](const QVariantMap& map, const char* key) {
        return map.value(QLatin1String(key)).userType();
    };
    const auto optionalObject = [&](const QVariantMap& map, const char* key) {
        return !map.contains(QLatin1String(key)) || kindOf(map, key) == QMetaType::QVariantMap;
    };
    if (kindOf(document, "format") != QMetaType::Int) {
        return QStringLiteral("the key \"format\" is no number: this is no project file");
    }
    const int format = document.value(QStringLiteral("format")).toInt();
    if (format != 1) {
        return QStringLiteral("the format is %1; this program reads format 1").arg(format);
    }
    if (kindOf(document, "device") != QMetaType::QString) {
        return QStringLiteral("the key \"device\" is no text");
    }
    if (!optionalObject(document, "data")) {
        return QStringLiteral("the key \"data\" is no object");
    }
    if (!optionalObject(document, "instances")) {
        return QStringLiteral("the key \"instances\" is no object");
    }
    const QVariantMap instances = document.value(QStringLiteral("instances")).toMap();
    for (auto it = instances.begin(); it != instances.end(); ++it) {
        const QVariantMap instance = it.value().toMap();
        if (it.value().userType() != QMetaType::QVariantMap) {
            return QStringLiteral("the instance \"%1\" is no object").arg(it.key());
        }
        if (kindOf(instance, "ip") != QMetaType::QString) {
            return QStringLiteral("the instance \"%1\": the key \"ip\" is no text").arg(it.key());
        }
        if (kindOf(instance, "config") != QMetaType::QVariantMap) {
            return QStringLiteral("the instance \"%1\": the key \"config\" is no object")
                .arg(it.key());
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
    const QString flaw = flawOf(map);
    if (!flaw.isEmpty()) {
        return {Exit::BadInput, path, flaw};
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
