// The text boxes: their widths, and how their texts are brought into form.
#pragma once

#include "edytor.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace dorva {

enum class Forma { Centred, Left };

struct Pole {
    int numer;             // in `Okno::pola`
    std::string_view name; // of its control
    int index;             // in a control array, or -1
    std::size_t width;
    Forma forma;
};

inline constexpr std::array<Pole, POLA_COUNT> POLA{{
    {TXT_NAZWA, "txtNazwa", -1, NAZWA_WIDTH, Forma::Centred},
    {TXT_AUTOR, "txtAutor", -1, AUTOR_WIDTH, Forma::Left},
    {TXT_AUTOR_GRY, "txtAutorGry", 0, LINIA_WIDTH, Forma::Left},
    {TXT_AUTOR_GRY + 1, "txtAutorGry", 1, LINIA_WIDTH, Forma::Left},
    {TXT_AUTOR_GRY + 2, "txtAutorGry", 2, LINIA_WIDTH, Forma::Left},
}};
inline constexpr const Pole &POLE_NAZWA = POLA[TXT_NAZWA], &POLE_AUTOR = POLA[TXT_AUTOR];

// The box of a title line, 0..2.
constexpr const Pole& poleLinii(int index) {
    return POLA[TXT_AUTOR_GRY + index];
}

// Sets a box from code; an empty text becomes spaces, all selected.
void SetTekst(Okno&, const Pole&, const Tekst&);

// What is stored of a box: a text that is too short, because it is still being edited, is brought into its form.
Tekst filled(const Okno&, const Pole&);

// Does the same to the box itself.
void fillShort(Okno&, const Pole&);

// The user has changed the text. It is cut off at the width of the box; an emptied box gets spaces, all selected.
void txt_Change(Edytor&, const Pole&, const Tekst&);
void txt_GotFocus(Edytor&, const Pole&);

// The user leaves the box: its text is brought into its form.
void txt_LostFocus(Edytor&, const Pole&);

} // namespace dorva
