// Whole-file input and output. Every file is read in one go, and replaced as a whole or not at all.
#pragma once

#include "podstawy.h"
#include "system/system_calls.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace dorva {

// The first `count` bytes of a regular file. A missing file is created, empty. Nothing if the file can't be opened, is
// no regular file, or holds fewer bytes.
std::optional<Bajty> readOrCreate(const SystemCalls&, const std::filesystem::path&, std::size_t count);

// Likewise, but a missing file stays missing.
std::optional<Bajty> readFirst(const SystemCalls&, const std::filesystem::path&, std::size_t count);

// Likewise, but all bytes of a file that holds fewer.
std::optional<Bajty> readUpTo(const SystemCalls&, const std::filesystem::path&, std::size_t count);

// The whole of a regular file; nothing if it can't be read or is longer than 64 MiB.
std::optional<Bajty> readWhole(const SystemCalls&, const std::filesystem::path&);

// The length of a regular file in bytes; nothing if there is none.
std::optional<std::uintmax_t> lengthOf(const SystemCalls&, const std::filesystem::path&);

// Whether something exists at the path; also true if the system can't say.
bool fileExists(const SystemCalls&, const std::filesystem::path&);

// Whether two paths lead to one file; also false if the system can't say.
bool isSameFile(const SystemCalls&, const std::filesystem::path&, const std::filesystem::path&);

// The file that a path stands for once its symbolic links are followed, also where that file is missing.
// Nothing if the system can't say: a rename might then replace a link by a file.
std::optional<std::filesystem::path> behindLinks(const SystemCalls&, std::filesystem::path);

// Whether a regular file exists at the path and may be written.
bool isWritable(const SystemCalls&, const std::filesystem::path&);

// Makes a file, flushed to the disk. Taken if something exists there already; a failure leaves nothing behind.
[[nodiscard]] Result writeNew(const SystemCalls&, const std::filesystem::path&, std::span<const Bajt> bytes,
                              std::optional<std::filesystem::perms> mode = std::nullopt);

// Replaces the file by `bytes`: a temporary file in the same folder, flushed, renamed over the old one. Mode bits
// and symbolic links are kept. On failure the old file is untouched and nothing else is left. `mayReplace` is called
// right before the rename, with the file behind all links; if it returns false, the write fails.
[[nodiscard]] bool writeWhole(const SystemCalls&, const std::filesystem::path&, std::span<const Bajt> bytes,
                              const std::function<bool(const std::filesystem::path& file)>& mayReplace = {});

// The names in a folder that end in `suffix` (exact case), sorted by byte value. None if the listing fails halfway:
// with a part of it the worlds would get the wrong tile sets.
std::vector<std::filesystem::path> listNames(const SystemCalls&, const std::filesystem::path& folder,
                                             std::string_view suffix);

// Removes what interrupted writes left in a folder an hour ago or earlier.
void sweepTemporary(const SystemCalls&, const std::filesystem::path& folder);

} // namespace dorva
