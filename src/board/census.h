// The census of the board and the panel that shows it.
#pragma once

#include "edytor.h"

namespace dorva {

// Recounts the whole board, colours the figures, guards the unique tiles of the picker. May move the
// buffer to earth.
void RefreshInfo(Edytor&);

// Sets the goal's scroll bar and runs its change if the value really changes; false outside 1..99.
[[nodiscard]] bool SetMonet(Edytor&, int value);
void hscMonet_Change(Edytor&);

// A click on a mask figure (2 or 3) sets the goal to the masks on the board.
void lblInfo_Click(Edytor&, int index);

} // namespace dorva
