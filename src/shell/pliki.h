// Whole-file input and output. Every file is read in one go and replaced as a whole or not at all.
#pragma once

#include "stage/tekst.h"

#include <cstdint>
#include <dirent.h>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/types.h>
#include <vector>

namespace dorva {

// The system calls that the file layer is made of; each answers as its POSIX namesake.
struct SystemPlikow {
    int (*open)(const char* path, int flags, ::mode_t mode);
    ::ssize_t (*read)(int file, void* bytes, std::size_t count);
    ::ssize_t (*write)(int file, const void* bytes, std::size_t count);
    int (*fsync)(int file);
    int (*close)(int file);
    int (*rename)(const char* from, const char* to);
    int (*link)(const char* from, const char* to);
    int (*unlink)(const char* path);
    int (*stat)(const char* path, struct ::stat* info);
    int (*lstat)(const char* path, struct ::stat* info);
    int (*fstat)(int file, struct ::stat* info);
    int (*fchmod)(int file, ::mode_t mode);
    ::ssize_t (*readlink)(const char* path, char* target, std::size_t count);
    ::DIR* (*opendir)(const char* path);
    ::dirent* (*readdir)(::DIR* folder);
    int (*closedir)(::DIR* folder);
};

// The operating system's own calls.
extern const SystemPlikow SYSTEM_PLIKOW;

// The first `count` bytes of a regular file. A missing file is created, empty; nothing where the file
// can't be opened, is no regular file, or holds fewer bytes.
std::optional<Bajty> readFirst(const SystemPlikow&, const std::filesystem::path&, std::size_t count);

// Like readFirst, but a missing file stays missing.
std::optional<Bajty> readOptional(const SystemPlikow&, const std::filesystem::path&, std::size_t count);

// The length of a regular file in bytes; nothing if there is none.
std::optional<std::uintmax_t> lengthOf(const SystemPlikow&, const std::filesystem::path&);

// Whether something stands at the path; also true where that can't be told.
bool fileExists(const SystemPlikow&, const std::filesystem::path&);

// Whether two paths lead to one file; also true where that can't be told.
bool isSameFile(const SystemPlikow&, const std::filesystem::path&, const std::filesystem::path&);

// Replaces the file by `bytes`: a temporary file in the same folder, flushed, renamed over the old one.
// Mode bits and symbolic links are kept. On failure the old file is untouched and nothing else is left.
[[nodiscard]] bool writeWhole(const SystemPlikow&, const std::filesystem::path&, std::span<const Bajt> bytes);

// Like writeWhole, but a file that is not empty is kept beside it first, as "<name>.kopia" (or .kopia2,
// .kopia3, ...). If that isn't possible, nothing is written.
[[nodiscard]] bool writeKeepingOld(const SystemPlikow&, const std::filesystem::path&, std::span<const Bajt> bytes);

// The names in a folder that end in `suffix` (exact case), sorted by byte value. None where the listing
// breaks off: a part of it would give the worlds the wrong tile sets.
std::vector<std::string> listNames(const SystemPlikow&, const std::filesystem::path& folder, std::string_view suffix);

// Removes what interrupted writes of these files may have left beside them.
void sweepTemporary(const SystemPlikow&, std::span<const std::filesystem::path> files);

} // namespace dorva
