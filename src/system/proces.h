// This process and others, as the system knows them.
#pragma once

#include <cstdint>
#include <filesystem>

namespace dorva {

std::uint32_t ownNumber();

// Also true where that can't be told.
bool isRunning(std::uint32_t process);

// The file that this process runs, with its full path and symbolic links resolved; empty where the system doesn't say.
std::filesystem::path ownExecutable();

} // namespace dorva
