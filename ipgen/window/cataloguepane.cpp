#include "ipgen/window/cataloguepane.h"

#include "ipgen/window/named.h"
#include "ipgen/window/symbols.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QStyle>
#include <QTreeView>
#include <QVBoxLayout>

#include <exception>

namespace Window {

namespace {

enum Role {
    IdRole = Qt::UserRole + 1,
    AboutRole,  ///< what is said below the tree
    ReasonRole, ///< why it cannot be made; empty: it can
    SearchRole,
};

/// The node of a category path, made where it is missing.
QStandardItem* categoryNode(QStandardItem* root, const QStringList& path) {
    QStandardItem* node = root;
    for (const QString& part : path) {
        QStandardItem* child = nullptr;
        for (int i = 0; i < node->rowCount() && child == nullptr; ++i) {
            if (node->child(i)->text() == part && node->child(i)->data(IdRole).isNull()) {
                child = node->child(i);
            }
        }
        if (child == nullptr) {
            child = new QStandardItem(part);
            child->setEditable(false);
            child->setSelectable(false);
            node->appendRow(child);
        }
        node = child;
    }
    return node;
}

QString whyUnsupported(const Ipgen::CatalogueEntry& entry, const DEV::DeviceArg& device) {
    if (device.isNull()) {
        return {};
    }
    try {
        if (entry.protocol->isSupported(device)) {
            return {};
        }
    } catch (const std::exception& fault) {
        return CataloguePane::tr("The IP failed when asked about the device: %1")
            .arg(QString::fromLocal8Bit(fault.what()));
    }
    if (entry.unsupported.contains(device.id()) || entry.unsupported.contains(device.device())) {
        return CataloguePane::tr("Its description excludes the device %1.").arg(device.id());
    }
    return CataloguePane::tr("Not for %1. It supports: %2.")
        .arg(device.id(), entry.supported.join(QStringLiteral(", ")));
}

} // namespace

CataloguePane::CataloguePane(QWidget* parent)
    : QWidget(parent)
    , m_search(new QLineEdit(this))
    , m_tree(new QTreeView(this))
    , m_about(new QLabel(this))
    , m_create(new QPushButton(tr("Create &instance …"), this))
    , m_model(new QStandardItemModel(this))
    , m_filter(new QSortFilterProxyModel(this)) {
    named(m_search, "catalogueSearch", tr("Search the catalogue"),
          tr("Type part of an IP's name, category or summary (Ctrl+F)"));
    m_search->setPlaceholderText(tr("Search IPs"));
    named(m_tree, "catalogueTree", tr("IP catalogue"),
          tr("The IPs on offer; Enter creates an instance"));
    m_filter->setSourceModel(m_model);
    m_filter->setRecursiveFilteringEnabled(true);
    m_filter->setFilterRole(SearchRole);
    m_filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_tree->setModel(m_filter);
    m_tree->setHeaderHidden(true);
    m_tree->setUniformRowHeights(true);
    named(m_about, "catalogueAbout", tr("About the chosen IP"));
    m_about->setWordWrap(true);
    m_about->setTextFormat(Qt::PlainText);
    m_about->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_about->setMinimumHeight(fontMetrics().lineSpacing() * 5);
    named(m_create, "catalogueCreate", tr("Create an instance of the chosen IP"),
          tr("Open the IP's dialog for a new instance (Ctrl+I)"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(m_search);
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_about);
    layout->addWidget(m_create);
    connect(m_search, &QLineEdit::textChanged, this, &CataloguePane::onSearch);
    const auto create = [this] {
        if (!chosen().isEmpty()) {
            Q_EMIT createRequested(chosen());
        }
    };
    connect(m_search, &QLineEdit::returnPressed, this, create);
    connect(m_tree, &QTreeView::activated, this, create);
    connect(m_create, &QPushButton::clicked, this, create);
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &CataloguePane::showChosen);
    showChosen();
}

void CataloguePane::setCatalogue(const Ipgen::Catalogue& catalogue, const DEV::DeviceArg& device) {
    const QString before = m_tree->currentIndex().data(IdRole).toString();
    m_model->clear();
    for (const Ipgen::CatalogueEntry& entry : catalogue.entries()) {
        const QString reason =
            device.isNull() ? tr("Open or make a project first.") : whyUnsupported(entry, device);
        auto* item = new QStandardItem(entry.name);
        item->setEditable(false);
        item->setData(entry.id, IdRole);
        item->setData(reason, ReasonRole);
        item->setData(tr("%1 %2 (%3)\n%4").arg(entry.name, entry.version, entry.id, entry.summary),
                      AboutRole);
        item->setData(QStringList({entry.name, entry.id, entry.summary,
                                   entry.category.join(QLatin1Char(' '))})
                          .join(QLatin1Char(' ')),
                      SearchRole);
        item->setToolTip(reason.isEmpty() ? entry.summary : reason);
        if (!device.isNull() && !reason.isEmpty()) {
            item->setText(tr("%1 (not for this device)").arg(entry.name));
            item->setForeground(palette().color(QPalette::Disabled, QPalette::Text));
        }
        categoryNode(m_model->invisibleRootItem(), entry.category)->appendRow(item);
    }
    for (const Ipgen::PluginProblem& problem : catalogue.problems()) {
        auto* item = new QStandardItem(QFileInfo(problem.path).fileName());
        item->setEditable(false);
        item->setIcon(symbolIcon(Symbol::Warning));
        item->setData(QString(), IdRole);
        item->setData(problem.reason, ReasonRole);
        item->setData(problem.path, AboutRole);
        item->setData(problem.path, SearchRole);
        item->setToolTip(problem.reason);
        categoryNode(m_model->invisibleRootItem(), {tr("Could not be loaded")})->appendRow(item);
    }
    m_tree->expandAll();
    QModelIndexList found;
    if (!before.isEmpty() && m_filter->rowCount() > 0) {
        found = m_filter->match(m_filter->index(0, 0), IdRole, before, 1,
                                Qt::MatchExactly | Qt::MatchRecursive);
    }
    if (!found.isEmpty()) {
        m_tree->setCurrentIndex(found.first());
    }
    onSearch(m_search->text());
    showChosen();
}

QString CataloguePane::chosen() const {
    const QModelIndex index = m_tree->currentIndex();
    return index.data(ReasonRole).toString().isEmpty() ? index.data(IdRole).toString() : QString();
}

void CataloguePane::finish() {
    m_search->setClearButtonEnabled(true);
}

void CataloguePane::focusSearch() {
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

void CataloguePane::onSearch(const QString& text) {
    m_filter->setFilterFixedString(text);
    m_tree->expandAll();
    // The first IP found is the chosen one, so that Enter in the search creates it.
    if (m_tree->currentIndex().data(IdRole).toString().isEmpty()) {
        QModelIndex index = m_filter->index(0, 0);
        while (index.isValid() && index.data(IdRole).isNull()) {
            index = m_filter->index(0, 0, index);
        }
        m_tree->setCurrentIndex(index);
    }
    showChosen();
}

void CataloguePane::showChosen() {
    const QModelIndex index = m_tree->currentIndex();
    const QString reason = index.data(ReasonRole).toString();
    QString about = index.data(AboutRole).toString();
    if (!reason.isEmpty()) {
        about += QLatin1Char('\n') + reason;
    }
    m_about->setText(about.isEmpty() ? tr("Choose an IP to read about it.") : about);
    m_create->setEnabled(!chosen().isEmpty());
}

} // namespace Window
