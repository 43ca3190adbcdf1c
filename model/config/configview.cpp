#include "model/config/configview.h"

#include "model/config/keys.h"
#include "model/config/values.h"

#include <cmath>

namespace IPCUSTOMIZED {

QString scriptNumber(double value) {
    return QString::number(value, 'g', 15);
}

double textNumber(const QString& text) {
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok && std::isfinite(value) ? value : 0.0;
}

QString ConfigView::text(QLatin1String key, QLatin1String missing) const {
    const auto it = m_config.constFind(key);
    return it == m_config.constEnd() ? QString(missing) : it->toString();
}

int ConfigView::integer(QLatin1String key, int missing) const {
    const auto it = m_config.constFind(key);
    return it == m_config.constEnd() ? missing : it->toString().toInt();
}

bool ConfigView::takesQuadClock() const {
    return list(Key::RecordLanes).size() >= 2 && !is(Key::RxChannelBonding, Value::None) &&
           !is(Key::ClockCorrection, Value::None);
}

int ratioNumber(const QString& ratio) {
    for (int number : {1, 2, 4}) {
        if (ratio == QStringLiteral("1:%1").arg(number)) {
            return number;
        }
    }
    return 0;
}

} // namespace IPCUSTOMIZED
