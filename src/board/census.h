// The census of the board and the panel that shows it.
#pragma once

#include "edytor.h"

namespace dorva {

// Counts the board anew and shows the figures. A unique tile that is on the board is disabled in the picker, and earth
// takes its place in the buffer.
void RefreshInfo(Edytor&);

// Sets the mask goal; false, and nothing changed, outside 1..99.
[[nodiscard]] bool SetMonet(Edytor&, int value);
void hscMonet_Change(Edytor&);

// A click on either figure of the masks makes their number on the board the goal, within 1..99.
void lblInfo_Click(Edytor&, int index);

} // namespace dorva
