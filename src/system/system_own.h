// The calls that differ between systems. Each system has a file for them: system_posix.cpp, system_windows.cpp.
#pragma once

#include "podstawy.h"
#include "system/file_types.h"

#include <cstddef>
#include <filesystem>
#include <span>

namespace dorva::own {

// Returns a file descriptor. On failure this and all that follow return -1, with the reason in errno.
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
