// What the system knows about this process.
#pragma once

#include <filesystem>

namespace dorva {

// The executable file of this process: a full path without symbolic links, empty if the system doesn't say.
std::filesystem::path ownExecutable();

} // namespace dorva
