#include "serdesip/presetplay.h"

#include "fieldvalue.h"

#include <QHash>

namespace IPSERDESIP {

namespace {

/// The value as the field would show it.
QString shownAs(const QVariant& value) {
    return value.toString(); // of a boolean "true" or "false", as fieldvalue::read() says
}

QString shown(const DialogView& view, const QString& object) {
    const DialogView::Place place = view.find(object);
    return place.widget == nullptr ? QString() : fieldvalue::read(*place.widget);
}

bool shows(const DialogView& view, const PresetStep& step) {
    return view.find(step.object).widget != nullptr && shown(view, step.object) == shownAs(step.to);
}

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
            if (shows(view, step)) {
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
        const bool missed = last.value(step.object) == i && !shows(view, step);
        if (missed && why.at(i).isEmpty()) {
            why[i] = QStringLiteral("a rule makes it \"%1\"").arg(shown(view, step.object));
        }
        if (!why.at(i).isEmpty()) {
            refused.append({step.object, step.to, why.at(i)});
        }
    }
    return refused;
}

} // namespace IPSERDESIP
