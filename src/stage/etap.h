// Packs the stage from the window into its stored form, and unpacks it.
#pragma once

#include "edytor.h"

namespace dorva {

// The stored form of the stage in the window. Changes nothing there.
EtapImage packed(const Okno&);

// Packs the stage into the editor's image. First it cleans up the board, redraws it and counts anew, and fills up a
// text box that is still being edited and too short.
void PackEtap(Edytor&);

// Unpacks the editor's image (931 bytes). False at the first field with a bad value; what came before it stays applied.
[[nodiscard]] bool UnpackEtap(Edytor&);

// The wall that the edge rule puts in: in STD or INV form, as the picker shows.
Znak KodKrawedzi(const Okno&);

// Sets the last-stage box; false for a value above 2.
[[nodiscard]] bool SetOstatni(Edytor&, int value);

// A click on it. A half-checked box becomes unchecked.
void chkOstatni_Click(Edytor&);

} // namespace dorva
