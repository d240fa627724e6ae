// The fonts that travel with the program, so that texts fit their boxes on every system.
#pragma once

#include <QFont>

namespace dorva {

// Makes the fonts known; before any of them is used.
void loadFonts();

// The window's font and its bold kin, by pixel size.
QFont fontOkna();
QFont fontFigury();

// The fixed-pitch font of the text boxes: eight pixels a character at most, so that every box shows its
// full width.
QFont fontStaly();

} // namespace dorva
