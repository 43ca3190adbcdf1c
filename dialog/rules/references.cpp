#include "dialog/rules/references.h"

#include "model/config/configview.h"
#include "model/config/lanes.h"
#include "model/config/values.h"

namespace IPCUSTOMIZED::rules {

namespace {

const QString notConnected = Value::NotConnected;

QStringList muxNames(DeviceClass device) {
    QStringList names;
    for (int mux = 0; mux < muxCount(device); ++mux) {
        names.append(Value::RefMux[mux]);
    }
    return names;
}

} // namespace

int muxCount(DeviceClass device) {
    return device == DeviceClass::K60 ? 4 : 2;
}

QStringList muxSources(DeviceClass device, int mux) {
    switch (device) {
    case DeviceClass::K60:
        if (mux < 2) {
            return {notConnected, QStringLiteral("Q0 REFCLK0"), QStringLiteral("Q0 REFCLK1"),
                    QStringLiteral("Q0 REFIN0"), QStringLiteral("Q0 REFIN1")};
        }
        return {notConnected, QStringLiteral("Q0 REFCLK2"), QStringLiteral("Q0 REFCLK3")};
    case DeviceClass::K15:
        return {notConnected, QStringLiteral("Q0 REFCLK0"), QStringLiteral("Q0 REFCLK1")};
    case DeviceClass::K138:
        break;
    }
    return QStringList(notConnected) + autoSources(device);
}

QStringList autoSources(DeviceClass device) {
    switch (device) {
    case DeviceClass::K60:
        return {QStringLiteral("Q0 REFCLK0"), QStringLiteral("Q0 REFCLK1"),
                QStringLiteral("Q0 REFCLK2"), QStringLiteral("Q0 REFCLK3"),
                QStringLiteral("Q0 REFIN0"),  QStringLiteral("Q0 REFIN1")};
    case DeviceClass::K15:
        return {QStringLiteral("Q0 REFCLK0"), QStringLiteral("Q0 REFCLK1"),
                QStringLiteral("Q0 REFIN"), QStringLiteral("MCLK")};
    case DeviceClass::K138:
        break;
    }
    return {QStringLiteral("Q0 REFCLK0"), QStringLiteral("Q0 REFCLK1"),
            QStringLiteral("Q1 REFCLK0"), QStringLiteral("Q1 REFCLK1")};
}

bool usesQuad1Muxes(DeviceClass device, const QStringList& selectedLanes) {
    return device == DeviceClass::K138 && !usesQuad(selectedLanes, 0) && usesQuad(selectedLanes, 1);
}

QString muxHostName(bool quad1, int mux) {
    return QStringLiteral("Q%1_MUX%2").arg(quad1 ? 1 : 0).arg(mux);
}

QString muxInQuad(const QString& quad, const QString& option) {
    const bool quad1 = quad != "quad0"_l1;
    for (int mux = 0; mux < (quad1 ? 2 : 4); ++mux) {
        if (option.contains(QStringLiteral("MUX%1").arg(mux))) {
            return muxHostName(quad1, mux);
        }
    }
    return {};
}

bool isRxOnly(DeviceClass device, const QString& operationMode) {
    return isListed(device) && operationMode == Value::RxOnly;
}

bool isTxOnly(DeviceClass device, const QString& operationMode) {
    return isListed(device) && operationMode == Value::TxOnly;
}

ReferenceFields referenceFields(DeviceClass device, const QString& operationMode,
                                const QString& referenceMode) {
    const bool rxOnly = isRxOnly(device, operationMode);
    const bool routed = rxOnly || referenceMode == Value::Manual;
    ReferenceFields fields;
    fields.autoFields = !routed;
    fields.muxes = routed;
    fields.inputs = routed && device == DeviceClass::K15;
    // The 60k class receives through one fixed multiplexer.
    fields.pllSource = routed && !(rxOnly && device == DeviceClass::K60);
    fields.rxSource = routed && !isTxOnly(device, operationMode);
    return fields;
}

QStringList pllSourceItems(DeviceClass device, const QString& operationMode) {
    const bool rxOnly = isRxOnly(device, operationMode);
    if (device == DeviceClass::K60) {
        return rxOnly ? QStringList(Value::RefMux[1]) : muxNames(device);
    }
    if (device == DeviceClass::K15) {
        const QStringList first =
            rxOnly ? QStringList{Value::RefMux[1], Value::RefMux[0]} : muxNames(device);
        return first + QStringList{Value::Gpio, Value::Mclk};
    }
    return muxNames(device);
}

QStringList rxSourceItems(DeviceClass device, const QString& operationMode) {
    if (device == DeviceClass::K60 && isTxOnly(device, operationMode)) {
        return {};
    }
    QStringList items = muxNames(device);
    if (device == DeviceClass::K15) {
        items << Value::Gpio << Value::Mclk;
    }
    return items;
}

QString correctedFrequency(const QString& typed) {
    const double frequency = textNumber(typed);
    return typed.isEmpty() || frequency < 50.0 || frequency > 500.0 ? QString(defaultFrequency)
                                                                    : typed;
}

bool sameFrequency(double recorded, const QString& field) {
    const double typed = textNumber(field);
    return recorded == typed || QString::number(recorded).toDouble() == typed;
}

MuxFault muxFault(DeviceClass device, const std::vector<MuxSetting>& muxes,
                  const QString& pllSource, const QString& rxSource) {
    const auto open = [&](std::size_t mux) { return muxes[mux].source == Value::NotConnected; };
    bool allOpen = true;
    for (std::size_t mux = 0; mux < muxes.size(); ++mux) {
        allOpen = allOpen && open(mux);
    }
    // The 15k class can do without multiplexers, and its receiver has no source of its own.
    if (allOpen && device != DeviceClass::K15) {
        return MuxFault::Source;
    }
    for (std::size_t mux = 0; mux < muxes.size(); ++mux) {
        const QLatin1String name = Value::RefMux[mux];
        const bool chosen = pllSource == name || (device != DeviceClass::K15 && rxSource == name);
        if (open(mux) && chosen) {
            return MuxFault::Source;
        }
    }
    for (std::size_t n = 0; n < muxes.size(); ++n) {
        for (std::size_t m = n + 1; m < muxes.size(); ++m) {
            if (muxes[n].source == muxes[m].source &&
                textNumber(muxes[n].frequency) != textNumber(muxes[m].frequency)) {
                return MuxFault::Frequency;
            }
        }
    }
    return MuxFault::None;
}

} // namespace IPCUSTOMIZED::rules
