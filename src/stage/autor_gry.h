// The title lines of the game and their file, DP1.DTA.
#pragma once

#include "edytor.h"

#include <cstddef>
#include <span>

namespace dorva {

inline constexpr std::size_t AUTOR_GRY_SIZE_BYTES = LINIE_COUNT * LINIA_WIDTH;

// The three lines as they are stored, 60 bytes unless one is too long; the window stays as it is.
Bajty packedAutorGry(const Okno&);

// The same, once boxes shorter than their width are brought to it.
Bajty fillAutorGry(Edytor&);

// Sets the three boxes from the first 60 bytes of a title file or an archive.
void takeAutorGry(Edytor&, std::span<const Bajt> bytes);

// Reads DP1.DTA into the boxes. A file of another length than 60 first blanks them; whole lines that it holds are then
// read; it may end early, or be none that can be read.
void readAutorGry(Edytor&);

// Writes DP1.DTA, what fillAutorGry makes of the boxes, once a copy of the old one is made.
[[nodiscard]] bool writeAutorGry(Edytor&);

} // namespace dorva
