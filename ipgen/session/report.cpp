#include "ipgen/session/report.h"

namespace Ipgen::Session {

namespace {

QVariantMap messageMap(const Report::Message& message) {
    return {{QStringLiteral("title"), message.title},
            {QStringLiteral("text"), message.text},
            {QStringLiteral("buttons"), message.buttons},
            {QStringLiteral("answer"), message.answer}};
}

} // namespace

QString Report::resultName() const {
    switch (result) {
    case Result::Accepted:
        return QStringLiteral("accepted");
    case Result::Cancelled:
        return QStringLiteral("cancelled");
    case Result::Refused:
        return QStringLiteral("refused");
    case Result::Failed:
        break;
    }
    return QStringLiteral("failed");
}

QVariantMap Report::toMap() const {
    QVariantList shown;
    for (const Message& message : messages) {
        shown.append(messageMap(message));
    }
    QVariantList refusals;
    for (const Refusal& refusal : refused) {
        refusals.append(QVariantMap{{QStringLiteral("step"), refusal.step},
                                    {QStringLiteral("why"), refusal.why}});
    }
    QVariantMap map{{QStringLiteral("result"), resultName()}, {QStringLiteral("messages"), shown},
                    {QStringLiteral("refused"), refusals},    {QStringLiteral("states"), states},
                    {QStringLiteral("figures"), figures},     {QStringLiteral("details"), details}};
    if (!error.isEmpty()) {
        map.insert(QStringLiteral("error"), error);
    }
    if (accepted()) {
        map.insert(QStringLiteral("config"), config);
    }
    return map;
}

Report Report::fromMap(const QVariantMap& map) {
    Report report;
    report.result = Result::Failed;
    const QString name = map.value(QStringLiteral("result")).toString();
    for (const Result result : {Result::Accepted, Result::Cancelled, Result::Refused}) {
        Report named;
        named.result = result;
        if (named.resultName() == name) {
            report.result = result;
        }
    }
    report.error = map.value(QStringLiteral("error")).toString();
    const QVariantList shown = map.value(QStringLiteral("messages")).toList();
    for (const QVariant& one : shown) {
        const QVariantMap message = one.toMap();
        report.messages.append({message.value(QStringLiteral("title")).toString(),
                                message.value(QStringLiteral("text")).toString(),
                                message.value(QStringLiteral("buttons")).toStringList(),
                                message.value(QStringLiteral("answer")).toString()});
    }
    const QVariantList refusals = map.value(QStringLiteral("refused")).toList();
    for (const QVariant& one : refusals) {
        const QVariantMap refusal = one.toMap();
        report.refused.append({refusal.value(QStringLiteral("step")).toInt(),
                               refusal.value(QStringLiteral("why")).toString()});
    }
    report.states = map.value(QStringLiteral("states")).toMap();
    report.figures = map.value(QStringLiteral("figures")).toMap();
    report.details = map.value(QStringLiteral("details")).toStringList();
    report.config = map.value(QStringLiteral("config")).toMap();
    return report;
}

} // namespace Ipgen::Session
