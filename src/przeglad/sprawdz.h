// The check of a game for scripts.
#pragma once

#include "system/system_calls.h"

#include <filesystem>

namespace dorva {

// Prints a line for each warning, which begins with the stage's number. Returns the status of the program: 0 for none,
// 1 for some, 2 if there is nothing that can be read; the reason then goes to the error output.
int sprawdz(const SystemCalls&, const std::filesystem::path& source);

} // namespace dorva
