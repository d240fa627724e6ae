// Layout of a stage's stored form, byte by byte.
#pragma once

#include "board/znak.h"
#include "stage/tekst.h"

#include <cstddef>

namespace dorva {

// Offsets and lengths of the fields of an `EtapImage`, in bytes.
namespace uklad {
inline constexpr std::size_t KOLORY = 16;
inline constexpr std::size_t PLANSZA = 32;
inline constexpr std::size_t CEL_MASEK = PLANSZA + PLANSZA_CELLS;
inline constexpr std::size_t OSTATNI = CEL_MASEK + 1;
inline constexpr std::size_t SWIAT = OSTATNI + 1;
inline constexpr std::size_t NAZWA = SWIAT + 1;
inline constexpr std::size_t AUTOR = NAZWA + NAZWA_WIDTH;
} // namespace uklad

inline constexpr std::size_t ETAP_SIZE_BYTES = uklad::AUTOR + AUTOR_WIDTH;
static_assert(ETAP_SIZE_BYTES == 931);

// A stage in its stored form. ETAP_SIZE_BYTES long unless a text is too long or too short for its field.
using EtapImage = Bajty;

} // namespace dorva
