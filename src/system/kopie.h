// Copies of what gets replaced. Those of the file ETAPY/DETAP.7 are in the folder ETAPY/KOPIE/DETAP.7, under names like
// "DETAP.7.0123 2026-11-25 18.32": a number, which alone decides what is newer, and when the content was made.
#pragma once

#include "podstawy.h"
#include "system/system_calls.h"

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace dorva {

// Makes a copy of `bytes`, which a file holds or would hold, unless its newest copy holds the same. The name of the
// copy ends in `ending`. False if it can't be made.
[[nodiscard]] bool keepCopy(const SystemCalls&, const std::filesystem::path& file, std::span<const Bajt> bytes,
                            Time made, std::string_view ending = "");

// Makes a copy of a file, unless it is empty, and then replaces its content by `bytes`. A file that holds these bytes
// already is left as it is. False if it can't be copied or written: then it is untouched. The copy is made as one of
// `keptAs`, another name of the same file.
[[nodiscard]] bool writeKeeping(const SystemCalls&, const std::filesystem::path& file, std::span<const Bajt> bytes,
                                const std::filesystem::path& keptAs);
[[nodiscard]] bool writeKeeping(const SystemCalls&, const std::filesystem::path& file, std::span<const Bajt> bytes);

// A copy on the disk, and when its content was made, as its name says: "2026-11-25 18.32", local time.
struct Kopia {
    std::filesystem::path path;
    std::string made;
};

// The copies of a file, the newest first.
std::vector<Kopia> listCopies(const SystemCalls&, const std::filesystem::path& file, std::string_view ending = "");

// Removes all copies of a file but the newest 200. Files with names of another form are left alone.
void trimCopies(const SystemCalls&, const std::filesystem::path& file, std::string_view ending = "");

} // namespace dorva
