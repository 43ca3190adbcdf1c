// The generation driver: from a configuration to define.vh, param.v, customized.ini, and on to
// the host's netlist generation.

#include "model/customized.h"

#include "model/config/driverlines.h"
#include "model/config/infokeys.h"
#include "model/config/keys.h"

#include <core/viewmanager.h>
#include <ipcore/ipcore.h>
#include <serdesip/netlist.h>
#include <serdesip/serdes.h>

namespace IPCUSTOMIZED {

namespace {

const QString outputName = QStringLiteral("CUSTOMIZED");

/// The bias that the project's data store holds for each quad; a missing one is 0.
std::array<int, 2> storedBias() {
    const IPSERDESIP::serdes* model = IPSERDESIP::serdes::instance();
    return {model->getData(biasStoreKey[0]).toInt(), model->getData(biasStoreKey[1]).toInt()};
}

} // namespace

void customized::writeLaneLines(QStringList& parameters, QStringList& defines, QStringList& script,
                                const QString& lanePrefix, const QString& laneKey,
                                const QString& quadPrefix) const {
    m_laneLines.append(parameters, defines, script, lanePrefix, laneKey, quadPrefix);
}

bool customized::writeRefClockFreqLines(const QStringList& names, const QStringList& frequencies,
                                        QStringList& script, QStringList& parameters) const {
    return appendRefClockFreqLines(names, frequencies, script, parameters);
}

bool customized::generate(const ConfigMap& config, QStringList& script, const QString& /*reserved*/,
                          QStringList& options, QString& text, bool runNetlist) {
    setDevice(deviceFor(config));
    if (config.isEmpty()) {
        return false;
    }
    m_config = config;
    const ConfigView view(m_config);
    const DeviceClass device = deviceClass(this->device().device());
    m_laneLines = LaneLines(m_config, device);

    QStringList parameters;
    QStringList defines;
    script += bondingControlLines(device);
    for (const Lane& lane : lanes) {
        if (view.flag(lane.key)) {
            writeLaneLines(parameters, defines, script, lane.prefix, lane.key,
                           quadPrefixes[static_cast<std::size_t>(lane.quad)]);
        }
    }

    const ReferenceClocks clocks = referenceClocks(view, device);
    script += clocks.inputLines;
    if (!writeRefClockFreqLines(clocks.names, clocks.frequencies, script, parameters)) {
        return false;
    }
    appendReceiveClockLines(view, script);
    if (view.flag(Key::ChangedAllOfBias)) {
        script += biasLines(view.list(Key::RecordLanes), storedBias());
    }
    defines += moduleDefineLines(view, device);
    options += optionLines(view, device);

    const QString folder = IPSERDESIP::serdes::instance()->workingDir() + QLatin1Char('/') +
                           view.text(Key::File) + QStringLiteral("/temp/") + outputName;
    if (!IPCore::makeDirs(folder, name())) {
        return false;
    }
    const auto write = [&](const char* file, const QStringList& lines) {
        return IPCore::generateFile(folder + QLatin1Char('/') + QLatin1String(file), lines,
                                    Core::ViewManager::dialogParent(), QString());
    };
    if (!write("define.vh", defines) || !write("param.v", parameters) ||
        !write("customized.ini", script)) {
        return false;
    }
    if (!runNetlist) {
        return true;
    }
    return IPSERDESIP::waitForRunSyntheSis(
        this->device(), m_config, m_info,
        {QStringLiteral("customized_phy_wrapper.v"), QStringLiteral("customized_phy.v")},
        outputName, text, this);
}

} // namespace IPCUSTOMIZED
