#include "serdesip/preset.h"

#include "serdesip/protocolgendlg.h"

#include <core/idecore.h>
#include <utils/filereplace.h>
#include <utils/jsontext.h>

#include <QDir>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>

namespace IPSERDESIP {

namespace {

constexpr int formatNumber = 1;
const char* const everyDevice = "*";

// clang-format off
const char* const formatKey  = "format";
const char* const nameKey    = "name";
const char* const summaryKey = "summary";
const char* const devicesKey = "devices";
const char* const stepsKey   = "steps";
const char* const setKey     = "set";
const char* const toKey      = "to";
// clang-format on

QLatin1String key(const char* name) {
    return QLatin1String(name);
}

bool isText(const QVariant& value) {
    return value.type() == QVariant::String;
}

bool isScalar(const QVariant& value) {
    return isText(value) || value.type() == QVariant::Bool || value.type() == QVariant::Int ||
           value.type() == QVariant::Double;
}

/// Reads strictly: the first fault is kept.
class Reader {
public:
    explicit Reader(const QByteArray& text)
        : m_text(text) {}

    const QString& fault() const { return m_fault; }

    /// At the part, or at the nearest that holds it.
    bool fail(QStringList part, const QString& reason) {
        Utils::JsonError place;
        while (!part.isEmpty() && place.isNull()) {
            place = Utils::errorAtKey(m_text, part, reason);
            part.removeLast();
        }
        if (place.isNull()) {
            place.line = 1;
            place.column = 1;
            place.reason = reason;
        }
        m_fault = place.text();
        return false;
    }

    /// Whether the object has these keys, all of them, and no others.
    bool hasKeys(const QVariantMap& object, const QStringList& part, const QStringList& wanted) {
        for (auto it = object.begin(); it != object.end(); ++it) {
            if (!wanted.contains(it.key())) {
                return fail(part + QStringList{it.key()},
                            QStringLiteral("unknown key \"%1\"").arg(it.key()));
            }
        }
        for (const QString& one : wanted) {
            if (!object.contains(one)) {
                return fail(part, QStringLiteral("the key \"%1\" is missing").arg(one));
            }
        }
        return true;
    }

    bool read(const QVariant& root, Preset* preset) {
        if (root.type() != QVariant::Map) {
            return fail({}, QStringLiteral("a preset is an object"));
        }
        const QVariantMap object = root.toMap();
        return hasKeys(object, {},
                       {key(formatKey), key(nameKey), key(summaryKey), key(devicesKey),
                        key(stepsKey)}) &&
               readHead(object, preset) && readSteps(object.value(key(stepsKey)), preset);
    }

private:
    bool readHead(const QVariantMap& object, Preset* preset) {
        const QVariant format = object.value(key(formatKey));
        if (format.type() != QVariant::Int || format.toInt() != formatNumber) {
            return fail({key(formatKey)}, QStringLiteral("the format is not %1").arg(formatNumber));
        }
        const QVariant name = object.value(key(nameKey));
        if (!isText(name)) {
            return fail({key(nameKey)}, QStringLiteral("the name is no text"));
        }
        const QString nameFault = presetNameFault(name.toString());
        if (!nameFault.isEmpty()) {
            return fail({key(nameKey)}, nameFault);
        }
        if (!isText(object.value(key(summaryKey)))) {
            return fail({key(summaryKey)}, QStringLiteral("the summary is no text"));
        }
        const QVariant devices = object.value(key(devicesKey));
        if (devices.type() != QVariant::StringList || devices.toStringList().isEmpty()) {
            return fail(
                {key(devicesKey)},
                QStringLiteral("the devices are no list of ids, models or classes, or \"*\""));
        }
        preset->name = name.toString();
        preset->summary = object.value(key(summaryKey)).toString();
        preset->devices = devices.toStringList();
        return true;
    }

