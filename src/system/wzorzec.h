// Puts the files that a package delivers where the user works on them.
#pragma once

#include <filesystem>
#include <system_error>

namespace dorva {

// Copies from `folder`/wzorzec into `folder` what belongs to the user or may be changed: the title lines, the stages,
// the launcher, the palette and the tile sets. Each is copied only if nothing of that name exists, and a folder only as
// a whole. A copy gets its name last, so an interrupted run leaves no half of it. Returns the first error, but goes on
// after it.
[[nodiscard]] std::error_code layOut(const std::filesystem::path& folder);

} // namespace dorva
