// The fonts that come with the program, so that texts fit their boxes on every system.
#pragma once

#include <QFont>

namespace dorva {

// Registers the fonts. Has to run before any of them is used.
void loadFonts();

// The window's font, and its bold form.
QFont fontOkna();
QFont fontFigury();

// The fixed-pitch font of the text boxes: eight pixels a character at most, so that every box shows its
// full width.
QFont fontStaly();

} // namespace dorva
