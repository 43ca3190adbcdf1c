#include "dev/deviceinfo.h"

#include <algorithm>

namespace DEV {

QStringList DeviceInfo::laneCaptions() const {
    QStringList captions;
    for (int quad = 0; quad < quads; ++quad) {
        for (int lane = 0; lane < lanesPerQuad; ++lane) {
            captions.append(QStringLiteral("Q%1 Lane%2").arg(quad).arg(lane));
        }
    }
    return captions;
}

QStringList DeviceInfo::pllNames() const {
    QStringList names;
    for (int quad = 0; quad < quads; ++quad) {
        for (const ClockLoop& pll : plls) {
            if (pll.shared) {
                names.append(QStringLiteral("Q%1_%2").arg(quad).arg(pll.kind));
                continue;
            }
            for (int lane = 0; lane < lanesPerQuad; ++lane) {
                names.append(QStringLiteral("Q%1_LN%2_%3").arg(quad).arg(lane).arg(pll.kind));
            }
        }
    }
    return names;
}

QStringList DeviceInfo::multiplexerNames() const {
    QStringList names;
    for (const Multiplexer& mux : multiplexers) {
        names.append(mux.name);
    }
    return names;
}

const ClockLoop* DeviceInfo::loop(const QString& kind) const {
    if (kind == cdr.kind) {
        return &cdr;
    }
    const auto it = std::find_if(plls.begin(), plls.end(),
                                 [&](const ClockLoop& pll) { return pll.kind == kind; });
    return it == plls.end() ? nullptr : &*it;
}

const Multiplexer* DeviceInfo::multiplexer(const QString& name) const {
    const auto it = std::find_if(multiplexers.begin(), multiplexers.end(),
                                 [&](const Multiplexer& mux) { return mux.name == name; });
    return it == multiplexers.end() ? nullptr : &*it;
}

} // namespace DEV
