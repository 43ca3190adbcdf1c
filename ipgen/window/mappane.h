#pragma once

#include "ipgen/window/mapsheet.h"

#include <QWidget>

class QLabel;
class QScrollArea;
class QTableWidget;

namespace Window {

class MapView;
class Workbench;

/// The quad map with its legend.
class MapPane : public QWidget {
    Q_OBJECT

public:
    explicit MapPane(Workbench* bench, QWidget* parent = nullptr);
    void setHighlighted(const QString& owner);
    MapView* view() const { return m_view; }
    /// What there is to print.
    MapSheet sheet() const;

Q_SIGNALS:
    void openRequested(const QString& name);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void refresh();

    Workbench* m_bench;
    MapView* m_view;
    QScrollArea* m_scroll;
    QLabel* m_summary;
    bool m_stale = true;
};

/// The same as a table: a row a resource.
class ResourceTable : public QWidget {
    Q_OBJECT

public:
    explicit ResourceTable(Workbench* bench, QWidget* parent = nullptr);

Q_SIGNALS:
    void openRequested(const QString& name);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void refresh();

    Workbench* m_bench;
    QTableWidget* m_table;
    bool m_stale = true;
};

} // namespace Window
