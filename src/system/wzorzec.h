// The delivered set, and how what a user works on comes to its place.
#pragma once

#include <filesystem>
#include <system_error>

namespace dorva {

// Copies from `folder`/wzorzec into `folder` what belongs to the user or may be changed: the title lines, the stages,
// the launcher, the palette and the tile sets, each only where nothing of its name stands, and a folder only as a
// whole. A copy gets its name last, so a run that breaks off leaves no half. The first error; the rest is laid all the
// same.
[[nodiscard]] std::error_code layOut(const std::filesystem::path& folder);

} // namespace dorva
