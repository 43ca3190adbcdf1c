#pragma once

#include <QList>

class QGridLayout;
class QWidget;

namespace IPCUSTOMIZED {

/// A row that was taken out of a grid: where it was, and its widgets by column.
struct TakenRow {
    struct Cell {
        QWidget* widget;
        int column;
        int columnSpan;
    };
    int row = -1;
    QList<Cell> cells;
};

/// Takes the whole row that holds `member` (its caption, field, unit and spacer) out of the grid.
/// The widgets stay alive under their parent, hidden; the grid closes over the gap. A member that
/// is not in the grid gives a row -1 and changes nothing.
TakenRow takeOutRow(QGridLayout& grid, QWidget& member);

/// Puts a row back where it was and shows it; the columns line up without its spacer.
void putBackRow(QGridLayout& grid, const TakenRow& taken);

} // namespace IPCUSTOMIZED
