// The working set as it was delivered, and how it comes to its place.
#pragma once

#include <filesystem>
#include <vector>

namespace dorva {

struct SystemCalls;

// Lays out the files of `wzorzec` in `folder`, which may hold an older version that someone has worked with. A file
// that is missing or empty there, or still exactly as an earlier run laid it, is put in; one that was changed since is
// its owner's and stays, and so does a symbolic link where the system tells one. What was laid is on record in
// `folder`. The names of what couldn't be read, put in or recorded; a later run tries again.
[[nodiscard]] std::vector<std::filesystem::path> layOut(const SystemCalls&, const std::filesystem::path& wzorzec,
                                                        const std::filesystem::path& folder);

} // namespace dorva
