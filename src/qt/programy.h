// Starts other programs. Each system has a file for it: programy_posix.cpp, programy_windows.cpp.
#pragma once

#include "system/haki.h"

#include <filesystem>

namespace dorva {

// Starts a program without arguments, in the current directory, and doesn't wait for it. A .BAT file may be a script of
// the system's shell. Nothing happens if the program can't be started.
void startProgram(const std::filesystem::path&, OknoProgramu);

} // namespace dorva
