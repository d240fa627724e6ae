// The stage between its two forms: the editor and the image buffer.
#pragma once

#include "edytor.h"

namespace dorva {

// The image of the stage in the window as a pack would make it; the window stays as it is.
EtapImage packed(const Okno&);

// Editor to image buffer. Cleans up the board first (edge rule, heroine), redraws and recounts. A text
// box that is still being edited and shorter than its width is brought to it.
void PackEtap(Edytor&);

// Image buffer (931 bytes) to editor. False if a field was refused; what came before it stays applied.
[[nodiscard]] bool UnpackEtap(Edytor&);

// The wall that the edge rule writes: 5, or 133 under INV.
Znak KodKrawedzi(const Okno&);

// Sets the last-stage box; false for a value above 2.
[[nodiscard]] bool SetOstatni(Edytor&, int value);

// A click on it: what is not unchecked, half checked included, becomes unchecked.
void chkOstatni_Click(Edytor&);

} // namespace dorva
