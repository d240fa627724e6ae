// What the end of a session means on this system. Each has a file for it: sesja_posix.cpp, sesja_windows.cpp.
#pragma once

class QFileDialog;
class QWidget;

namespace dorva {

// Gets rid of a file dialog without storing its settings.
void endFileDialog(QFileDialog*);

// From now on a logout, a shutdown or Ctrl+C stores the work as closing the window does.
void storeAtSessionEnd(QWidget& window);

} // namespace dorva
