// Whole-file input and output. Every file is read in one go and replaced as a whole or not at all.
#pragma once

#include "podstawy.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace dorva {

// The table of system calls that every function here is given, and the operating system's own.
struct SystemPlikow;
extern const SystemPlikow SYSTEM_PLIKOW;

// The first `count` bytes of a regular file. A missing file is created, empty; nothing where the file
// can't be opened, is no regular file, or holds fewer bytes.
std::optional<Bajty> readOrCreate(const SystemPlikow&, const std::filesystem::path&, std::size_t count);

// Likewise, but a missing file stays missing.
std::optional<Bajty> readFirst(const SystemPlikow&, const std::filesystem::path&, std::size_t count);

// Likewise, but a file that holds fewer bytes gives all of them.
std::optional<Bajty> readUpTo(const SystemPlikow&, const std::filesystem::path&, std::size_t count);

// The whole of a regular file; nothing where it can't be read or is longer than 64 MiB.
std::optional<Bajty> readWhole(const SystemPlikow&, const std::filesystem::path&);

// The length of a regular file in bytes; nothing if there is none.
std::optional<std::uintmax_t> lengthOf(const SystemPlikow&, const std::filesystem::path&);

// Whether something stands at the path; also true where that can't be told.
bool fileExists(const SystemPlikow&, const std::filesystem::path&);

// Whether two paths lead to one file; also true where that can't be told.
bool isSameFile(const SystemPlikow&, const std::filesystem::path&, const std::filesystem::path&);

// Replaces the file by `bytes`: a temporary file in the same folder, flushed, renamed over the old one. Mode bits
// and symbolic links are kept, owner and group where that may be. On failure the old file is untouched and nothing else
// is left. Only where the folder refuses new names, or a new file the old one's mode bits, and the file may be written
// all the same is it written in place, and put back if that fails.
[[nodiscard]] bool writeWhole(const SystemPlikow&, const std::filesystem::path&, std::span<const Bajt> bytes);

// Like writeWhole, for a file that holds what the caller knows: `known`, or nothing. Whatever else stands there, or
// can't be read, is kept beside it, as "<name>.kopia" (or .kopia2, .kopia3, ...), an empty file excepted. If that isn't
// possible, nothing is written. The two contents exchange their names, so what another program writes up to that moment
// is kept, too; where a system or file system can't do that, what it writes after the look is not.
[[nodiscard]] bool writeKeepingUnknown(const SystemPlikow&, const std::filesystem::path&, std::span<const Bajt> bytes,
                                       const std::optional<Bajty>& known);

// The names in a folder that end in `suffix` (exact case), sorted by byte value. None where the listing
// breaks off: a part of it would give the worlds the wrong tile sets.
std::vector<std::filesystem::path> listNames(const SystemPlikow&, const std::filesystem::path& folder,
                                             std::string_view suffix);

// Removes what interrupted writes of these files may have left beside them an hour ago or earlier.
void sweepTemporary(const SystemPlikow&, std::span<const std::filesystem::path> files);

} // namespace dorva
