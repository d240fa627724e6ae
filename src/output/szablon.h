// The finished game: fixed positions over a template. Bytes in, bytes out.
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

// Where the record of stage `index` (0..31) stands in the game file: pitch 935, and 5 more bytes between
// the two blocks.
inline constexpr std::size_t BLOK_ETAPOW = 16; // stages
constexpr std::size_t rekordOffset(std::size_t index) {
    return 29724 + 935 * index + (index >= BLOK_ETAPOW ? 5 : 0);
}
static_assert(rekordOffset(15) + ETAP_SIZE_BYTES == 44680);
static_assert(rekordOffset(16) == 44689 && rekordOffset(31) + ETAP_SIZE_BYTES == 59645);

// The template and the finished game; both GRA_SIZE_BYTES long where all that is laid over fits.
using SzablonGry = Bajty;
using ObrazGry = Bajty;

// A title line as the game shows it, 22 bytes: start column, stored text, filled up with the end-of-line code 155.
using LiniaTytulu = Bajty;
LiniaTytulu BuildLiniaTytulu(const Tekst&);

// The game: the template with stage images laid over its first records, and the three title lines. An image or a line
// of another length than its place makes the game longer or shorter.
ObrazGry buildGra(const SzablonGry&, std::span<const EtapImage> etapy, const std::array<Tekst, LINIE_COUNT>& linie);

} // namespace dorva
