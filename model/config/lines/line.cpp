#include "model/config/lines/line.h"

#include <utility>

namespace IPCUSTOMIZED {

LineValue always() {
    return [](const LineSource&) { return QString(); };
}

Line P(const char* form, LineValue value) {
    return {LineList::Parameter, QLatin1String(form), LineSubject::LanePrefix, std::move(value)};
}

Line D(const char* form, LineValue value) {
    return {LineList::Define, QLatin1String(form), LineSubject::LaneKey, std::move(value)};
}

Line S(const char* form, LineValue value) {
    return {LineList::Script, QLatin1String(form), LineSubject::LanePrefix, std::move(value)};
}

Line of(LineSubject subject, Line line) {
    line.subject = subject;
    return line;
}

LineValue computed(std::function<QString(const LineSource&)> compute) {
    return [compute = std::move(compute)](const LineSource& source) { return compute(source); };
}

LineValue text(QLatin1String key, QLatin1String missing) {
    return [=](const LineSource& source) { return source.config.text(key, missing); };
}

LineValue lower(QLatin1String key, QLatin1String missing) {
    return [=](const LineSource& source) { return source.config.text(key, missing).toLower(); };
}

LineValue upper(QLatin1String key) {
    return [=](const LineSource& source) { return source.config.text(key).toUpper(); };
}

LineValue integer(QLatin1String key, int missing) {
    return [=](const LineSource& source) {
        return QString::number(source.config.integer(key, missing));
    };
}

LineValue either(QLatin1String key, const char* ifTrue, const char* ifFalse) {
    return [=](const LineSource& source) {
        return QString::fromLatin1(source.config.flag(key) ? ifTrue : ifFalse);
    };
}

LineValue bit(QLatin1String key) {
    return either(key, "1", "0");
}

LineValue choose(QLatin1String key, std::vector<std::pair<QLatin1String, const char*>> words) {
    return [key, words = std::move(words)](const LineSource& source) -> std::optional<QString> {
        const QString value = source.config.text(key);
        for (const auto& [name, word] : words) {
            if (value == name) {
                return QString::fromLatin1(word);
            }
        }
        return std::nullopt;
    };
}

LineValue when(LineCondition condition, LineValue value) {
    return [condition = std::move(condition),
            value = std::move(value)](const LineSource& source) -> std::optional<QString> {
        return condition(source) ? value(source) : std::nullopt;
    };
}

LineCondition isTrue(QLatin1String key) {
    return [=](const LineSource& source) { return source.config.flag(key); };
}

LineCondition is(QLatin1String key, QLatin1String value) {
    return [=](const LineSource& source) { return source.config.is(key, value); };
}

LineCondition isNot(QLatin1String key, QLatin1String value) {
    return [=](const LineSource& source) { return !source.config.is(key, value); };
}

LineCondition both(LineCondition a, LineCondition b) {
    return [a = std::move(a), b = std::move(b)](const LineSource& source) {
        return a(source) && b(source);
    };
}

} // namespace IPCUSTOMIZED
