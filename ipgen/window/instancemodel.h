#pragma once

#include "ipgen/window/instancestate.h"

#include <QAbstractTableModel>

namespace Window {

class Workbench;

/// The open project's instances as a table.
class InstanceModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Name, Status, Ip, Lanes, Pll, Rates, Folder, ColumnCount };
    /// The instance's name, from any column.
    static constexpr int nameRole = Qt::UserRole + 1;

    explicit InstanceModel(Workbench* bench, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void onInstancesChanged();
    void onStateChanged(const QString& name);

    Workbench* m_bench;
    QVector<InstanceRow> m_rows;
};

} // namespace Window
