// The mouse tools: painting, pipette, eraser, picker.
#pragma once

#include "edytor.h"

namespace dorva {

// Mouse buttons as the events report them; several held at once are added up.
inline constexpr int LEWY = 1, PRAWY = 2, SRODKOWY = 4;

void imgPG_MouseDown(Edytor&, int index, int button);
void imgPG_MouseMove(Edytor&, int index, int button);
void imgZnak_Click(Edytor&, int index);

// Shows the STD (0) or the INV (1) tiles in the picker.
void SelectNN(Edytor&, int index);
void optNN_Click(Edytor&, int index);

// Fills the picker with tiles of a world; `half` is 0 for STD, 1 for INV.
void showWybor(Okno&, Swiat swiat, int half);

} // namespace dorva
