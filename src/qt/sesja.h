// How this system asks the program to end. One file a system.
#pragma once

class QFileDialog;
class QWidget;

namespace dorva {

// Ends a file dialog so that nothing of it outlives the run.
void endFileDialog(QFileDialog*);

// From now on a logout, a shutdown or Ctrl+C stores the work as closing the window does.
void storeAtSessionEnd(QWidget& window);

} // namespace dorva
