#include "gridrow.h"

#include <QGridLayout>
#include <QWidget>

namespace IPCUSTOMIZED {

TakenRow takeOutRow(QGridLayout& grid, QWidget& member) {
    TakenRow taken;
    const int index = grid.indexOf(&member);
    if (index < 0) {
        return taken;
    }
    int column = 0;
    int rowSpan = 0;
    int columnSpan = 0;
    grid.getItemPosition(index, &taken.row, &column, &rowSpan, &columnSpan);
    for (int i = grid.count() - 1; i >= 0; --i) {
        int row = 0;
        grid.getItemPosition(i, &row, &column, &rowSpan, &columnSpan);
        if (row != taken.row) {
            continue;
        }
        QLayoutItem* item = grid.takeAt(i);
        if (QWidget* widget = item->widget()) {
            widget->hide();
            taken.cells.prepend({widget, column, columnSpan});
        }
        delete item;
    }
    return taken;
}

void putBackRow(QGridLayout& grid, const TakenRow& taken) {
    for (const TakenRow::Cell& cell : taken.cells) {
        grid.addWidget(cell.widget, taken.row, cell.column, 1, cell.columnSpan);
        cell.widget->show();
    }
}

} // namespace IPCUSTOMIZED
