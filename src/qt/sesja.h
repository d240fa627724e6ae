// How this system starts the program and asks it to end. One file a system.
#pragma once

#include <filesystem>

class QFileDialog;
class QWidget;

namespace dorva {

// Makes the program's folder ready, where the way in which it was installed didn't.
void prepareFolder(const std::filesystem::path& folder);

// Ends a file dialog so that nothing of it outlives the run.
void endFileDialog(QFileDialog*);

// From now on a logout, a shutdown or Ctrl+C stores the work as closing the window does.
void storeAtSessionEnd(QWidget& window);

} // namespace dorva
