// Files that the user names: asking for the name, writing there.
#pragma once

#include "edytor.h"

#include <filesystem>
#include <optional>
#include <span>

namespace dorva {

// Asks for a file to save to and, if it exists, whether to replace it. Sets OstatniaSciezka.
std::optional<std::filesystem::path> askSavePath(Edytor&, const DialogPliku&);

// Writes a file that the user has named. Where it is one of the editor's own, only a stage image saved over the
// current stage's file counts as known from then on.
[[nodiscard]] bool writeChosen(Edytor&, const std::filesystem::path&, std::span<const Bajt> bytes);

} // namespace dorva
