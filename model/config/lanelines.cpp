#include "model/config/lanelines.h"

#include "model/config/keys.h"
#include "model/config/lines/catalogue.h"

namespace IPCUSTOMIZED {

QString fill(QLatin1String form, const QString& first, const QString& second) {
    QString line;
    line.reserve(form.size() + first.size() + second.size());
    int done = 0;
    for (int at = 0; at + 1 < form.size(); ++at) {
        if (form.at(at) != QLatin1Char('%')) {
            continue;
        }
        const QLatin1Char which = form.at(at + 1);
        if (which != QLatin1Char('1') && which != QLatin1Char('2')) {
            continue;
        }
        line += form.mid(done, at - done);
        line += which == QLatin1Char('1') ? first : second;
        ++at;
        done = at + 1;
    }
    line += form.mid(done);
    return line;
}

LaneLines::LaneLines(const IPSERDESIP::ConfigMap& config, DeviceClass device,
                     const LineWriter& writer) {
    const LineSource source{ConfigView(config), device, writer};
    if (const Lane* master = laneByCaption(source.config.text(Key::TxMasterChannel))) {
        m_txMasterKey = master->key;
    }
    for (const Line& line : lineCatalogue()) {
        if (writer.scriptOnly && line.list != LineList::Script) {
            continue;
        }
        if (const auto value = line.value(source)) {
            m_rows.append({line.list, line.form, line.subject, *value});
        }
    }
}

void LaneLines::append(QStringList& parameters, QStringList& defines, QStringList& script,
                       const QString& lanePrefix, const QString& laneKey,
                       const QString& quad) const {
    const auto subject = [&](LineSubject which) -> const QString& {
        switch (which) {
        case LineSubject::LaneKey:
            return laneKey;
        case LineSubject::QuadPrefix:
            return quad;
        case LineSubject::TxMasterKey:
            return m_txMasterKey;
        case LineSubject::LanePrefix:
            break;
        }
        return lanePrefix;
    };
    const auto listFor = [&](LineList which) -> QStringList& {
        switch (which) {
        case LineList::Parameter:
            return parameters;
        case LineList::Define:
            return defines;
        case LineList::Script:
            break;
        }
        return script;
    };
    for (const Row& row : m_rows) {
        listFor(row.list).append(fill(row.form, subject(row.subject), row.value));
    }
}

} // namespace IPCUSTOMIZED
