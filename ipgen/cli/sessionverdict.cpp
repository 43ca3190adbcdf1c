#include "ipgen/cli/sessionverdict.h"

#include <serdesip/serdes.h>

namespace Ipgen {

namespace {

/// ": " and what the user was told: by the libraries, or by the box that came up last.
QString lastWords(const Session::Report& report) {
    QStringList words = report.complaints;
    if (report.messages.size() > report.saidBefore) {
        words.append(
            QString(report.messages.last().text).replace(QLatin1Char('\n'), QLatin1Char(' ')));
    }
    if (report.complaints.isEmpty()) {
        words += report.details;
    }
    return words.isEmpty() ? QString() : QLatin1String(": ") + words.join(QLatin1String("; "));
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
