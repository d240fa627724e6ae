// Files that the user names: asking for the name, writing there.
#pragma once

#include "edytor.h"

#include <filesystem>
#include <optional>
#include <span>

namespace dorva {

// Asks for a file to save to and, if it exists, whether to replace it. Sets OstatniaSciezka.
std::optional<std::filesystem::path> askSavePath(Edytor&, const DialogPliku&);

// Writes a file that the user has named. A file of the working set is copied first.
[[nodiscard]] bool writeChosen(const Edytor&, const std::filesystem::path&, std::span<const Bajt> bytes);

} // namespace dorva
