// The exported tile sets: finding them, and loading their strips of pictures.
#pragma once

#include "system/haki.h"
#include "system/system_calls.h"
#include "tiles/magazyn.h"

#include <filesystem>
#include <vector>

namespace dorva {

// The paths of the tile sets below the base folder, sorted: for world 0 the first and so on.
std::vector<std::filesystem::path> listZestawy(const SystemCalls&, const std::filesystem::path& base);

// Loads the strip of a tile set into the store; false, and nothing changed, if there is none.
[[nodiscard]] bool loadPasek(Magazyn&, const Haki&, const std::filesystem::path& zestaw, Swiat swiat);

} // namespace dorva
