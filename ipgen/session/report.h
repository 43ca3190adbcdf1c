#pragma once

#include <serdesip/types.h>
#include <utils/pinfigure.h>

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace Ipgen::Session {

/// What happened in a session.
struct Report {
    enum class Result {
        Accepted,
        Cancelled,
        Refused, ///< the IP would not open the configuration; its dialog was never shown
        Failed,  ///< a step could not be done; `error` says which and why
    };

    /// A message box that was shown, and the button that closed it.
    struct Message {
        QString title;
        QString text;
        QStringList buttons; ///< as shown, without mnemonics
        QString answer;
    };

    /// A step marked "try" that could not be done.
    struct Refusal {
        int step = 0; ///< from 1
        QString why;
    };

    Result result = Result::Cancelled;
    QString error;
    QList<Message> messages;
    QList<Refusal> refused;
    QVariantMap states;                          ///< label to snapshot
    QString module;                              ///< the module name in the last snapshot
    QMap<QString, QList<Utils::PinFigure>> pins; ///< the figures as the frame has them
    QVariantMap figures;                         ///< label to list of pins
    QStringList details;          ///< what the host had to say about failures, each once
    IPSERDESIP::ConfigMap config; ///< when accepted

    /// Fields that showed something else than they were last set to when OK was asked for, a
    /// sentence each: later settings' rules have changed them.
    QStringList overridden;

    bool turnedDown = false; ///< the last thing asked of the dialog was OK, and it stayed open
    QStringList complaints;  ///< what libraries reported during that, or when it was to open
    int saidBefore = 0;      ///< how many messages came before that

    bool accepted() const { return result == Result::Accepted; }
    /// "accepted", "cancelled", "refused" or "failed".
    QString resultName() const;
    /// The report's JSON object.
    QVariantMap toMap() const;
    /// What toMap() has written, without the pins.
    static Report fromMap(const QVariantMap& map);
};

} // namespace Ipgen::Session
