#pragma once

#include <serdesip/types.h>

#include <QLatin1String>
#include <QString>
#include <QStringList>

namespace IPCUSTOMIZED {

/// A number as script lines carry it: general format, 15 significant digits, which is exact for
/// every value that the fields accept and free of binary noise.
QString scriptNumber(double value);

/// A text as a number: blanks around it are tolerated, the decimal point is a point in every
/// locale, and what is no (finite) number is 0.
double textNumber(const QString& text);

/// A configuration read by key. A missing key reads as its default; a value of another kind is
/// converted as variants are. Refers to the map, which must outlive the view.
class ConfigView {
public:
    explicit ConfigView(const IPSERDESIP::ConfigMap& config)
        : m_config(config) {}

    QString text(QLatin1String key, QLatin1String missing = QLatin1String()) const;
    bool flag(QLatin1String key) const { return m_config.value(key).toBool(); }
    /// The text read as a decimal integer; 0 when it is not one.
    int integer(QLatin1String key, int missing = 0) const;
    double number(QLatin1String key) const { return textNumber(text(key)); }
    /// A single text is a list of one; anything else that is no list is empty.
    QStringList list(QLatin1String key) const { return m_config.value(key).toStringList(); }
    bool is(QLatin1String key, QLatin1String value) const { return text(key) == value; }

    /// The instance's lanes, receive bonding and clock correction make it take the receive clock
    /// from the quad. A missing option "is not None".
    bool takesQuadClock() const;

private:
    const IPSERDESIP::ConfigMap& m_config;
};

/// The number in an external data ratio: "1:1", "1:2", "1:4" give 1, 2, 4; anything else 0.
int ratioNumber(const QString& ratio);

} // namespace IPCUSTOMIZED
