// The mouse pointers of the program's own.
#pragma once

#include <QCursor>

namespace dorva {

// Over the tile picker: an arrow with a small cross and a dotted square. Hot spot (16, 8).
QCursor kursorWyboru();

// Over the palette's cells: a pointing hand. Hot spot (12, 1).
QCursor kursorPalety();

} // namespace dorva