    bool readSteps(const QVariant& value, Preset* preset) {
        const QVariantList steps = value.toList();
        if (value.type() != QVariant::List || steps.isEmpty()) {
            return fail({key(stepsKey)}, QStringLiteral("the steps are no list of settings"));
        }
        for (int i = 0; i < steps.size(); ++i) {
            const QStringList part{key(stepsKey), QString::number(i)};
            if (steps.at(i).type() != QVariant::Map) {
                return fail(part,
                            QStringLiteral("a step is an object such as {\"set\": \"tab1/Rate\", "
                                           "\"to\": \"2.5\"}"));
            }
            const QVariantMap step = steps.at(i).toMap();
            if (!hasKeys(step, part, {key(setKey), key(toKey)})) {
                return false;
            }
            const QVariant object = step.value(key(setKey));
            if (!isText(object) || !object.toString().contains(QLatin1Char('/'))) {
                return fail(part + QStringList{key(setKey)},
                            QStringLiteral("no field: tabN/NAME or frame/NAME is one"));
            }
            if (!isScalar(step.value(key(toKey)))) {
                return fail(part + QStringList{key(toKey)},
                            QStringLiteral("the value is no text, number, true or false"));
            }
            preset->steps.append({object.toString(), step.value(key(toKey))});
        }
        return true;
    }

