#include "ipgen/window/mapdata.h"

#include <QCoreApplication>
#include <QHash>

#include <cmath>

namespace Window {

namespace {

using Kind = MapCell::Kind;
using Messages = QMap<QString, IPSERDESIP::Message>;

/// The context of this file's texts.
struct MapTexts {
    Q_DECLARE_TR_FUNCTIONS(MapTexts)
};

QString number(double value) {
    constexpr int digits = 10;
    return QString::number(value, 'g', digits);
}

/// The cells by resource while the messages are entered.
class Builder {
public:
    explicit Builder(const DEV::DeviceInfo& device) {
        for (const QString& pin : device.pins) {
            add(Kind::Pin, pin, quadOf(pin));
        }
        for (int quad = 0; quad < device.quads; ++quad) {
            addQuad(device, quad);
        }
    }

    void enter(const QString& owner, const IPSERDESIP::Message& message) {
        for (const QString& caption : message.lanes) {
            QString resource = caption; // "Q0 Lane1" is held as Q0_LANE1
            resource.replace(QLatin1Char(' '), QLatin1Char('_'));
            use(resource.toUpper(), owner, QString());
        }
        for (const QString& pll : message.plls) {
            const QString text =
                message.realTxRate > 0 && !message.receivesOnly()
                    ? MapTexts::tr("%1 Gbps from %2 at %3 MHz")
                          .arg(number(message.realTxRate), message.refClocks.value(0),
                               number(message.refFrequencies.value(0)))
                    : QString();
            use(pll, owner, text);
        }
        for (int i = 0; i < message.refClocks.size(); ++i) {
            use(message.refClocks.at(i), owner,
                MapTexts::tr("%1 MHz").arg(number(message.refFrequencies.value(i))));
        }
        for (auto it = message.muxes.constBegin(); it != message.muxes.constEnd(); ++it) {
            use(it.key(), owner, MapTexts::tr("set to %1").arg(it.value()));
            const int at = m_index.value(it.key(), -1);
            if (at >= 0) {
                m_cells[at].setting = it.value();
            }
        }
    }

    QVector<MapCell> finish() {
        for (MapCell& cell : m_cells) {
            judge(cell);
        }
        return m_cells;
    }

private:
    static int quadOf(const QString& name) {
        return name.startsWith(QLatin1Char('Q')) && name.size() > 1 && name.at(1).isDigit()
                   ? name.at(1).digitValue()
                   : -1;
    }

    void add(Kind kind, const QString& resource, int quad, int lane = -1) {
        MapCell cell;
        cell.kind = kind;
        cell.resource = resource;
        cell.quad = quad;
        cell.lane = lane;
        const int prefix = quad < 0 ? 0 : resource.indexOf(QLatin1Char('_')) + 1;
        cell.label = resource.mid(prefix);
        m_index.insert(resource, m_cells.size());
        m_cells.append(cell);
    }

    void addQuad(const DEV::DeviceInfo& device, int quad) {
        for (const DEV::Multiplexer& mux : device.multiplexers) {
            if (mux.quad == quad) {
                add(Kind::Multiplexer, mux.name, quad);
            }
        }
        for (const DEV::ClockLoop& pll : device.plls) {
            if (pll.shared) {
                add(Kind::SharedPll, QStringLiteral("Q%1_%2").arg(quad).arg(pll.kind), quad);
            }
        }
        for (int lane = 0; lane < device.lanesPerQuad; ++lane) {
            add(Kind::Lane, QStringLiteral("Q%1_LANE%2").arg(quad).arg(lane), quad, lane);
            m_cells.last().label = MapTexts::tr("Lane %1").arg(lane);
            for (const DEV::ClockLoop& pll : device.plls) {
                if (!pll.shared) {
                    add(Kind::LanePll,
                        QStringLiteral("Q%1_LN%2_%3").arg(quad).arg(lane).arg(pll.kind), quad,
                        lane);
                    m_cells.last().label = pll.kind;
                }
            }
        }
    }

    void use(const QString& resource, const QString& owner, const QString& text) {
        const int at = m_index.value(resource, -1);
        if (at < 0) {
            return;
        }
        MapCell& cell = m_cells[at];
        if (!cell.owners.contains(owner)) {
            cell.owners.append(owner);
            cell.uses.append(text);
        } else if (cell.uses.last() != text && !text.isEmpty()) {
            cell.uses.last() += QStringLiteral(", ") + text;
        }
    }

    /// Lanes and what belongs to them have one owner; the rest is shared by those who use it alike.
    static void judge(MapCell& cell) {
        if (cell.owners.size() < 2) {
            return;
        }
        if (cell.kind == Kind::Lane || cell.kind == Kind::LanePll) {
            cell.conflict = MapTexts::tr("only one instance can have it");
        } else if (QStringList(cell.uses).removeDuplicates() < cell.uses.size() - 1) {
            cell.conflict = MapTexts::tr("used in different ways");
            cell.setting.clear();
        }
    }

    QVector<MapCell> m_cells;
    QHash<QString, int> m_index;
};

} // namespace

QVector<MapCell> mapCells(const DEV::DeviceInfo& device, const Messages& messages) {
    Builder builder(device);
    for (auto it = messages.constBegin(); it != messages.constEnd(); ++it) {
        builder.enter(it.key(), it.value());
    }
    return builder.finish();
}

QMap<QString, OwnerMark> ownerMarks(const Messages& messages) {
    constexpr int letters = 26;
    QMap<QString, OwnerMark> marks;
    int number = 0;
    for (auto it = messages.constBegin(); it != messages.constEnd(); ++it) {
        OwnerMark mark;
        for (int rest = number; rest >= 0; rest = rest / letters - 1) {
            mark.letter.prepend(QChar(QLatin1Char('A').unicode() + rest % letters));
        }
        // The two counts have no common divisor: 56 instances before a pair comes again.
        mark.color = number % ownerColorCount;
        mark.pattern = number % ownerPatternCount;
        marks.insert(it.key(), mark);
        ++number;
    }
    return marks;
}

QString kindText(Kind kind) {
    switch (kind) {
    case Kind::Pin:
        return MapTexts::tr("reference pin");
    case Kind::Multiplexer:
        return MapTexts::tr("multiplexer");
    case Kind::SharedPll:
        return MapTexts::tr("PLL of the quad");
    case Kind::LanePll:
        return MapTexts::tr("PLL of the lane");
    case Kind::Lane:
        return MapTexts::tr("lane");
    }
    return {};
}

QString ownerText(const MapCell& cell) {
    if (cell.isFree()) {
        return MapTexts::tr("free");
    }
    QStringList lines;
    for (int i = 0; i < cell.owners.size(); ++i) {
        lines.append(cell.uses.at(i).isEmpty()
                         ? cell.owners.at(i)
                         : QStringLiteral("%1: %2").arg(cell.owners.at(i), cell.uses.at(i)));
    }
    return lines.join(QStringLiteral("; "));
}

} // namespace Window
