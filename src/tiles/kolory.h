// The colours of a stage, and where they come from.
#pragma once

#include "edytor.h"

namespace dorva {

// Loads the palette file; the built-in table if the file is missing or too short.
void LoadPaleta(Edytor&);

// Loads a world's colour file into its row of KoloryDomyslne; a missing or short file changes nothing.
void LoadKolory(Edytor&, Swiat swiat);

// Likewise, but creates a missing file, empty. False if nothing was loaded.
[[nodiscard]] bool readOrCreateKolory(Edytor&, Swiat swiat);

// Sets a slot: its value and, by the palette, the colour of its swatch.
void ShowKolor(Edytor&, int slot, Bajt value);

// Gives slots first..last of the stage the world's default colours.
void showDomyslne(Edytor&, Swiat swiat, int first, int last);

void cmdResetKolory_Click(Edytor&);

} // namespace dorva
