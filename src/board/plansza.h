// The mouse tools: painting, pipette, eraser, picker.
#pragma once

#include "edytor.h"

namespace dorva {

// Mouse buttons as the events tell them; several held at once are added up.
inline constexpr int LEWY = 1, PRAWY = 2, SRODKOWY = 4;

void imgPG_MouseDown(Edytor&, int index, int button);
void imgPG_MouseMove(Edytor&, int index, int button);
void imgZnak_Click(Edytor&, int index);

// Selects STD (0) or INV (1) and runs its click if that is a change.
void SelectNN(Edytor&, int index);
void optNN_Click(Edytor&, int index);

// Fills the picker with a world's STD (0) or INV (1) tiles.
void showWybor(Okno&, Swiat swiat, int half);

} // namespace dorva
