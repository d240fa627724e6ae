// The text boxes: where each stands in the record, how wide it is, what form its text takes.
#pragma once

#include "edytor.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace dorva {

enum class Forma { Centred, Left };

// Where a text box stands in a record, be it changed or only read.
class Miejsce {
public:
    constexpr Miejsce(auto of) : changed_(of), read_(of) {}
    PoleTekstu& operator()(Okno& okno) const { return *changed_(okno); }
    const PoleTekstu& operator()(const Okno& okno) const { return *read_(okno); }

private:
    PoleTekstu* (*changed_)(Okno&);
    const PoleTekstu* (*read_)(const Okno&);
};

// A text box.
struct Pole {
    std::string_view name; // of its control
    int index;             // in a control array, or -1
    Miejsce box;
    std::size_t width;
    Forma forma;
};

inline constexpr auto POLA = std::to_array<Pole>({
    {"txtNazwa", -1, [](auto& o) { return &o.txtNazwa; }, NAZWA_WIDTH, Forma::Centred},
    {"txtAutor", -1, [](auto& o) { return &o.txtAutor; }, AUTOR_WIDTH, Forma::Left},
    {"txtAutorGry", 0, [](auto& o) { return &o.txtAutorGry[0]; }, LINIA_WIDTH, Forma::Left},
    {"txtAutorGry", 1, [](auto& o) { return &o.txtAutorGry[1]; }, LINIA_WIDTH, Forma::Left},
    {"txtAutorGry", 2, [](auto& o) { return &o.txtAutorGry[2]; }, LINIA_WIDTH, Forma::Left},
});
inline constexpr const Pole &POLE_NAZWA = POLA[0], &POLE_AUTOR = POLA[1];

// The box of a title line, 0..2.
constexpr const Pole& poleLinii(int index) {
    return POLA[2 + index];
}
static_assert(POLE_NAZWA.name == "txtNazwa" && POLE_AUTOR.name == "txtAutor" && poleLinii(0).name == "txtAutorGry" &&
              poleLinii(0).index == 0);

// Sets a box from code; an empty text becomes spaces, all selected.
void SetTekst(Okno&, const Pole&, const Tekst&);

// The text of a box as it is stored: one that is too short, since it is still being edited, is brought to its form.
Tekst filled(const Okno&, const Pole&);

// Does the same to the box itself.
void fillShort(Okno&, const Pole&);

// The user has changed the text. What is longer than the box is cut off; an emptied box is refilled with spaces, all
// selected.
void txt_Change(Edytor&, const Pole&, const Tekst&);
void txt_GotFocus(Edytor&, const Pole&);

// Validation and loss of focus alike: the text is brought to its form.
void txt_LostFocus(Edytor&, const Pole&);

} // namespace dorva
