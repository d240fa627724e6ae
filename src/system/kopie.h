// Copies of what gets replaced. Those of the file ETAPY/DETAP.7 stand in the folder ETAPY/KOPIE/DETAP.7, under names as
// "DETAP.7.0123 2026-11-25 18.32": a number, which alone tells newer from older, and when the content was made.
#pragma once

#include "podstawy.h"
#include "system/system_calls.h"

#include <filesystem>
#include <span>
#include <string_view>

namespace dorva {

// Makes a copy of what stands, or would stand, in a file. None where the newest copy holds the same bytes already.
// `ending` closes the name of the copy. False where it can't be made.
[[nodiscard]] bool keepCopy(const SystemCalls&, const std::filesystem::path& file, std::span<const Bajt> bytes,
                            Time made, std::string_view ending = "");

// Replaces a file by `bytes` once a copy of its old content is made; an empty file needs none. A file that holds these
// bytes already is left as it is. False where it can't be written, or can't be kept: then it is untouched. The copy is
// made as one of `keptAs`, another name of the same file.
[[nodiscard]] bool writeKeeping(const SystemCalls&, const std::filesystem::path& file, std::span<const Bajt> bytes,
                                const std::filesystem::path& keptAs);
[[nodiscard]] bool writeKeeping(const SystemCalls&, const std::filesystem::path& file, std::span<const Bajt> bytes);

// Removes all copies of a file but the newest 200. Names of another form are left alone.
void trimCopies(const SystemCalls&, const std::filesystem::path& file, std::string_view ending = "");

} // namespace dorva