    const QByteArray& m_text;
    QString m_fault;
};

bool sameName(const QString& a, const QString& b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/// A name's file: readable, and safe whatever the name holds.
QString fileOf(const QString& folder, const QString& name) {
    return folder + QLatin1Char('/') +
           QString::fromLatin1(QUrl::toPercentEncoding(name, " ()+,", ".~")) +
           QLatin1String(".json");
}

} // namespace

bool Preset::suits(const DEV::DeviceArg& device) const {
    const auto info = Core::IdeCore::deviceDataBase().info(device);
    return devices.contains(key(everyDevice)) || devices.contains(device.id()) ||
           devices.contains(device.device()) ||
           (info != nullptr && devices.contains(info->className));
}

QString presetNameFault(const QString& name) {
    constexpr int longest = 60; // percent-encoded it is a file's name
    if (name.trimmed().isEmpty()) {
        return protocolGenDlg::tr("A preset needs a name.");
    }
    if (name != name.trimmed()) {
        return protocolGenDlg::tr("A preset's name neither begins nor ends with a blank.");
    }
    if (name.endsWith(QLatin1String(".json"))) {
        return protocolGenDlg::tr(
            "A preset's name does not end with \".json\", which says that a file is meant.");
    }
    if (name.size() > longest || QUrl::toPercentEncoding(name).size() > 200) {
        return protocolGenDlg::tr("The name is too long.");
    }
    const bool plain = std::all_of(name.begin(), name.end(), [](QChar c) { return c.isPrint(); });
    return plain ? QString() : protocolGenDlg::tr("A preset's name has printable characters only.");
}

QString readPreset(const QString& path, Preset* preset, bool* unreadable) {
    QByteArray text;
    const Utils::FileResult file = Utils::readFile(path, &text);
    if (unreadable != nullptr) {
        *unreadable = !file;
    }
    if (!file) {
        return file.reason;
    }
    QVariant root;
    Utils::JsonError damage;
    if (!Utils::parseJson(text, &root, &damage)) {
        return damage.text();
    }
    Preset read;
    Reader reader(text);
    if (reader.read(root, &read)) {
        read.file = path;
        *preset = read;
    }
    return reader.fault();
}

QByteArray writePreset(const Preset& preset) {
    const auto compact = [](const QVariant& value) {
        return Utils::writeJson(value, Utils::JsonForm::Compact);
    };
    QByteArrayList steps;
    for (const PresetStep& step : preset.steps) {
        steps.append("    {\"set\": " + compact(step.object) + ", \"to\": " + compact(step.to) +
                     '}');
    }
    QByteArrayList devices;
    for (const QString& device : preset.devices) {
        devices.append(compact(device));
    }
    return "{\n  \"format\": " + QByteArray::number(formatNumber) +
           ",\n  \"name\": " + compact(preset.name) +
           ",\n  \"summary\": " + compact(preset.summary) + ",\n  \"devices\": [" +
           devices.join(", ") + "],\n  \"steps\": [\n" + steps.join(",\n") + "\n  ]\n}\n";
}

PresetStore::PresetStore(const QString& ipFolder, const QString& ownFolder)
    : m_ipFolder(ipFolder)
    , m_ownFolder(ownFolder) {
    load();
}

void PresetStore::load() {
    m_presets.clear();
    m_faults.clear();
    loadFolder(m_ownFolder, true);
    loadFolder(m_ipFolder, false);
}

void PresetStore::loadFolder(const QString& folder, bool own) {
    if (folder.isEmpty()) {
        return;
    }
    QList<Preset> read;
    const QFileInfoList files = QDir(folder).entryInfoList({QStringLiteral("*.json")},
                                                           QDir::Files | QDir::System, QDir::Name);
    for (const QFileInfo& file : files) {
        Preset preset;
        QString reason = readPreset(file.absoluteFilePath(), &preset);
        if (reason.isEmpty()) {
            const auto same = [&](const Preset& one) { return sameName(one.name, preset.name); };
            const auto twin = std::find_if(read.cbegin(), read.cend(), same);
            if (twin != read.cend()) {
                reason = QStringLiteral("the name \"%1\" is used by %2 already")
                             .arg(preset.name, twin->file);
            }
        }
        if (!reason.isEmpty()) {
            m_faults.append({file.absoluteFilePath(), reason});
            continue;
        }
        preset.own = own;
        read.append(preset);
    }
    std::sort(read.begin(), read.end(), [](const Preset& a, const Preset& b) {
        return QString::localeAwareCompare(a.name, b.name) < 0;
    });
    m_presets += read;
}

const Preset* PresetStore::find(const QString& name) const {
    const auto it = std::find_if(m_presets.begin(), m_presets.end(),
                                 [&](const Preset& preset) { return sameName(preset.name, name); });
    return it == m_presets.end() ? nullptr : &*it;
}

const Preset* PresetStore::findOwn(const QString& name) const {
    const Preset* found = find(name); // the user's stand in front
    return found != nullptr && found->own ? found : nullptr;
}

QString PresetStore::whyNameIsRefused(const QString& name) const {
    const QString fault = presetNameFault(name);
    if (!fault.isEmpty()) {
        return fault;
    }
    const Preset* same = find(name);
    return same != nullptr && !same->own
               ? protocolGenDlg::tr("The preset \"%1\" came with the IP: choose another name.")
                     .arg(same->name)
               : QString();
}

QString PresetStore::save(const Preset& preset) {
    const QString refused = whyNameIsRefused(preset.name);
    if (!refused.isEmpty()) {
        return refused;
    }
    if (!QDir().mkpath(m_ownFolder)) {
        return protocolGenDlg::tr("Cannot make the folder %1.").arg(m_ownFolder);
    }
    const Preset* former = findOwn(preset.name);
    const QString file = former != nullptr ? former->file : fileOf(m_ownFolder, preset.name);
    if (former == nullptr && QFileInfo::exists(file)) {
        return protocolGenDlg::tr("%1 exists and is damaged: it is not overwritten.").arg(file);
    }
    const Utils::FileResult written = Utils::replaceFile(file, writePreset(preset));
    load();
    return written ? QString() : written.path + QLatin1String(": ") + written.reason;
}

QString PresetStore::rename(const QString& name, const QString& to) {
    const Preset* found = findOwn(name);
    if (found == nullptr) {
        return protocolGenDlg::tr("There is no preset \"%1\".").arg(name);
    }
    if (name == to) {
        return {};
    }
    // The new file first: whatever stops this, no preset is lost.
    Preset preset = *found;
    preset.name = to;
    const bool sameFile = sameName(name, to);
    const QString failed = save(preset);
    return !failed.isEmpty() || sameFile ? failed : remove(name);
}

QString PresetStore::remove(const QString& name) {
    const Preset* found = findOwn(name);
    if (found == nullptr) {
        return protocolGenDlg::tr("There is no preset \"%1\".").arg(name);
    }
    QFile file(found->file);
    const QString failed =
        file.remove() ? QString() : file.fileName() + QLatin1String(": ") + file.errorString();
    load();
    return failed;
}

} // namespace IPSERDESIP
