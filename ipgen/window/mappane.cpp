#include "ipgen/window/mappane.h"

#include "ipgen/window/mapview.h"
#include "ipgen/window/named.h"
#include "ipgen/window/newprojectdialog.h"
#include "ipgen/window/theme.h"
#include "ipgen/window/workbench.h"

#include <core/idecore.h>
#include <serdesip/serdes.h>

#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QScrollArea>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace Window {

namespace {

QVector<MapCell> cellsOf(const Workbench& bench) {
    if (!bench.hasProject()) {
        return {};
    }
    const auto info = Core::IdeCore::deviceDataBase().info(bench.device());
    return info ? mapCells(*info, IPSERDESIP::serdes::instance()->messages()) : QVector<MapCell>();
}

QTableWidgetItem* readOnlyItem(const QString& text, const QString& owner) {
    auto* item = new QTableWidgetItem(text);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    item->setData(Qt::UserRole, owner);
    item->setToolTip(text);
    return item;
}

} // namespace

MapPane::MapPane(Workbench* bench, QWidget* parent)
    : QWidget(parent)
    , m_bench(bench)
    , m_view(new MapView(this))
    , m_scroll(new QScrollArea(this))
    , m_summary(new QLabel(this)) {
    named(m_scroll, "mapScroll", tr("Quad map"), QString());
    m_scroll->setWidget(m_view);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    named(m_summary, "mapSummary", tr("Free resources and conflicts"));
    m_summary->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(m_summary);
    layout->addWidget(m_scroll, 1);
    connect(m_view, &MapView::ownerClicked, this, &MapPane::openRequested);
    connect(bench, &Workbench::projectChanged, this, &MapPane::refresh);
    connect(bench, &Workbench::instancesChanged, this, &MapPane::refresh);
}

void MapPane::setHighlighted(const QString& owner) {
    m_view->setHighlighted(owner);
}

MapSheet MapPane::sheet() const {
    MapSheet sheet;
    const QString id = m_bench->device().id();
    sheet.title =
        tr("%1: transceivers of %2").arg(QFileInfo(m_bench->project().folder()).fileName(), id);
    sheet.about = deviceSummary(id);
    sheet.cells = cellsOf(*m_bench);
    sheet.marks = ownerMarks(IPSERDESIP::serdes::instance()->messages());
    return sheet;
}

void MapPane::showEvent(QShowEvent* event) {
    if (m_stale) {
        refresh();
    }
    QWidget::showEvent(event);
}

void MapPane::refresh() {
    m_stale = !isVisible();
    if (m_stale) {
        return;
    }
    const QMap<QString, IPSERDESIP::Message> messages = IPSERDESIP::serdes::instance()->messages();
    const QVector<MapCell> cells = cellsOf(*m_bench);
    m_view->setMap(cells, ownerMarks(messages));
    const auto count = [&](MapCell::Kind kind) {
        return std::count_if(cells.begin(), cells.end(), [kind](const MapCell& cell) {
            return cell.kind == kind && cell.isFree();
        });
    };
    QStringList conflicts;
    for (const MapCell& cell : cells) {
        if (!cell.conflict.isEmpty()) {
            conflicts.append(
                tr("%1 (%2)").arg(cell.resource, cell.owners.join(QStringLiteral(", "))));
        }
    }
    QString text = tr("Free: %1 lanes, %2 quad PLLs, %3 multiplexers, %4 reference pins.")
                       .arg(count(MapCell::Kind::Lane))
                       .arg(count(MapCell::Kind::SharedPll))
                       .arg(count(MapCell::Kind::Multiplexer))
                       .arg(count(MapCell::Kind::Pin));
    if (!conflicts.isEmpty()) {
        text += QStringLiteral(" <b><font color='%1'>%2</font></b>")
                    .arg(badColor(palette()).name(), tr("⚠ Conflicts: %1")
                                                         .arg(conflicts.join(QStringLiteral("; ")))
                                                         .toHtmlEscaped());
    }
    m_summary->setText(text);
}

ResourceTable::ResourceTable(Workbench* bench, QWidget* parent)
    : QWidget(parent)
    , m_bench(bench)
    , m_table(new QTableWidget(0, 5, this)) {
    named(m_table, "resourceTable", tr("Resources of the device"),
          tr("Enter opens the instance that holds the resource"));
    m_table->setHorizontalHeaderLabels(
        {tr("Resource"), tr("Kind"), tr("Mark"), tr("Held by"), tr("Conflict")});
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setHighlightSections(false);
    const int letter = fontMetrics().averageCharWidth();
    int column = 0;
    for (const int letters : {16, 18, 8, 60}) {
        m_table->setColumnWidth(column++, letter * letters);
    }
    setFocusProxy(m_table);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(m_table);
    connect(m_table, &QTableWidget::itemActivated, this, [this](const QTableWidgetItem* item) {
        const QString owner = item->data(Qt::UserRole).toString();
        if (!owner.isEmpty()) {
            Q_EMIT openRequested(owner);
        }
    });
    connect(bench, &Workbench::projectChanged, this, &ResourceTable::refresh);
    connect(bench, &Workbench::instancesChanged, this, &ResourceTable::refresh);
}

void ResourceTable::showEvent(QShowEvent* event) {
    if (m_stale) {
        refresh();
    }
    QWidget::showEvent(event);
}

void ResourceTable::refresh() {
    m_stale = !isVisible();
    if (m_stale) {
        return;
    }
    const QVector<MapCell> cells = cellsOf(*m_bench);
    const auto marks = ownerMarks(IPSERDESIP::serdes::instance()->messages());
    m_table->setRowCount(cells.size());
    for (int i = 0; i < cells.size(); ++i) {
        const MapCell& cell = cells.at(i);
        const QString owner = cell.owners.value(0);
        QStringList letters;
        for (const QString& one : cell.owners) {
            letters.append(marks.value(one).letter);
        }
        m_table->setItem(i, 0, readOnlyItem(cell.resource, owner));
        m_table->setItem(i, 1, readOnlyItem(kindText(cell.kind), owner));
        m_table->setItem(i, 2, readOnlyItem(letters.join(QStringLiteral(", ")), owner));
        m_table->setItem(i, 3, readOnlyItem(ownerText(cell), owner));
        m_table->setItem(i, 4, readOnlyItem(cell.conflict, owner));
    }
    if (m_table->currentRow() < 0 && !cells.isEmpty()) {
        m_table->setCurrentCell(0, 0);
    }
}

} // namespace Window
