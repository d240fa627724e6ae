// The palette dialog, where the user chooses the colour of a slot.
#pragma once

#include "edytor.h"

namespace dorva {

// A click on a swatch: opens the dialog for its slot, or says that the colours are locked.
void PickKolor(Edytor&, int slot);
void OpenPaleta(Edytor&);
void picPaleta_Click(Edytor&, int index);

// The dialog was closed, in whatever way.
void closePaleta(Edytor&);

} // namespace dorva
