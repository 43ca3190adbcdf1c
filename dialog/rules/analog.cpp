#include "dialog/rules/analog.h"

#include "model/config/lanes.h"

namespace IPCUSTOMIZED::rules {

BiasFrom biasFrom(const QStringList& selectedLanes) {
    const bool quad0 = usesQuad(selectedLanes, 0);
    const bool quad1 = usesQuad(selectedLanes, 1);
    if (quad0 == quad1) {
        return BiasFrom::Default;
    }
    return quad0 ? BiasFrom::Quad0 : BiasFrom::Quad1;
}

QStringList lanesSharingBias(const QStringList& selectedLanes) {
    QStringList others;
    for (const Lane& lane : lanes) {
        if (usesQuad(selectedLanes, lane.quad) && !selectedLanes.contains(lane.caption)) {
            others.append(lane.caption);
        }
    }
    return others;
}

QStringList millivolts(int first, int last, int step) {
    QStringList texts;
    for (int value = first; value <= last; value += step) {
        texts.append(QStringLiteral("%1mV").arg(value));
    }
    return texts;
}

QStringList depths() {
    QStringList texts;
    for (int depth = 0; depth < 32; ++depth) {
        texts.append(QString::number(depth));
    }
    return texts;
}

} // namespace IPCUSTOMIZED::rules
