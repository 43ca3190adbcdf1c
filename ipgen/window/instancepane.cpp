#include "ipgen/window/instancepane.h"

#include "ipgen/window/instancemodel.h"
#include "ipgen/window/named.h"
#include "ipgen/window/workbench.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>

namespace Window {

InstancePane::InstancePane(Workbench* bench, QWidget* parent)
    : QWidget(parent)
    , m_bench(bench)
    , m_model(new InstanceModel(bench, this))
    , m_sorted(new QSortFilterProxyModel(this))
    , m_filter(new QLineEdit(this))
    , m_table(new QTableView(this))
    , m_empty(new QLabel(this)) {
    m_sorted->setSourceModel(m_model);
    m_sorted->setFilterKeyColumn(-1);
    m_sorted->setFilterCaseSensitivity(Qt::CaseInsensitive);
    named(m_filter, "instanceFilter", tr("Filter the instances"),
          tr("Show only instances with this text in a column"));
    m_filter->setPlaceholderText(tr("Filter"));
    m_filter->setMaximumWidth(fontMetrics().averageCharWidth() * 30);
    named(m_table, "instanceTable", tr("Instances of the project"));
    m_table->setModel(m_sorted);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(InstanceModel::Name, Qt::AscendingOrder);
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->setTabKeyNavigation(false);
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setHighlightSections(false);
    const int letter = fontMetrics().averageCharWidth();
    int column = 0;
    for (const int letters : {16, 18, 18, 26, 16, 20, 12}) {
        m_table->setColumnWidth(column++, letter * letters);
    }
    m_empty->setText(tr("This project has no instances yet.\nChoose an IP in the catalogue and "
                        "press “Create instance” (Ctrl+I)."));
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setWordWrap(true);

    auto* title = strong(new QLabel(tr("Instances"), this));
    auto* head = new QHBoxLayout;
    head->addWidget(title);
    head->addStretch(1);
    head->addWidget(m_filter);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addLayout(head);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_empty, 1);

    connect(m_filter, &QLineEdit::textChanged, m_sorted,
            &QSortFilterProxyModel::setFilterFixedString);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &InstancePane::selectionChanged);
    connect(m_table, &QTableView::activated, this, [this](const QModelIndex& index) {
        Q_EMIT openRequested(index.data(InstanceModel::nameRole).toString());
    });
    // Instances come and go by other hands too: what was chosen stays chosen.
    connect(m_model, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        m_kept = selected();
        m_keptCurrent = current();
    });
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] {
        showEmptiness();
        chooseKept();
        Q_EMIT selectionChanged();
    });
    showEmptiness();
}

void InstancePane::showEmptiness() {
    const bool any = m_model->rowCount() > 0;
    m_table->setVisible(any);
    m_empty->setVisible(!any);
    m_filter->setEnabled(any);
}

void InstancePane::chooseKept() {
    QItemSelection rows;
    for (const QString& name : qAsConst(m_kept)) {
        const QModelIndex index = indexOf(name);
        rows.select(index, index);
        if (name == m_keptCurrent) {
            m_table->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        }
    }
    m_table->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect |
                                                QItemSelectionModel::Rows);
}

QModelIndex InstancePane::indexOf(const QString& name) const {
    if (m_sorted->rowCount() == 0) {
        return {};
    }
    return m_sorted
        ->match(m_sorted->index(0, 0), InstanceModel::nameRole, name, 1,
                Qt::MatchExactly | Qt::MatchWrap)
        .value(0);
}

QStringList InstancePane::selected() const {
    QStringList names;
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    for (const QModelIndex& row : rows) {
        names.append(row.data(InstanceModel::nameRole).toString());
    }
    names.sort();
    return names;
}

QString InstancePane::current() const {
    const QStringList names = selected();
    const QString name = m_table->currentIndex().data(InstanceModel::nameRole).toString();
    return names.contains(name) ? name : names.value(0);
}

void InstancePane::select(const QString& name) {
    const QModelIndex found = indexOf(name);
    if (found.isValid()) {
        m_table->selectionModel()->setCurrentIndex(found, QItemSelectionModel::ClearAndSelect |
                                                              QItemSelectionModel::Rows);
        m_table->scrollTo(found);
    }
}

void InstancePane::finish() {
    m_filter->setClearButtonEnabled(true);
}

void InstancePane::focusTable() {
    m_table->setFocus(Qt::ShortcutFocusReason);
}

void InstancePane::setMenuActions(const QList<QAction*>& actions) {
    m_table->addActions(actions);
}

} // namespace Window
