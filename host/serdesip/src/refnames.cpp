#include "serdesip/refnames.h"

#include <QRegularExpression>

namespace IPSERDESIP {

namespace {

bool isOption(const QString& text)
{
    static const QRegularExpression form(
        QStringLiteral("\\A(?:Q[01] (?:REFCLK[0-3]|REFIN[0-3]?)|MCLK)\\z"));
    return form.match(text).hasMatch();
}

} // namespace

QString refsrcOptTransforSerdesName(const QString& option)
{
    return isOption(option) ? QString(option).replace(QLatin1Char(' '), QLatin1Char('_')) : QString();
}

QString refsrcSerdesNameTransforOpt(const QString& name)
{
    const QString option = QString(name).replace(QLatin1Char('_'), QLatin1Char(' '));
    return isOption(option) && !name.contains(QLatin1Char(' ')) ? option : QString();
}

QString FromRefOptionToRef(const QString& option)
{
    return refsrcOptTransforSerdesName(option);
}

} // namespace IPSERDESIP
