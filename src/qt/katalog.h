// The catalogue of the main window: every control, its place and its texts, in one table.
#pragma once

#include <string_view>
#include <vector>

namespace dorva {

enum class Rodzaj {
    Ramka,    // a frame with a caption
    Podklad,  // a grey field without a border
    Przycisk, // a button
    Opcja,    // a button that stays down while selected
    Znacznik, // a check box
    Etykieta, // a plain label, centred
    Figura,   // a label with a thin border, centred
    Probka,   // a swatch: a bold figure on its colour, with a thin border
    Nazwa,    // a label, right-aligned
    Suwak,    // a horizontal scroll bar
    Pole,     // a text box
    Obraz,    // the picture of one tile
    Plansza,  // the board
    Wybor,    // the tile picker
};

enum class Widac { Tak, Wylaczone, Ukryte, Schowane }; // shown, shown but disabled, both off, hidden only

// A control. Place in twips within its container; `index` is -1 outside control arrays.
struct Kontrolka {
    Rodzaj rodzaj;
    std::string_view name;
    int index;
    std::string_view container;
    int left, top, width, height;
    std::string_view caption;
    std::string_view tooltip;
    Widac widac = Widac::Tak;
};

inline constexpr int TWIPS_PER_PIXEL = 15;
constexpr int pixels(int twips) {
    return twips / TWIPS_PER_PIXEL;
}

inline constexpr int OKNO_WIDTH = pixels(13455), OKNO_HEIGHT = pixels(9255);
static_assert(OKNO_WIDTH == 897 && OKNO_HEIGHT == 617);

// All controls in an order in which a container comes before what it holds, and what lies on top comes
// last.
std::vector<Kontrolka> katalogOkna();

// The controls that the Tab key visits, in order; for an option group its name stands for all buttons.
std::vector<std::string_view> kolejnoscTab();

} // namespace dorva
