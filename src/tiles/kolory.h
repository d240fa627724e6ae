// The twelve colour registers of the stage and what fills them.
#pragma once

#include "edytor.h"

namespace dorva {

// The palette file, or the built-in table where there is none or it is too short.
void LoadPaleta(Edytor&);

// A world's colour file into its row of KoloryDomyslne; left alone where the file is missing or short.
void LoadKolory(Edytor&, Swiat swiat);

// Likewise, but without asking first whether the file is there. False where nothing was read.
[[nodiscard]] bool readOrCreateKolory(Edytor&, Swiat swiat);

// The one way to write a slot.
void ShowKolor(Edytor&, int slot, Bajt value);

// The world's default colours into slots first..last of the stage.
void showDomyslne(Edytor&, Swiat swiat, int first, int last);

void cmdResetKolory_Click(Edytor&);

} // namespace dorva
