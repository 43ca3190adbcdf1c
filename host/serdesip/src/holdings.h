#pragma once

#include "serdesip/message.h"

#include <QHash>
#include <QMap>
#include <QPair>
#include <QString>
#include <QStringList>

namespace IPSERDESIP {

/// Who holds which resource, kept up to date message by message. A query looks at one resource's
/// owners, and at most at two of them: its cost does not grow with the number of instances.
class Holdings {
public:
    /// How an owner uses a resource.
    struct Use {
        QString owner;          ///< empty: nobody does
        QString setting;        ///< a multiplexer's source (host name)
        QString reference;      ///< a PLL's reference (host name)
        double frequency = 0.0; ///< a pin's, or a PLL's reference's, MHz
        double rate = 0.0;      ///< a PLL's line rate, Gbps
        /// Whether the owner settles how the resource runs: a transmitter its PLL, an instance that
        /// gives a frequency its pin. It answers before those that merely hold it.
        bool binding = true;
    };

    void set(const QString& owner, const Message& message);
    void remove(const QString& owner);
    /// The first use that is not `except`'s: binding ones first, then by owner's name.
    Use other(const QString& resource, const QString& except) const;
    /// By name; the first `limit` in the order of other(), 0: all.
    QStringList owners(const QString& resource, const QString& except, int limit) const;
    const QMap<QString, Message>& messages() const { return m_messages; }

private:
    using Uses = QMap<QPair<bool, QString>, Use>; // by "not binding" and owner

    QMap<QString, Message> m_messages;
    QHash<QString, Uses> m_uses; // by resource
};

} // namespace IPSERDESIP
