#pragma once

#include "model/config/deviceclass.h"
#include "model/config/lanes.h"
#include "model/config/lines/line.h"

#include <serdesip/types.h>

#include <QStringList>

namespace IPCUSTOMIZED {

/// Fills `%1` and `%2` of a form in one pass: a value that itself holds "%1" comes out as it is.
QString fill(QLatin1String form, const QString& first, const QString& second = QString());

/// The lines of one configuration, ready to be written for any of its lanes. What the lines say
/// is the same for every lane but the lane's own name, so it is computed once.
class LaneLines {
public:
    LaneLines() = default;
    LaneLines(const IPSERDESIP::ConfigMap& config, DeviceClass device,
              const LineWriter& writer = generationWriter);

    /// Appends one lane's lines.
    /// @param lanePrefix  "q0_ln0"
    /// @param laneKey     "Q0_LN0"
    /// @param quad        "q0"
    void append(QStringList& parameters, QStringList& defines, QStringList& script,
                const QString& lanePrefix, const QString& laneKey, const QString& quad) const;

private:
    struct Row {
        LineList list;
        QLatin1String form;
        LineSubject subject;
        QString value;
    };

    QList<Row> m_rows;
    QString m_txMasterKey;
};

} // namespace IPCUSTOMIZED
