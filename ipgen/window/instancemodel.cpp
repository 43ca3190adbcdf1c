#include "ipgen/window/instancemodel.h"

#include "ipgen/window/symbols.h"
#include "ipgen/window/theme.h"
#include "ipgen/window/workbench.h"

#include <QApplication>
#include <QPalette>

#include <algorithm>

namespace Window {

namespace {

QString rateText(const InstanceRow& row) {
    const auto number = [](double rate) { return QString::number(rate, 'g', 6); };
    if (row.txRate > 0 && row.rxRate > 0) {
        return row.txRate == row.rxRate ? InstanceModel::tr("%1 G").arg(number(row.txRate))
                                        : InstanceModel::tr("TX %1 G, RX %2 G")
                                              .arg(number(row.txRate), number(row.rxRate));
    }
    if (row.txRate > 0) {
        return InstanceModel::tr("TX %1 G").arg(number(row.txRate));
    }
    return row.rxRate > 0 ? InstanceModel::tr("RX %1 G").arg(number(row.rxRate)) : QString();
}

QVariant stateIcon(State state) {
    switch (state) {
    case State::Generated:
        return symbolIcon(Symbol::Good);
    case State::OutOfDate:
        return symbolIcon(Symbol::OutOfDate);
    case State::CheckFailed:
        return symbolIcon(Symbol::Error);
    case State::NoIp:
        return symbolIcon(Symbol::Warning);
    case State::Copy:
        return symbolIcon(Symbol::Pending);
    case State::Unknown:
    case State::Configured:
        break;
    }
    return {};
}

QVariant stateColor(State state) {
    const QPalette palette = QApplication::palette();
    switch (state) {
    case State::Generated:
        return goodColor(palette);
    case State::OutOfDate:
    case State::Copy:
        return warningColor(palette);
    case State::CheckFailed:
    case State::NoIp:
        return badColor(palette);
    case State::Unknown:
    case State::Configured:
        break;
    }
    return {};
}

} // namespace

InstanceModel::InstanceModel(Workbench* bench, QObject* parent)
    : QAbstractTableModel(parent)
    , m_bench(bench) {
    connect(bench, &Workbench::projectChanged, this, &InstanceModel::onInstancesChanged);
    connect(bench, &Workbench::instancesChanged, this, &InstanceModel::onInstancesChanged);
    connect(bench, &Workbench::stateChanged, this, &InstanceModel::onStateChanged);
}

int InstanceModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows.size();
}

int InstanceModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant InstanceModel::data(const QModelIndex& index, int role) const {
    const InstanceRow& row = m_rows.at(index.row());
    const int column = index.column();
    if (role == nameRole) {
        return row.name;
    }
    if (role == Qt::ToolTipRole) { // a narrow column may cut its text off
        const QString text = data(index, Qt::DisplayRole).toString();
        return row.detail.isEmpty() ? text : QStringLiteral("%1\n%2").arg(text, row.detail);
    }
    if (role == Qt::AccessibleDescriptionRole && column == Status) {
        return row.detail;
    }
    if (column == Status && role == Qt::DecorationRole) {
        return stateIcon(row.state);
    }
    if (column == Status && role == Qt::ForegroundRole) {
        return stateColor(row.state);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (column) {
    case Name:
        return row.name;
    case Ip:
        return row.ipName;
    case Lanes:
        return row.lanes.join(QStringLiteral(", "));
    case Pll:
        return row.plls.join(QStringLiteral(", "));
    case Rates:
        return rateText(row);
    case Folder:
        return row.file;
    case Status:
        return stateText(row.state);
    default:
        return {};
    }
}

QVariant InstanceModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case Name:
        return tr("Instance");
    case Ip:
        return tr("IP");
    case Lanes:
        return tr("Lanes");
    case Pll:
        return tr("PLL");
    case Rates:
        return tr("Line rate");
    case Folder:
        return tr("File");
    case Status:
        return tr("State");
    default:
        return {};
    }
}

void InstanceModel::onInstancesChanged() {
    const QVector<InstanceRow>& now = m_bench->rows();
    const bool sameNames =
        now.size() == m_rows.size() &&
        std::equal(now.begin(), now.end(), m_rows.begin(),
                   [](const InstanceRow& a, const InstanceRow& b) { return a.name == b.name; });
    if (sameNames) { // selection and scrolling stay
        m_rows = now;
        if (!m_rows.isEmpty()) {
            Q_EMIT dataChanged(index(0, 0), index(m_rows.size() - 1, ColumnCount - 1));
        }
        return;
    }
    beginResetModel();
    m_rows = now;
    endResetModel();
}

void InstanceModel::onStateChanged(const QString& name) {
    const InstanceRow* now = m_bench->row(name);
    for (int i = 0; now != nullptr && i < m_rows.size(); ++i) {
        if (m_rows.at(i).name == name) {
            m_rows[i] = *now;
            Q_EMIT dataChanged(index(i, 0), index(i, ColumnCount - 1));
            return;
        }
    }
}

} // namespace Window
