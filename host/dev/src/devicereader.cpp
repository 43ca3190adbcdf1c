#include "devicereader.h"

#include "fields.h"

#include <QMap>
#include <QRegularExpression>

#include <algorithm>

namespace DEV {

namespace {

constexpr int formatVersion = 1;
constexpr int maxQuads = 2;
constexpr int maxLanes = 4;
constexpr int maxMegahertz = 100000;
constexpr int maxDivider = 4096;

using Loops = QMap<QString, ClockLoop>;

Range readRange(Fields& owner, const QString& key, QString* error) {
    Fields fields(owner.value(key), owner.place(key), error);
    Range range;
    range.min = fields.integer(QStringLiteral("min"), 1, maxMegahertz);
    range.max = fields.integer(QStringLiteral("max"), 1, maxMegahertz);
    fields.finish();
    if (range.max < range.min) {
        owner.fail(key, QStringLiteral("has a \"max\" below its \"min\""));
    }
    return range;
}

/// A divider set is a list of whole numbers, or {"from": a, "to": b} for all from a to b.
QVector<int> readDividers(Fields& owner, const QString& key, QString* error) {
    const QVariant found = owner.value(key);
    QVector<int> values;
    if (found.type() == QVariant::Map) {
        Fields fields(found, owner.place(key), error);
        const int from = fields.integer(QStringLiteral("from"), 1, maxDivider);
        const int to = fields.integer(QStringLiteral("to"), 1, maxDivider);
        fields.finish();
        for (int value = from; value <= to; ++value) {
            values.append(value);
        }
    } else if (found.type() == QVariant::List) {
        for (const QVariant& entry : found.toList()) {
            const int value = entry.type() == QVariant::Int ? entry.toInt() : 0;
            if (value < 1 || value > maxDivider || (!values.isEmpty() && values.last() >= value)) {
                owner.fail(key, QStringLiteral("must hold whole numbers from 1 to %1, ascending")
                                    .arg(maxDivider));
                return {};
            }
            values.append(value);
        }
    }
    if (values.isEmpty()) {
        owner.fail(key, QStringLiteral("must be a list of whole numbers or {\"from\", \"to\"}, "
                                       "and not empty"));
    }
    return values;
}

Loops readLoops(Fields& root, QString* error) {
    Loops loops;
    const QVariantMap entries = root.object(QStringLiteral("loops"));
    for (auto it = entries.cbegin(); it != entries.cend(); ++it) {
        Fields fields(it.value(), QStringLiteral("loop \"%1\"").arg(it.key()), error);
        ClockLoop loop;
        loop.shared = fields.boolean(QStringLiteral("shared"));
        loop.vcoMHz = readRange(fields, QStringLiteral("vcoMHz"), error);
        loop.m = readDividers(fields, QStringLiteral("m"), error);
        loop.n = readDividers(fields, QStringLiteral("n"), error);
        loop.d = readDividers(fields, QStringLiteral("d"), error);
        fields.finish();
        loops.insert(it.key(), loop);
    }
    return loops;
}

ClockLoop findLoop(Fields& owner, const QString& key, const Loops& loops, const QString& kind) {
    const QString name = owner.text(key);
    if (!loops.contains(name)) {
        owner.fail(key,
                   QStringLiteral("names the loop \"%1\", which is not in \"loops\"").arg(name));
    }
    ClockLoop loop = loops.value(name);
    loop.kind = kind;
    return loop;
}

void readPlls(Fields& fields, DeviceInfo& device, const Loops& loops, QString* error) {
    const QString key = QStringLiteral("plls");
    const QVariantMap entries = fields.object(key);
    Fields plls(entries, fields.place(key), error);
    static const QRegularExpression form(QStringLiteral("\\A(?:QPLL[0-9]|CPLL)\\z"));
    for (const QString& kind : entries.keys()) {
        if (!form.match(kind).hasMatch()) {
            plls.fail(kind, QStringLiteral("is no PLL name"));
        }
        device.plls.append(findLoop(plls, kind, loops, kind));
    }
    // In the order of their numbers, the lanes' own last.
    std::sort(device.plls.begin(), device.plls.end(), [](const ClockLoop& a, const ClockLoop& b) {
        return a.shared != b.shared ? a.shared : a.kind < b.kind;
    });
    device.cdr = findLoop(fields, QStringLiteral("cdr"), loops, QStringLiteral("CDR"));
    device.cdrSelectable = fields.boolean(QStringLiteral("cdrSelectable"));
}

void checkNames(Fields& fields, const QString& key, const QStringList& names,
                const QStringList& known, const QString& where) {
    for (const QString& name : names) {
        if (!known.contains(name)) {
            fields.fail(key, QStringLiteral("names \"%1\", which is not in %2").arg(name, where));
        }
    }
}

QStringList loopKinds(const DeviceInfo& device) {
    QStringList kinds{device.cdr.kind};
    for (const ClockLoop& pll : device.plls) {
        kinds.append(pll.kind);
    }
    return kinds;
}

void readMultiplexers(Fields& fields, DeviceInfo& device, QString* error) {
    fields.each(QStringLiteral("multiplexers"), [&](const QVariant& entry, const QString& place) {
        Fields mux(entry, place, error);
        Multiplexer result;
        result.name = mux.text(QStringLiteral("name"));
        result.quad = mux.integer(QStringLiteral("quad"), 0, device.quads - 1);
        result.sources = mux.texts(QStringLiteral("sources"));
        result.feeds = mux.texts(QStringLiteral("feeds"));
        mux.finish();
        if (!result.name.startsWith(QStringLiteral("Q%1_MUX").arg(result.quad))) {
            mux.fail(QStringLiteral("name"),
                     QStringLiteral("must begin with \"Q%1_MUX\"").arg(result.quad));
        }
        if (device.multiplexer(result.name) != nullptr) {
            mux.fail(QStringLiteral("name"),
                     QStringLiteral("is given twice: \"%1\"").arg(result.name));
        }
        checkNames(mux, QStringLiteral("sources"), result.sources, device.pins,
                   QStringLiteral("\"pins\""));
        checkNames(mux, QStringLiteral("feeds"), result.feeds, loopKinds(device),
                   QStringLiteral("\"plls\" nor \"CDR\""));
        device.multiplexers.append(result);
    });
}

void readDirectInputs(Fields& fields, DeviceInfo& device, QString* error) {
    fields.each(QStringLiteral("direct"), [&](const QVariant& entry, const QString& place) {
        Fields input(entry, place, error);
        DirectInput result;
        result.source = input.text(QStringLiteral("source"));
        result.quad = input.integer(QStringLiteral("quad"), 0, device.quads - 1);
        result.feeds = input.texts(QStringLiteral("feeds"));
        input.finish();
        checkNames(input, QStringLiteral("source"), {result.source}, device.pins,
                   QStringLiteral("\"pins\""));
        checkNames(input, QStringLiteral("feeds"), result.feeds, loopKinds(device),
                   QStringLiteral("\"plls\" nor \"CDR\""));
        device.directInputs.append(result);
    });
}

void checkPins(Fields& fields, const DeviceInfo& device) {
    static const QRegularExpression form(
        QStringLiteral("\\A(?:Q([01])_(?:REFCLK[0-3]|REFIN[0-3]?)|MCLK)\\z"));
    for (const QString& pin : device.pins) {
        const QRegularExpressionMatch match = form.match(pin);
        if (!match.hasMatch() || match.captured(1).toInt() >= device.quads) {
            fields.fail(QStringLiteral("pins"), QStringLiteral("holds \"%1\", which is no pin of "
                                                               "this device's quads")
                                                    .arg(pin));
        }
        const bool muxed =
            std::any_of(device.multiplexers.begin(), device.multiplexers.end(),
                        [&](const Multiplexer& mux) { return mux.sources.contains(pin); });
        const bool direct =
            std::any_of(device.directInputs.begin(), device.directInputs.end(),
                        [&](const DirectInput& input) { return input.source == pin; });
        if (!muxed && !direct) {
            fields.fail(QStringLiteral("pins"),
                        QStringLiteral("holds \"%1\", which leads nowhere").arg(pin));
        }
    }
}

QMap<QString, DeviceInfo> readClasses(Fields& root, const Loops& loops, QString* error) {
    QMap<QString, DeviceInfo> classes;
    const QVariantMap entries = root.object(QStringLiteral("classes"));
    for (auto it = entries.cbegin(); it != entries.cend(); ++it) {
        Fields fields(it.value(), QStringLiteral("class \"%1\"").arg(it.key()), error);
        DeviceInfo device;
        device.className = it.key();
        device.quads = fields.integer(QStringLiteral("quads"), 1, maxQuads);
        device.lanesPerQuad = fields.integer(QStringLiteral("lanesPerQuad"), 1, maxLanes);
        device.pins = fields.texts(QStringLiteral("pins"));
        device.txRateMbps = readRange(fields, QStringLiteral("txRateMbps"), error);
        device.rxRateMbps = readRange(fields, QStringLiteral("rxRateMbps"), error);
        device.referenceMHz = readRange(fields, QStringLiteral("referenceMHz"), error);
        readPlls(fields, device, loops, error);
        readMultiplexers(fields, device, error);
        readDirectInputs(fields, device, error);
        fields.finish();
        checkPins(fields, device);
        classes.insert(it.key(), device);
    }
    return classes;
}

} // namespace

QList<DeviceInfo> readDevices(const QVariant& root, QString* reason) {
    reason->clear();
    Fields fields(root, QStringLiteral("the database"), reason);
    fields.integer(QStringLiteral("format"), formatVersion, formatVersion);
    const Loops loops = readLoops(fields, reason);
    const QMap<QString, DeviceInfo> classes = readClasses(fields, loops, reason);

    QList<DeviceInfo> devices;
    QStringList names;
    fields.each(QStringLiteral("devices"), [&](const QVariant& entry, const QString& place) {
        // From here on the device's own name tells more than its place.
        const QString id = entry.toMap().value(QStringLiteral("id")).toString();
        Fields device(entry, id.isEmpty() ? place : QStringLiteral("device \"%1\"").arg(id),
                      reason);
        const QString className = device.text(QStringLiteral("class"));
        if (!classes.contains(className)) {
            device.fail(QStringLiteral("class"),
                        QStringLiteral("names \"%1\", which is not in \"classes\"").arg(className));
        }
        DeviceInfo info = classes.value(className);
        info.id = device.text(QStringLiteral("id"));
        info.model = device.text(QStringLiteral("model"));
        device.finish();
        if (names.contains(info.id)) {
            device.fail(QStringLiteral("id"), QStringLiteral("is given to two devices"));
        }
        names.append(info.id);
        devices.append(info);
    });
    fields.finish();
    return reason->isEmpty() ? devices : QList<DeviceInfo>();
}

} // namespace DEV
