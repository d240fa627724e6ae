// What single controls hold: a tile, a figure, a text box, a swatch, the palette dialog.
#pragma once

#include "board/znak.h"
#include "podstawy.h"
#include "stage/tekst.h"
#include "tiles/obraz.h"

#include <array>
#include <string>

namespace dorva {

// A tile on show: its code and its picture, which may lag behind the code.
struct PokazanyZnak {
    Znak znak = NIC;
    ObrazRef obraz{};
    bool operator==(const PokazanyZnak&) const = default;
};

// What the left mouse button paints.
using Bufor = PokazanyZnak;

using Plansza = std::array<PokazanyZnak, PLANSZA_CELLS>;

// A slot of the tile picker.
struct ZnakSlot : PokazanyZnak {
    bool enabled = true;
};

// What the last census counted on the board, and the goal.
struct EtapInfo {
    bool jestDorva = false, jestWyjscie = false;
    int maski = 0;
    int celMasek = CEL_MIN; // set by the user
    int klucze = 0, drzwi = 0, bomby = 0, pulapki = 0, przedmioty = 0, maszyny = 0;
    bool pochodnia = false;
};

// A figure of the panel that shows the census.
struct InfoFigura {
    std::string caption = "0";
    bool czerwona = false;
};

// Whether a stage is the game's last one: 0 or 1; 2, which only a file can hold, is shown as partially checked.
using Ostatni = Bajt;

// The text boxes; the title lines come last.
enum NumerPola { TXT_NAZWA, TXT_AUTOR, TXT_AUTOR_GRY, POLA_COUNT = TXT_AUTOR_GRY + LINIE_COUNT };

// What a text box holds. `zaznaczenia` counts the requests to select the whole text.
struct PoleTekstu {
    Tekst tekst;
    unsigned zaznaczenia = 0;
};

// A colour register of the stage and its swatch.
struct KolorSlot {
    Bajt value = 0;
    Rgb tlo{};
    bool wybrany = false; // its text is light red instead of white
    bool operator==(const KolorSlot&) const = default;
};

// The cells of the palette dialog: a row for each hue, a column for each even luminance.
inline constexpr int PALETA_COLUMNS = 8, PALETA_ROWS = 16, PALETA_CELLS = PALETA_COLUMNS * PALETA_ROWS;

// The palette dialog: its cells and the preview. `otwarcia` counts the requests to open it.
struct OknoPalety {
    bool otwarte = false;
    unsigned otwarcia = 0;
    std::array<Rgb, PALETA_CELLS> picPaleta{};
    Rgb picWybrany{};
    std::string lblWybrany = "0";
};

} // namespace dorva
