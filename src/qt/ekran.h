// Where the window stands on the screen.
#pragma once

class QWidget;

namespace dorva {

// Shows a window in the middle of the free area of its screen, its frame included. Where it is larger than that, its
// upper left corner, with the title bar, is what can be seen.
void showCentred(QWidget& window);

} // namespace dorva
