// Events of the text boxes.
#pragma once

#include "edytor.h"

namespace dorva {

// The text boxes of the window.
enum class Pole { Nazwa, Autor, AutorGry0, AutorGry1, AutorGry2 };

PoleTekstu& poleOf(Okno&, Pole);

// The user has changed the text. What is longer than the box is cut off; an emptied box is refilled with spaces, all
// selected.
void txt_Change(Edytor&, Pole, const Tekst&);
void txt_GotFocus(Edytor&, Pole);

// Validation and loss of focus alike: the text is brought to its form.
void txt_LostFocus(Edytor&, Pole);

} // namespace dorva
