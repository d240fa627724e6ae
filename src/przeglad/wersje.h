// What the editor has kept of earlier versions.
#pragma once

#include "stage/etap_image.h"
#include "system/kopie.h"
#include "system/system_calls.h"

#include <filesystem>
#include <string>
#include <vector>

namespace dorva {

// A stage as it once was, and when: "2026-11-25 18.32".
struct Wersja {
    EtapImage image;
    std::string made;
};

// The earlier versions of stage `number` (1..32), the newest first: the copies of its file and its part of the kept
// games. One that is like `present` or like a newer one is left out.
std::vector<Wersja> listWersje(const SystemCalls&, const std::filesystem::path& base, int number,
                               const EtapImage& present);

// The kept games, the newest first.
std::vector<Kopia> listGry(const SystemCalls&, const std::filesystem::path& base);

} // namespace dorva
