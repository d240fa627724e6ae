// Programs that stand beside the editor. One file a system starts them.
#pragma once

#include "system/haki.h"

#include <filesystem>

namespace dorva {

// Starts a program without arguments, in the current directory, and returns at once. A .BAT is the command processor's.
// Nothing happens where it can't be started.
void startProgram(const std::filesystem::path&, OknoProgramu);

} // namespace dorva
