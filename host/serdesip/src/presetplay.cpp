#include "serdesip/presetplay.h"

#include <QCoreApplication>
#include <QHash>

namespace IPSERDESIP {

namespace {

/// The context of this file's texts.
struct PlayTexts {
    Q_DECLARE_TR_FUNCTIONS(PlayTexts)
};

} // namespace

QList<PresetRefusal> playPreset(const DialogView& view, const QList<PresetStep>& steps,
                                const std::function<void()>& afterEach) {
    QHash<QString, int> last; // of the settings of one field, the one that counts
    for (int i = 0; i < steps.size(); ++i) {
        last.insert(steps.at(i).object, i);
    }
    QVector<QString> why(steps.size());
    constexpr int kPasses = 3;
    bool again = true;
    for (int pass = 0; pass < kPasses && again; ++pass) {
        again = false;
        for (int i = 0; i < steps.size() && view.dialog() != nullptr; ++i) {
            const PresetStep& step = steps.at(i);
            const bool counts = last.value(step.object) == i;
            // A field keeps the spelling that is typed, as far as it can.
            if (pass == 0 ? view.shownIn(step.object) == step.to.toString()
                          : view.shows(step.object, step.to)) {
                why[i].clear();
            } else if (pass == 0 || counts) {
                why[i] = view.setField(step.object, step.to);
                again = again || counts;
                if (afterEach) {
                    afterEach();
                }
            }
        }
    }
    QList<PresetRefusal> refused;
    for (int i = 0; i < steps.size() && view.dialog() != nullptr; ++i) {
        const PresetStep& step = steps.at(i);
        const bool missed = last.value(step.object) == i && !view.shows(step.object, step.to);
        if (missed && why.at(i).isEmpty()) {
            why[i] = PlayTexts::tr("a rule makes it \"%1\"").arg(view.shownIn(step.object));
        }
        if (!why.at(i).isEmpty()) {
            refused.append({step.object, step.to, why.at(i)});
        }
    }
    return refused;
}

} // namespace IPSERDESIP
