#include "serdesip/generator.h"

#include "script.h"
#include "scriptsolver.h"

#include "serdesip/serdes.h"

#include <ipcore/ipcore.h>
#include <utils/filereplace.h>

namespace IPSERDESIP {

namespace {

constexpr int maxErrors = 20; // as many as a message box can show

void addLine(QString& text, const QString& name, const QString& value) {
    text += name;
    text += QLatin1Char(' ');
    text += value;
    text += QLatin1Char('\n');
}

QByteArray resolvedText(const Script& script, const DEV::DeviceInfo& device,
                        const QVector<LaneClock>& clocks) {
    constexpr int usualLine = 48; // characters
    QString text;                 // one conversion at the end is much faster than one a line
    text.reserve(script.names().size() * usualLine);
    addLine(text, QStringLiteral("device"), device.model);
    addLine(text, QStringLiteral("class"), device.className);
    for (const QString& name : script.names()) {
        addLine(text, name, script.value(name));
    }
    for (const LaneClock& clock : clocks) {
        const auto add = [&](const char* name, const QString& value) {
            addLine(
                text,
                QStringLiteral("%1_%2_%3").arg(clock.lane, clock.direction, QLatin1String(name)),
                value);
        };
        const Milli reference = clock.reference.frequency;
        add("loop", clock.loop);
        add("refclk", clock.reference.pin.toLower());
        add("refclk_mhz", milliText(reference, mhzDecimals));
        add("m", QString::number(clock.dividers.m));
        add("n", QString::number(clock.dividers.n));
        add("d", QString::number(clock.dividers.d));
        add("vco_mhz", milliText(oscillatorFrequency(clock.dividers, reference), mhzDecimals));
        add("made_gbps", milliText(rateMade(clock.dividers, reference), gbpsDecimals));
        add("error_ppm", errorPpmText(clock.dividers, reference, clock.rate));
    }
    return text.toUtf8();
}

} // namespace

generator::generator() = default;

bool generator::generate(const QStringList& script, const QString& outputFile,
                         QStringList& messages) {
    m_errors.clear();
    serdes* model = serdes::instance();
    const std::shared_ptr<const DEV::DeviceInfo> device = model->deviceInfo();
    const auto finish = [&](bool done) {
        if (m_errors.size() > maxErrors) {
            const int more = m_errors.size() - maxErrors;
            m_errors = m_errors.mid(0, maxErrors);
            m_errors.append(QStringLiteral("and %1 more").arg(more));
        }
        messages = m_errors;
        return done;
    };
    if (!device) {
        m_errors.append(QStringLiteral("the device \"%1\" is not in the device database")
                            .arg(model->device().id()));
        return finish(false);
    }
    const Script parsed = Script::parse(script, *device, &m_errors);
    if (!m_errors.isEmpty()) {
        return finish(false);
    }
    ScriptSolver solver(parsed, *device);
    if (!solver.solve()) {
        m_errors = solver.errors();
        for (const QString& detail : solver.details()) {
            model->addDetail(detail);
        }
        return finish(false);
    }
    // The caller may have found the folder made, and so has not asked for it.
    if (const QString flaw = IPCore::outputFlaw(outputFile); !flaw.isEmpty()) {
        m_errors.append(QStringLiteral("%1: %2").arg(outputFile, flaw));
        return finish(false);
    }
    const QByteArray text = resolvedText(parsed, *device, solver.clocks());
    if (const Utils::FileResult written = Utils::replaceFile(outputFile, text); !written) {
        m_errors.append(QStringLiteral("%1: %2").arg(written.path, written.reason));
        return finish(false);
    }
    model->clearDetails();
    return finish(true);
}

} // namespace IPSERDESIP
