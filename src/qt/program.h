// How a program begins: its application, its folder.
#pragma once

#include <QApplication>

#include <filesystem>
#include <memory>

namespace dorva {

// Makes the application, with icon, look and language. If there is no display, prints one sentence with the program's
// name and ends the program. `argv[0]` is all of the command line that Qt gets to see.
std::unique_ptr<QApplication> makeApplication(char** argv, const char* name);

// The folder of the executable, symbolic links resolved.
std::filesystem::path ownFolder();

} // namespace dorva
