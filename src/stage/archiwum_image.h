// Layout of an archive: the title lines and all stages in one file.
#pragma once

#include "podstawy.h"
#include "stage/etap_image.h"

#include <cstddef>
#include <span>

namespace dorva {

inline constexpr std::size_t AUTOR_GRY_SIZE_BYTES = LINIE_COUNT * LINIA_WIDTH;
inline constexpr std::size_t ARCHIWUM_SIZE_BYTES = AUTOR_GRY_SIZE_BYTES + ETAPY_COUNT * ETAP_SIZE_BYTES;
static_assert(ARCHIWUM_SIZE_BYTES == 29852);

// ARCHIWUM_SIZE_BYTES long unless a line or a stage has the wrong length.
inline Bajty assembleArchiwum(std::span<const Bajt> autorGry, std::span<const EtapImage> etapy) {
    Bajty archiwum(autorGry.begin(), autorGry.end());
    for (const EtapImage& image : etapy)
        archiwum.insert(archiwum.end(), image.begin(), image.end());
    return archiwum;
}

// The bytes of stage `number` (1..32) in an archive.
inline std::span<const Bajt> etapOf(std::span<const Bajt> archiwum, int number) {
    return archiwum.subspan(AUTOR_GRY_SIZE_BYTES + (number - 1) * ETAP_SIZE_BYTES, ETAP_SIZE_BYTES);
}

} // namespace dorva
