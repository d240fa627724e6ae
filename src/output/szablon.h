// Makes the game from a template. Bytes in, bytes out.
#pragma once

#include "stage/etap_image.h"
#include "stage/tekst.h"

#include <array>
#include <cstddef>
#include <span>

namespace dorva {

inline constexpr std::size_t GRA_SIZE_BYTES = 118433;
inline constexpr std::size_t LINIA_TYTULU_SIZE_BYTES = 22;
inline constexpr std::size_t LINIE_TYTULU_OFFSET = 116180;

// Where the record of stage `index` (0..31) is in the game file: every 935 bytes, and 5 more between the two blocks.
inline constexpr std::size_t BLOK_ETAPOW = 16; // stages
constexpr std::size_t rekordOffset(std::size_t index) {
    return 29724 + 935 * index + (index >= BLOK_ETAPOW ? 5 : 0);
}
static_assert(rekordOffset(15) + ETAP_SIZE_BYTES == 44680);
static_assert(rekordOffset(16) == 44689 && rekordOffset(31) + ETAP_SIZE_BYTES == 59645);

// Both are GRA_SIZE_BYTES long; a game is not if a stage or a line has the wrong length.
using SzablonGry = Bajty;
using ObrazGry = Bajty;

// A title line as the game file holds it, 22 bytes: start column, stored text, and end-of-line codes (155) to the end.
using LiniaTytulu = Bajty;
LiniaTytulu BuildLiniaTytulu(const Tekst&);

// The template with its first stage records and its title lines replaced. A stage or a line of another length than its
// place makes the game longer or shorter.
ObrazGry buildGra(const SzablonGry&, std::span<const EtapImage> etapy, const std::array<Tekst, LINIE_COUNT>& linie);

} // namespace dorva
