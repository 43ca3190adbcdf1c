#pragma once

#include "model/config/latin.h"
#include <QString>

#include <algorithm>
#include <array>

namespace IPCUSTOMIZED {

/// Devices differ in what they offer by class. Every model that is not listed is of the 138k class.
enum class DeviceClass { K60, K15, K138 };

inline constexpr std::array<QLatin1String, 2> models60k{"RZ7X-60B"_l1, "RZ7X-60ES"_l1};
inline constexpr std::array<QLatin1String, 6> models15k{
    "RZ7X-15A"_l1, "RZ7XR-15A"_l1, "RZ7XR-15B"_l1, "RZ7X-15B"_l1, "RZ7NX-15A"_l1, "RZ7NXR-15A"_l1};

/// @param model  the device's model name; the case matters
inline DeviceClass deviceClass(const QString& model) {
    const auto listed = [&](const auto& models) {
        return std::any_of(models.begin(), models.end(),
                           [&](QLatin1String name) { return model == name; });
    };
    if (listed(models60k)) {
        return DeviceClass::K60;
    }
    return listed(models15k) ? DeviceClass::K15 : DeviceClass::K138;
}

/// The listed devices have one quad, an operation mode, and separate widths and codings.
constexpr bool isListed(DeviceClass device) {
    return device != DeviceClass::K138;
}

} // namespace IPCUSTOMIZED
