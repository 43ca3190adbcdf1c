#include "script.h"

#include "scriptsettings.h"

#include <dev/deviceinfo.h>

#include <QRegularExpression>

namespace IPSERDESIP {

namespace {

/// Why the device cannot have a setting of this name; empty: it can.
QString deviceProblem(const SettingPrefix& prefix, const QString& pin,
                      const DEV::DeviceInfo& device) {
    if (prefix.quad >= device.quads) {
        return QStringLiteral("%1 has no quad %2").arg(device.model, QString::number(prefix.quad));
    }
    if (prefix.lane >= device.lanesPerQuad) {
        return QStringLiteral("%1 has no lane %2 in a quad")
            .arg(device.model, QString::number(prefix.lane));
    }
    if (!pin.isEmpty() && !device.pins.contains(pin)) {
        return QStringLiteral("%1 has no reference clock %2").arg(device.model, pin);
    }
    return {};
}

/// The name and the value are one blank apart. The lines that name a quad-1 master of the clock
/// correction have two.
QString valueOf(const QString& text, const QString& name, int blank) {
    QString value = text.mid(blank + 1);
    if (value.startsWith(QLatin1String(" q1_")) && name.endsWith(QLatin1String("_ctc_mst_sel"))) {
        value.remove(0, 1);
    }
    return value;
}

} // namespace

QString lineError(int line, const QString& sentence) {
    return QStringLiteral("line %1: %2").arg(line).arg(sentence);
}

QString pinOfSetting(const QString& name) {
    if (name == QLatin1String("mclk_freq")) {
        return QStringLiteral("MCLK");
    }
    if (!name.endsWith(QLatin1String("_freq"))) {
        return {}; // as nearly all settings: spare them the expression
    }
    static const QRegularExpression form(
        QStringLiteral("\\A(q[0-9])_(?:(refclk[0-3])|gpio([0-3]?))_freq\\z"));
    const QRegularExpressionMatch match = form.match(name);
    if (!match.hasMatch()) {
        return {};
    }
    const QString pin = match.captured(2).isEmpty() ? QStringLiteral("REFIN") + match.captured(3)
                                                    : match.captured(2).toUpper();
    return match.captured(1).toUpper() + QLatin1Char('_') + pin;
}

void Script::takeLine(const QString& text, int number, const DEV::DeviceInfo& device,
                      QStringList* errors) {
    const int blank = text.indexOf(QLatin1Char(' '));
    const QString name = text.left(blank);
    const auto fail = [&](const QString& sentence) { errors->append(lineError(number, sentence)); };
    const SettingPrefix prefix = settingPrefix(name);
    const SettingRow* row = findSetting(name, prefix);
    if (blank < 1 || row == nullptr) {
        fail(blank < 1 ? QStringLiteral("\"%1\" is no setting name, blank and value").arg(text)
                       : QStringLiteral("unknown setting \"%1\"").arg(name));
        return;
    }
    const QString value = valueOf(text, name, blank);
    const QString pin = pinOfSetting(name);
    QString problem = deviceProblem(prefix, pin, device);
    if (problem.isEmpty()) {
        problem = value.contains(QLatin1Char(' ')) ? QStringLiteral("has a blank in its value")
                                                   : valueProblem(*row, value);
    }
    if (!problem.isEmpty()) {
        fail(QStringLiteral("%1 \"%2\": %3").arg(name, value, problem));
        return;
    }
    Setting& known = m_settings[name];
    if (known.line == 0) {
        known = {value, number};
        m_names.append(name);
        if (!pin.isEmpty()) {
            m_pins.append({pin, name});
        }
    } else if (known.value != value) {
        fail(QStringLiteral("%1 is \"%2\" here and \"%3\" in line %4")
                 .arg(name, value, known.value)
                 .arg(known.line));
    }
}

Script Script::parse(const QStringList& lines, const DEV::DeviceInfo& device, QStringList* errors) {
    Script script;
    script.m_settings.reserve(lines.size());
    script.m_names.reserve(lines.size());
    int number = 0;
    for (const QString& line : lines) {
        script.takeLine(line, ++number, device, errors);
    }
    return script;
}

QStringList Script::enabledLanes() const {
    const QLatin1String suffix("_enable");
    QStringList lanes;
    for (const QString& name : m_names) {
        if (!name.endsWith(suffix) || value(name) != QLatin1String("true")) {
            continue;
        }
        const SettingPrefix prefix = settingPrefix(name);
        if (prefix.scope == Scope::Lane && name.size() == prefix.length - 1 + suffix.size()) {
            lanes.append(name.left(prefix.length - 1));
        }
    }
    return lanes;
}

} // namespace IPSERDESIP
