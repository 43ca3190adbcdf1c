#include "dialog/rules/linerate.h"

#include "model/config/configview.h"
#include "model/config/values.h"

namespace IPCUSTOMIZED::rules {

namespace {

QString inRange(const QString& typed, double least) {
    const double rate = textNumber(typed);
    if (typed.isEmpty() || rate < least || rate > 12.5) {
        return QStringLiteral("1.25");
    }
    return typed.startsWith(QLatin1Char('.')) ? QLatin1Char('0') + typed : typed;
}

} // namespace

QString correctedTxRate(const QString& typed) {
    return inRange(typed, 0.025);
}

QString correctedRxRate(const QString& typed) {
    return inRange(typed, 1.0);
}

double ratioFactor(const QString& ratio) {
    return textNumber(QString(ratio).remove(QLatin1Char('x')));
}

RatioBox ratioBox(double rate, double realRate, const QString& remembered) {
    const QStringList factors{QStringLiteral("5x"), QStringLiteral("10x"), QStringLiteral("20x"),
                              QStringLiteral("40x")};
    RatioBox box;
    if (realRate != 0.0) {
        box.items = QStringList(Value::NotConnected) + factors;
        box.enabled = realRate < 1.0;
        box.selected = box.enabled ? factors.first() : QString(Value::NotConnected);
        box.follows = RatioBox::Follows::SetRate;
    } else if (rate >= 1.0) {
        box.items = QStringList(Value::NotConnected);
        box.selected = Value::NotConnected;
    } else {
        box.items = factors;
        box.enabled = true;
        box.selected = factors.contains(remembered) ? remembered : factors.first();
        box.follows = RatioBox::Follows::CheckRate;
    }
    return box;
}

bool reachesOneGigabit(double rate, double realRate, const QString& ratio) {
    return rate >= 1.0 || realRate != 0.0 || ratioFactor(ratio) * rate >= 1.0;
}

QString rateAtRatio(double realRate, const QString& ratio) {
    const double factor = ratio == Value::NotConnected ? 1.0 : ratioFactor(ratio);
    return realRate == 0.0 || factor == 0.0 ? QString() : QString::number(realRate / factor);
}

} // namespace IPCUSTOMIZED::rules
