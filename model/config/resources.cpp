#include "model/config/resources.h"

#include "model/config/configview.h"
#include "model/config/keys.h"
#include "model/config/lanes.h"
#include "model/config/values.h"

#include <serdesip/refnames.h>

#include <utility>

namespace IPCUSTOMIZED {

using IPSERDESIP::FromRefOptionToRef;
using IPSERDESIP::Message;

namespace {

void addReference(Message& message, const QString& option, double frequency) {
    const QString name = FromRefOptionToRef(option);
    if (!name.isEmpty() && !message.refClocks.contains(name)) {
        message.refClocks.append(name);
        message.refFrequencies.append(frequency);
    }
}

/// What "REFMUX1", "GPIO" and the like stand for.
void addRouted(Message& message, const ConfigView& config, const QString& choice) {
    if (choice == Value::Gpio || choice == Value::GpioPin) {
        addReference(message, Value::GpioPin, config.number(Key::GpioFreq));
        return;
    }
    if (choice == Value::Mclk) {
        addReference(message, Value::Mclk, config.number(Key::MclkFreq));
        return;
    }
    for (std::size_t mux = 0; mux < std::size(Value::RefMux); ++mux) {
        if (choice != Value::RefMux[mux]) {
            continue;
        }
        const QString source = config.text(Key::RefMuxSource[mux]);
        const QString pin = FromRefOptionToRef(source);
        if (pin.isEmpty()) {
            return;
        }
        addReference(message, source, config.number(Key::MuxFreq[mux]));
        for (int quad : {0, 1}) {
            if (usesQuad(message.lanes, quad)) {
                message.muxes.insert(QStringLiteral("Q%1_MUX%2").arg(quad).arg(mux), pin);
            }
        }
    }
}

void addReferences(Message& message, const ConfigView& config, DeviceClass device) {
    const QString mode = isListed(device) ? config.text(Key::OperationMode, Value::TxAndRx)
                                          : QString(Value::TxAndRx);
    if (!config.is(Key::RefMode, Value::Manual) && mode != Value::RxOnly) {
        addReference(message, config.text(Key::ReferenceClockSource),
                     config.number(Key::ReferenceClockFreq));
        return;
    }
    addRouted(message, config, config.text(Key::PllRefSource));
    // The 15k class has no choice for the receiver: it follows the PLL.
    if (mode != Value::TxOnly && device != DeviceClass::K15) {
        addRouted(message, config, config.text(Key::RxRefSource));
    }
}

double realTxRate(const ConfigView& config) {
    const double shared = config.number(Key::TxRealLineRate);
    if (shared != 0.0) {
        return shared;
    }
    const double rate = config.number(Key::TxRate);
    if (rate >= 1.0) {
        return rate;
    }
    const double ratio = textNumber(config.text(Key::TxRateRatio).remove(QLatin1Char('x')));
    return ratio > 0.0 ? rate * ratio : rate;
}

} // namespace

Message resourceMessage(const IPSERDESIP::ConfigMap& map, DeviceClass device,
                        const QString& protocol) {
    const ConfigView config(map);
    Message message;
    message.protocol = protocol;
    message.file = config.text(Key::File);
    message.module = config.text(Key::Module);
    message.instance = message.file + QLatin1Char(':') + message.module;

    const QString mode = config.text(Key::OperationMode, Value::TxAndRx);
    const bool sends = !isListed(device) || mode != Value::RxOnly;
    const bool receives = !isListed(device) || mode != Value::TxOnly;
    const QString pll = config.text(Key::PllSelection);
    for (const Lane& lane : lanes) {
        if (!config.flag(lane.key)) {
            continue;
        }
        message.lanes.append(lane.caption);
        message.laneResources.append(lane.key + QStringLiteral("_LANE"));
        if (sends) {
            message.laneResources.append(lane.key + QStringLiteral("_TX"));
        }
        if (receives) {
            message.laneResources.append(lane.key + QStringLiteral("_RX"));
        }
        const QString owner =
            pll == Value::Cpll ? QString(lane.key) : QStringLiteral("Q%1").arg(lane.quad);
        const QString name = owner + QLatin1Char('_') + pll;
        if (!pll.isEmpty() && !message.plls.contains(name)) {
            message.plls.append(name);
        }
    }
    addReferences(message, config, device);
    message.txRate = config.number(Key::TxRate);
    message.rxRate = config.number(Key::RxRate);
    message.realTxRate = realTxRate(config);
    return message;
}

} // namespace IPCUSTOMIZED
