// The finished game: fixed positions over a template. Bytes in, bytes out.
#pragma once

#include "stage/obraz_etapu.h"
#include "stage/tekst.h"

#include <array>
#include <span>

namespace dorva {

inline constexpr std::size_t GRA_SIZE_BYTES = 118433;
inline constexpr std::size_t LINIA_TYTULU_SIZE_BYTES = 22;
inline constexpr std::size_t LINIE_TYTULU_OFFSET = 116180;

// Where the record of stage `index` (0..31) stands in the game file: pitch 935, and 5 more bytes between
// the first and the second block of 16.
constexpr std::size_t rekordOffset(std::size_t index) {
    return 29724 + 935 * index + (index >= 16 ? 5 : 0);
}
static_assert(rekordOffset(15) + ETAP_SIZE_BYTES == 44680);
static_assert(rekordOffset(16) == 44689 && rekordOffset(31) + ETAP_SIZE_BYTES == 59645);

// A title line of the game: start column, stored text, filled up with the end-of-line code 155.
Bajty BuildLiniaTytulu(const Tekst&);

// Lays `bytes` over `obraz` at `offset`. Bytes that do not fit exactly make the image longer, as an
// insertion in place of `length` bytes would.
void splice(Bajty& obraz, std::size_t offset, std::size_t length, std::span<const Bajt> bytes);

// Lays the three title lines over a game image.
void spliceTytul(Bajty& obraz, const std::array<Tekst, 3>& linie);

} // namespace dorva
