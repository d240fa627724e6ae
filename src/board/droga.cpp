#include "board/droga.h"

#include <cmath>

namespace dorva {

Kratka kratkaAt(Polozenie p) {
    return {static_cast<int>(std::floor(p.column)), static_cast<int>(std::floor(p.row))};
}

std::vector<Kratka> cutKratki(Polozenie from, Polozenie to) {
    const bool right = to.column > from.column, down = to.row > from.row;
    const double width = std::abs(to.column - from.column), height = std::abs(to.row - from.row);
    const Kratka last = kratkaAt(to);
    std::vector<Kratka> cut;
    Kratka cell = kratkaAt(from);
    while (cell != last) {
        // The way leaves the cell by the nearer of two sides. Distances are multiplied by height and width instead of
        // being divided by width and height, so that for a way through a corner both are exactly equal.
        const double toColumn = std::abs(cell.column + right - from.column) * height;
        const double toRow = std::abs(cell.row + down - from.row) * width;
        const bool sameColumn = cell.column == last.column, sameRow = cell.row == last.row;
        if (!sameColumn && (sameRow || toColumn <= toRow))
            cell.column += right ? 1 : -1;
        if (!sameRow && (sameColumn || toRow <= toColumn))
            cell.row += down ? 1 : -1;
        cut.push_back(cell);
    }
    return cut;
}

} // namespace dorva
