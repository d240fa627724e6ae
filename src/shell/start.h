// Start-up and shutdown.
#pragma once

#include "edytor.h"

#include <filesystem>
#include <string_view>

namespace dorva {

// Loads everything before the window is shown. `folder` is where the executable is, `version` reads "1.0.2". From the
// tile sets on, the first failure ends it without a message.
void Form_Load(Edytor&, const std::filesystem::path& folder, std::string_view version);

// Stores the current stage and the title lines. A failure doesn't keep the window open.
void Form_QueryUnload(Edytor&);

// Closes the palette dialog and removes surplus copies.
void Form_Unload(Edytor&);

} // namespace dorva
