// This process, as the system knows it.
#pragma once

#include <filesystem>

namespace dorva {

// The file that this process runs, with its full path and symbolic links resolved; empty where the system doesn't say.
std::filesystem::path ownExecutable();

} // namespace dorva
