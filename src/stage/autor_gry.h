// The title lines of the game and their file, DP1.DTA.
#pragma once

#include "edytor.h"
#include "stage/archiwum_image.h"

#include <span>

namespace dorva {

// The three lines as they are stored, 60 bytes unless one is too long. Changes nothing in the window.
Bajty packedAutorGry(const Okno&);

// The same, but first fills up boxes whose text is too short.
Bajty fillAutorGry(Edytor&);

// Sets the three boxes from the first 60 bytes of a title file or an archive.
void takeAutorGry(Edytor&, std::span<const Bajt> bytes);

// Reads DP1.DTA into the boxes. If it isn't 60 bytes long, they are blanked first and get the whole lines that it
// holds. Without the file they stay as they are.
void readAutorGry(Edytor&);

// Fills up the boxes and writes DP1.DTA, after making a copy of the old file.
[[nodiscard]] bool writeAutorGry(Edytor&);

} // namespace dorva
