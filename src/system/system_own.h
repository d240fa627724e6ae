// The calls that every system has in its own way. One file a system: system_posix.cpp, system_windows.cpp.
#pragma once

#include "system/system_calls.h"

#include <cstddef>
#include <filesystem>
#include <span>

namespace dorva::own {

// A file descriptor. Like all that follow: -1 on failure, with the reason in errno.
Handle open(const std::filesystem::path&, OpenMode);
std::ptrdiff_t read(Handle, std::span<Bajt>);
std::ptrdiff_t write(Handle, std::span<const Bajt>);
int flush(Handle);
int close(Handle);
int stat(const std::filesystem::path&, FileInfo&);
int rename(const std::filesystem::path& from, const std::filesystem::path& to);
int remove(const std::filesystem::path&);
int flushFolder(const std::filesystem::path&);

} // namespace dorva::own
