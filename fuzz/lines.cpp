// Whatever a configuration holds: the writers end, both of them agree on how many lines a lane has
// but for the gearbox, and nothing depends on the lane but its name.

#include "fuzz.h"

#include "model/config/driverlines.h"
#include "model/config/lanelines.h"
#include "model/config/resources.h"

#include <utils/jsontext.h>

using namespace IPCUSTOMIZED;

namespace {

struct Lists {
    QStringList parameters;
    QStringList defines;
    QStringList script;
};

Lists linesOf(const LaneLines& lines, const Lane& lane) {
    Lists lists;
    lines.append(lists.parameters, lists.defines, lists.script, lane.prefix, lane.key,
                 quadPrefixes[static_cast<std::size_t>(lane.quad)]);
    return lists;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<int>(size));
    QVariant value;
    Utils::JsonError error;
    if (!Utils::parseJson(text, &value, &error) || value.type() != QVariant::Map) {
        return 0;
    }
    const IPSERDESIP::ConfigMap config = value.toMap();
    for (const DeviceClass device : {DeviceClass::K60, DeviceClass::K15, DeviceClass::K138}) {
        const LaneLines generation(config, device);
        const LaneLines dialog(config, device, dialogWriter);
        const Lists first = linesOf(generation, lanes.front());
        const Lists last = linesOf(generation, lanes.back());
        require(first.parameters.size() == last.parameters.size(), "as many parameters a lane");
        require(first.defines.size() == last.defines.size(), "as many defines a lane");
        require(first.script.size() == last.script.size(), "as many script lines a lane");

        const Lists checked = linesOf(dialog, lanes.front());
        require(checked.parameters.isEmpty() && checked.defines.isEmpty(), "no Verilog");
        const int gearboxes = checked.script.size() - first.script.size();
        require(gearboxes >= 0 && gearboxes <= 2, "the writers differ by gearbox lines only");

        const ConfigView view(config);
        const ReferenceClocks clocks = referenceClocks(view, device);
        require(clocks.names.size() == clocks.frequencies.size(), "a frequency a clock");
        require(clocks.inputLines.size() <= 1, "one input at most");
        QStringList script;
        QStringList parameters;
        require(appendRefClockFreqLines(clocks.names, clocks.frequencies, script, parameters),
                "the lists fit");
        appendReceiveClockLines(view, script);
        require(!optionLines(view, device).isEmpty(), "options are written");
        const auto message = resourceMessage(config, device, QStringLiteral("fuzz"));
        require(message.refClocks.size() == message.refFrequencies.size(), "a frequency a clock");
    }
    return 0;
}
