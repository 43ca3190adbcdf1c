#include "ipgen/cli/sessionverdict.h"

#include <serdesip/serdes.h>

namespace Ipgen {

namespace {

/// ": " and what the boxes of the session said last.
QString lastWords(const Session::Report& report) {
    QString words;
    if (!report.messages.isEmpty()) {
        const Session::Report::Message& last = report.messages.last();
        words = QLatin1String(": ") + last.text;
    }
    for (const QString& sentence : report.details) {
        words += QLatin1String("; ") + sentence;
    }
    return words;
}

} // namespace

QString whyNotAccepted(const Session::Report& report) {
    switch (report.result) {
    case Session::Report::Result::Accepted:
        return {};
    case Session::Report::Result::Refused:
        return QStringLiteral("the IP does not open the configuration") + lastWords(report);
    case Session::Report::Result::Failed:
        return report.error;
    case Session::Report::Result::Cancelled:
        break;
    }
    return report.turnedDown ? QStringLiteral("not accepted") + lastWords(report) : QString();
}

Session::Player::Action openingOf(IPSERDESIP::BaseProtocol* protocol, const QString& name,
                                  const IPSERDESIP::ConfigMap& config) {
    return [protocol, name, config] {
        IPSERDESIP::serdes* model = IPSERDESIP::serdes::instance();
        model->setEditing(name);
        const IPSERDESIP::ConfigMap result = protocol->open(config);
        model->setEditing({});
        return result;
    };
}

} // namespace Ipgen
