// The way of the pointer over the board.
#pragma once

#include <vector>

namespace dorva {

// A position in cells, from the top left corner of the board: column 2 reaches from 2 to 3.
struct Polozenie {
    double column = 0, row = 0;
};

struct Kratka {
    int column, row;
    bool operator==(const Kratka&) const = default;
};

Kratka kratkaAt(Polozenie);

// The cells on the straight way between two positions, in order, without the one where it begins. A cell of which it
// touches just a corner isn't among them. Positions may lie outside the board.
std::vector<Kratka> cutKratki(Polozenie from, Polozenie to);

} // namespace dorva
