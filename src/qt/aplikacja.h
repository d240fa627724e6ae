// What the whole program does once: its look, its language, its folder.
#pragma once

#include <filesystem>

class QApplication;

namespace dorva {

// One look on every desktop, and Qt's own dialogs in Polish.
void setUpApplication(QApplication&);

// A package's first start lays what the user works on beside the program. False if that failed; the user was told why.
[[nodiscard]] bool prepareFolder(const std::filesystem::path& folder);

} // namespace dorva
