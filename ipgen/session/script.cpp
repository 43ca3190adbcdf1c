#include "ipgen/session/script.h"

#include <utils/jsontext.h>

#include <QStringList>

namespace Ipgen::Session {

namespace {

/// One word that makes a step, and the kind of value that stands behind it.
struct Word {
    const char* text;
    Step::Kind kind;
    bool named; ///< a text follows; otherwise true
};

// clang-format off
constexpr Word words[] = {
    {"set",    Step::Kind::Set,    true},
    {"press",  Step::Kind::Press,  true},
    {"answer", Step::Kind::Answer, true},
    {"state",  Step::Kind::State,  true},
    {"accept", Step::Kind::Accept, false},
    {"cancel", Step::Kind::Cancel, false},
};
// clang-format on

constexpr const char* toWord = "to";
constexpr const char* tryWord = "try";

const Word* findWord(const QString& text) {
    for (const Word& word : words) {
        if (text == QLatin1String(word.text)) {
            return &word;
        }
    }
    return nullptr;
}

const Word& wordOf(Step::Kind kind) {
    for (const Word& word : words) {
        if (word.kind == kind) {
            return word;
        }
    }
    Q_UNREACHABLE();
}

bool isText(const QVariant& value) {
    return value.type() == QVariant::String;
}
bool isBool(const QVariant& value) {
    return value.type() == QVariant::Bool;
}

bool isScalar(const QVariant& value) {
    switch (value.type()) {
    case QVariant::String:
    case QVariant::Bool:
    case QVariant::Int:
    case QVariant::LongLong:
    case QVariant::ULongLong:
    case QVariant::Double:
        return true;
    default:
        return false;
    }
}

QString quoted(const QString& text) {
    return QLatin1Char('"') + text + QLatin1Char('"');
}

/// The value behind the word that makes the step.
QString readTarget(const Word& word, const QVariant& value, Step* step) {
    const QString name = quoted(QLatin1String(word.text));
    if (!word.named) {
        return isBool(value) && value.toBool() ? QString()
                                               : name + QLatin1String(" can only be true");
    }
    if (!isText(value) || value.toString().isEmpty()) {
        return name + QLatin1String(" needs a text that is not empty");
    }
    step->target = value.toString();
    return {};
}

/// The words that stand beside it.
QString readCompanion(const QString& key, const QVariant& value, bool isSet, Step* step) {
    if (key == QLatin1String(tryWord)) {
        step->tries = value.toBool();
        return isBool(value) ? QString() : QStringLiteral("\"try\" is true or false");
    }
    if (key == QLatin1String(toWord)) {
        step->to = value;
        if (!isSet) {
            return QStringLiteral("\"to\" belongs to \"set\" alone");
        }
        return isScalar(value) ? QString()
                               : QStringLiteral("\"to\" needs a text, a number, true or false");
    }
    return QLatin1String("unknown word ") + quoted(key);
}

QString readStep(const QVariant& value, Step* step) {
    if (value.type() != QVariant::Map) {
        return QStringLiteral("a step is an object, such as {\"press\": \"tab1/Button\"}");
    }
    const QVariantMap map = value.toMap();
    const Word* made = nullptr;
    for (auto it = map.begin(); it != map.end(); ++it) {
        if (const Word* word = findWord(it.key())) {
            if (made != nullptr) {
                return QLatin1String("one step cannot be both ") +
                       quoted(QLatin1String(made->text)) + QLatin1String(" and ") +
                       quoted(it.key());
            }
            made = word;
        }
    }
    for (auto it = map.begin(); it != map.end(); ++it) {
        const bool makes = made != nullptr && findWord(it.key()) != nullptr;
        const QString error =
            makes ? readTarget(*made, it.value(), step)
                  : readCompanion(it.key(), it.value(),
                                  made != nullptr && made->kind == Step::Kind::Set, step);
        if (!error.isEmpty()) {
            return error;
        }
    }
    if (made == nullptr) {
        return QStringLiteral(
            "nothing to do: set, press, answer, state, accept or cancel is missing");
    }
    step->kind = made->kind;
    if (made->kind == Step::Kind::Set && !map.contains(QLatin1String(toWord))) {
        return QStringLiteral("\"set\" needs \"to\"");
    }
    return {};
}

} // namespace

QString parseScript(const QByteArray& json, Script* script) {
    QVariant root;
    Utils::JsonError damage;
    if (!Utils::parseJson(json, &root, &damage)) {
        return damage.text();
    }
    if (root.type() != QVariant::List && root.type() != QVariant::StringList) {
        return QStringLiteral("a session script is a list of steps");
    }
    Script steps;
    const QVariantList list = root.toList();
    for (const QVariant& value : list) {
        Step step;
        const QString error = readStep(value, &step);
        if (!error.isEmpty()) {
            return QStringLiteral("step %1: ").arg(steps.size() + 1) + error;
        }
        steps.append(step);
    }
    *script = steps;
    return {};
}

QByteArray writeScript(const Script& script) {
    QByteArrayList lines;
    for (const Step& step : script) {
        const Word& word = wordOf(step.kind);
        QVariantMap map;
        map.insert(QLatin1String(word.text), word.named ? QVariant(step.target) : QVariant(true));
        if (step.kind == Step::Kind::Set) {
            map.insert(QLatin1String(toWord), step.to);
        }
        if (step.tries) {
            map.insert(QLatin1String(tryWord), true);
        }
        lines.append("  " + Utils::writeJson(map, Utils::JsonForm::Compact));
    }
    return lines.isEmpty() ? QByteArray("[]\n") : "[\n" + lines.join(",\n") + "\n]\n";
}

QString stepName(const Step& step) {
    if (step.kind == Step::Kind::Preset) {
        return QLatin1String("preset ") + step.target;
    }
    const Word& word = wordOf(step.kind);
    const QString name = QLatin1String(word.text);
    return word.named ? name + QLatin1Char(' ') + step.target : name;
}

QString scriptOfSettings(const QStringList& settings, Script* script) {
    Script steps;
    for (const QString& setting : settings) {
        const int sign = setting.indexOf(QLatin1Char('='));
        if (sign <= 0) {
            return quoted(setting) + QLatin1String(" is not of the form OBJECT=VALUE");
        }
        Step step;
        step.kind = Step::Kind::Set;
        step.target = setting.left(sign);
        step.to = setting.mid(sign + 1);
        steps.append(step);
    }
    Step accept;
    accept.kind = Step::Kind::Accept;
    steps.append(accept);
    *script = steps;
    return {};
}

} // namespace Ipgen::Session
