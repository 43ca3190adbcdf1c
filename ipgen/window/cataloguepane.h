#pragma once

#include "ipgen/core/catalogue.h"

#include <dev/devicearg.h>

#include <QWidget>

class QLabel;
class QLineEdit;
class QModelIndex;
class QPushButton;
class QSortFilterProxyModel;
class QStandardItemModel;
class QTreeView;

namespace Window {

/// The IPs on offer by category, with a search. IPs that do not suit the device, and plug-ins that
/// could not be loaded, stand there with the reason.
class CataloguePane : public QWidget {
    Q_OBJECT

public:
    explicit CataloguePane(QWidget* parent = nullptr);

    /// @param device  null: no project is open, nothing can be made
    void setCatalogue(const Ipgen::Catalogue& catalogue, const DEV::DeviceArg& device);
    /// The chosen IP's id; empty: none, or one that cannot be made.
    QString chosen() const;
    void focusSearch();
    /// What need not be there at the first sight.
    void finish();

Q_SIGNALS:
    void createRequested(const QString& ip);

private:
    void showChosen();
    void onSearch(const QString& text);

    QLineEdit* m_search;
    QTreeView* m_tree;
    QLabel* m_about;
    QPushButton* m_create;
    QStandardItemModel* m_model;
    QSortFilterProxyModel* m_filter;
};

} // namespace Window
