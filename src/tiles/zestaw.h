// The tile sets of the three worlds: loading them and showing them.
#pragma once

#include "edytor.h"

#include <filesystem>

namespace dorva {

// Gives each world its tile set by its place in the listing of the exports. False where the listing was
// asked once too often (fewer than two names).
[[nodiscard]] bool ScanZestawy(Edytor&);

// Loads one world's strip and colour file; ends silently at the step that fails.
void LoadZestaw(Edytor&, const std::filesystem::path&, Swiat swiat);

// Shows everything that shows a tile in the tile set of a world. Changes no code.
void ShowZestaw(Edytor&, Swiat swiat);

// Selects a world and shows it if that is a change; false above 2.
[[nodiscard]] bool SelectObiektyNR(Edytor&, Swiat swiat);
void optObiektyNR_Click(Edytor&, int index);

void cmdReload_Click(Edytor&);

} // namespace dorva
