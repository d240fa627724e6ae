// What the whole program does once: its look, its language, its folder.
#pragma once

#include <filesystem>

class QApplication;

namespace dorva {

// One look on every desktop, and Qt's own dialogs in Polish.
void setUpApplication(QApplication&);

// Puts what the user works on beside the program, at the first start of a package. If that fails, shows a message with
// the reason and returns false.
[[nodiscard]] bool prepareFolder(const std::filesystem::path& folder);

} // namespace dorva
