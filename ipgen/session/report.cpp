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

} // namespace Ipgen::Session
