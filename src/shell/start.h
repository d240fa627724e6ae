// Start-up and shutdown.
#pragma once

#include "edytor.h"

#include <filesystem>
#include <string_view>

namespace dorva {

// Loads everything, in order, before the window is shown. `folder` is where the executable stands,
// `version` reads "1.0.2". The first failure from the tile sets on ends it silently.
void Form_Load(Edytor&, const std::filesystem::path& folder, std::string_view version);

// Writes the current stage and the title lines back. Never refuses to close.
void Form_QueryUnload(Edytor&);

// Closes the palette dialog and removes the oldest of many copies.
void Form_Unload(Edytor&);

} // namespace dorva
