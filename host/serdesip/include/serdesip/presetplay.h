#pragma once

#include "serdesip/dialogview.h"
#include "serdesip/export.h"
#include "serdesip/preset.h"

#include <functional>

namespace IPSERDESIP {

/// A field of a preset that does not show what the preset says, and why.
struct PresetRefusal {
    QString object;
    QVariant to;
    QString why;
};

/// Makes a preset's settings in their order, as a user would. Fields that show the value already
/// are left alone; those that a later setting's rule has changed are set again. What is still
/// not as the preset says comes back. `afterEach` is called when a field has been set.
HOST_SERDESIP_EXPORT QList<PresetRefusal> playPreset(const DialogView& view,
                                                     const QList<PresetStep>& steps,
                                                     const std::function<void()>& afterEach = {});

} // namespace IPSERDESIP
