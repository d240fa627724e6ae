// The palette dialog: gives a slot one of the 128 even colour values.
#pragma once

#include "edytor.h"

namespace dorva {

// A click on a swatch: selects the slot and opens the dialog, unless colours are blocked.
void PickKolor(Edytor&, int slot);
void OpenPaleta(Edytor&);
void picPaleta_Click(Edytor&, int index);

// Closes the dialog, by whatever means.
void closePaleta(Edytor&);

} // namespace dorva
