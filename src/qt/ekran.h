// Where the window stands on the screen.
#pragma once

class QWidget;

namespace dorva {

// Shows a window, its frame included, in the middle of the free area of its screen. Of one that is larger, the upper
// left corner with the title bar is visible.
void showCentred(QWidget& window);

} // namespace dorva
