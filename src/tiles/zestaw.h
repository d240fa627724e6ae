// Loads tile sets and shows them.
#pragma once

#include "edytor.h"

#include <filesystem>

namespace dorva {

// Loads the exported tile sets, for world 0 the first by name and so on. False if there are fewer than two.
[[nodiscard]] bool ScanZestawy(Edytor&);

// Loads a world's strip and colour file; ends without a message at the step that fails.
void LoadZestaw(Edytor&, const std::filesystem::path&, Swiat swiat);

// Shows board, picker, buffer and icons with the pictures of a world. Changes no code.
void ShowZestaw(Edytor&, Swiat swiat);

// Selects a world and shows its pictures, unless it is selected already; false if there is no such world.
[[nodiscard]] bool SelectObiektyNR(Edytor&, Swiat swiat);
void optObiektyNR_Click(Edytor&, int index);

void cmdReload_Click(Edytor&);

} // namespace dorva
