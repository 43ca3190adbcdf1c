#include "ipgen/session/approach.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

namespace Ipgen::Session {

namespace {

/// The context of this file's texts.
struct ApproachTexts {
    Q_DECLARE_TR_FUNCTIONS(ApproachTexts)
};

const QString end = QStringLiteral("end");

/// What a widget of a snapshot shows, as a "set" step says it.
QVariant valueOf(const QVariantMap& widget) {
    if (widget.contains(QStringLiteral("checked"))) {
        return widget.value(QStringLiteral("checked"));
    }
    if (widget.contains(QStringLiteral("value"))) {
        return widget.value(QStringLiteral("value"));
    }
    if (widget.contains(QStringLiteral("items"))) {
        const int current = widget.value(QStringLiteral("current")).toInt();
        const QVariantList items = widget.value(QStringLiteral("items")).toList();
        return current < 0 ? QVariant(QString()) : QVariant(items.value(current).toList().value(0));
    }
    return widget.value(QStringLiteral("text"));
}

bool isOpen(const QVariantMap& widget) {
    return widget.value(QStringLiteral("enabled")).toBool() &&
           widget.value(QStringLiteral("visible")).toBool();
}

Step stateStep(const QString& label) {
    return {Step::Kind::State, label, {}, false};
}

Step trying(Step step) {
    step.tries = true;
    return step;
}

/// The choices that a user could make instead of the one that is shown.
QVariantList otherValues(const QVariantMap& widget) {
    QVariantList others;
    if (widget.contains(QStringLiteral("checked"))) {
        others.append(!widget.value(QStringLiteral("checked")).toBool());
    }
    const QVariantList items = widget.value(QStringLiteral("items")).toList();
    for (const QVariant& item : items) {
        const QVariant text = item.toList().value(0);
        if (text != valueOf(widget)) {
            others.append(text);
        }
    }
    return others;
}

QString pageOf(const QString& name) {
    return name.left(name.indexOf(QLatin1Char('/')));
}

class Approach {
public:
    Approach(const Script& wanted, const std::function<Report(const Script&)>& play)
        : m_wanted(wanted)
        , m_play(play) {
        for (const Step& step : wanted) {
            if (pageOf(step.target) == QLatin1String("frame")) {
                m_steps.append(step); // these are in no snapshot
            }
        }
    }

    const Script& steps() const { return m_steps; }
    const QString& error() const { return m_error; }

    bool find() {
        constexpr int tries = 8;
        for (int i = 0; i < tries; ++i) {
            const Report report = run(m_steps, {stateStep(end)});
            const QVariantMap state = report.states.value(end).toMap();
            if (state.isEmpty()) {
                m_error = report.error;
                return false;
            }
            const Script missing = missingIn(state);
            if (missing.isEmpty()) {
                return true;
            }
            m_error = sentence(missing, state);
            if (!extend(missing, state)) {
                return false;
            }
        }
        return false;
    }

private:
    Report run(const Script& steps, const Script& more) const { return m_play(steps + more); }

    Script missingIn(const QVariantMap& state) const {
        Script missing;
        for (const Step& step : m_wanted) {
            if (state.contains(step.target) &&
                valueOf(state.value(step.target).toMap()) != step.to) {
                missing.append(step);
            }
        }
        return missing;
    }

    /// Adds the steps that may bring what is missing.
    bool extend(const Script& missing, const QVariantMap& state) {
        Script direct;
        Script locked;
        for (const Step& step : missing) {
            (isOpen(state.value(step.target).toMap()) ? direct : locked).append(trying(step));
        }
        if (!direct.isEmpty() && writeScript(direct) != m_last) {
            m_last = writeScript(direct);
            const Report report = run(m_steps + direct, {stateStep(end)});
            m_steps += done(direct, report, m_steps.size());
            return true;
        }
        m_last.clear();
        const Script way = detour(locked, state, missing.size());
        m_steps += way;
        return !way.isEmpty();
    }

