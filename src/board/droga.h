// The way of the pointer over the board.
#pragma once

#include <vector>

namespace dorva {

// A position in cells, from the top left corner of the board; a cell lies between two whole numbers.
struct Polozenie {
    double column = 0, row = 0;
};

struct Kratka {
    int column, row;
    bool operator==(const Kratka&) const = default;
};

Kratka kratkaAt(Polozenie);

// The cells that the straight way between two positions cuts, in order, without the one that it begins in. A corner
// that is merely touched isn't cut. Positions may lie beside the board.
std::vector<Kratka> cutKratki(Polozenie from, Polozenie to);

} // namespace dorva
