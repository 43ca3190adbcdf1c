#pragma once

#include <QStringList>
#include <QWidget>

class QLabel;
class QModelIndex;
class QLineEdit;
class QSortFilterProxyModel;
class QStackedLayout;
class QTableView;

namespace Window {

class InstanceModel;
class Workbench;

/// The table of the project's instances.
class InstancePane : public QWidget {
    Q_OBJECT

public:
    explicit InstancePane(Workbench* bench, QWidget* parent = nullptr);

    /// In the order of their names.
    QStringList selected() const;
    /// The one with the cursor; empty: none.
    QString current() const;
    void select(const QString& name);
    void focusTable();
    /// What need not be there at the first sight.
    void finish();
    /// Actions for the table's context menu.
    void setMenuActions(const QList<QAction*>& actions);

Q_SIGNALS:
    void selectionChanged();
    void openRequested(const QString& name);

private:
    void showEmptiness();
    void chooseKept();
    QModelIndex indexOf(const QString& name) const;

    Workbench* m_bench;
    InstanceModel* m_model;
    QSortFilterProxyModel* m_sorted;
    QLineEdit* m_filter;
    QTableView* m_table;
    QLabel* m_empty;
    QStringList m_kept; ///< chosen while the table is filled anew
    QString m_keptCurrent;
};

} // namespace Window