    /// The steps that were not refused, from now on to be taken for granted.
    static Script done(const Script& tried, const Report& report, int offset) {
        QSet<int> refused;
        for (const Report::Refusal& refusal : report.refused) {
            refused.insert(refusal.step - 1 - offset);
        }
        Script steps;
        for (int i = 0; i < tried.size(); ++i) {
            if (!refused.contains(i)) {
                steps.append(tried.at(i));
                steps.last().tries = false;
            }
        }
        return steps;
    }

    /// Opens locked fields by another choice of their page, sets them, and takes the choice back:
    /// of all such ways the one that leaves least missing, less than now.
    Script detour(const Script& locked, const QVariantMap& state, int missingNow) const {
        QSet<QString> pages;
        for (const Step& step : locked) {
            pages.insert(pageOf(step.target));
        }
        Script looks;
        QList<QPair<Step, Step>> choices; // there and back; the place is the label of the look
        for (const Step& field : m_wanted) {
            const QVariantMap widget = state.value(field.target).toMap();
            if (!pages.contains(pageOf(field.target)) || !isOpen(widget)) {
                continue;
            }
            const QVariantList others = otherValues(widget);
            for (const QVariant& other : others) {
                const Step there{Step::Kind::Set, field.target, other, true};
                const Step back{Step::Kind::Set, field.target, valueOf(widget), true};
                looks += {there, stateStep(QString::number(choices.size())), back};
                choices.append({there, back});
            }
        }
        const Report report = run(m_steps, looks);
        Script best;
        for (int i = 0; i < choices.size(); ++i) {
            const QVariantMap seen = report.states.value(QString::number(i)).toMap();
            const bool opens = std::any_of(locked.begin(), locked.end(), [&](const Step& step) {
                return isOpen(seen.value(step.target).toMap());
            });
            if (!opens) {
                continue;
            }
            const Script way = Script{choices.at(i).first} + locked + Script{choices.at(i).second};
            const Report walked = run(m_steps + way, {stateStep(end)});
            const QVariantMap after = walked.states.value(end).toMap();
            const int missing = after.isEmpty() ? missingNow : missingIn(after).size();
            if (missing < missingNow) {
                missingNow = missing;
                best = done(way, walked, m_steps.size());
            }
        }
        return best;
    }

    static QString sentence(const Script& missing, const QVariantMap& state) {
        QStringList fields;
        for (const Step& step : missing) {
            fields.append(ApproachTexts::tr("%1 (%2 instead of %3)")
                              .arg(step.target,
                                   valueOf(state.value(step.target).toMap()).toString(),
                                   step.to.toString()));
        }
        return fields.join(QStringLiteral(", "));
    }

    const Script& m_wanted;
    const std::function<Report(const Script&)>& m_play;
    Script m_steps;
    QByteArray m_last; ///< what was added last: adding it once more will not help
    QString m_error;
};

/// The answers to what OK asks that give the saved configuration; empty: the default ones, or none
/// do.
Script answersFor(const Script& steps, const IPSERDESIP::ConfigMap& saved,
                  const std::function<Report(const Script&)>& play) {
    const Step accept{Step::Kind::Accept, {}, {}, false};
    const Report plain = play(steps + Script{accept});
    if (!plain.accepted() || plain.config == saved) {
        return {};
    }
    for (const Report::Message& message : plain.messages) {
        for (const QString& button : message.buttons) {
            if (message.buttons.size() < 2 || button == message.answer) {
                continue;
            }
            const Script answer{{Step::Kind::Answer, button, {}, false}};
            const Report other = play(steps + answer + Script{accept});
            if (other.accepted() && other.config == saved) {
                return answer;
            }
        }
    }
    return {};
}

} // namespace

QString approach(const Script& wanted, const IPSERDESIP::ConfigMap& saved,
                 const std::function<Report(const Script&)>& play, Script* script) {
    Approach way(wanted, play);
    if (!way.find()) {
        return way.error();
    }
    *script = way.steps() + answersFor(way.steps(), saved, play);
    return {};
}

} // namespace Ipgen::Session
