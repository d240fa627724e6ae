// The program's own mouse pointers.
#pragma once

#include <QCursor>

namespace dorva {

// For the tile picker: an arrow that brings a square along. Hot spot (16, 8).
QCursor kursorWyboru();

// For the cells of the palette: a hand. Hot spot (12, 1), the tip of its finger.
QCursor kursorPalety();

} // namespace dorva
