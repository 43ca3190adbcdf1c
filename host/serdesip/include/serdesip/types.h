#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

namespace IPSERDESIP {

/// The configuration of one IP instance: key to text, boolean, integer, real or list of texts.
using ConfigMap = QMap<QString, QVariant>;

} // namespace IPSERDESIP
