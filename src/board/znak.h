// The tile vocabulary: codes, names, the board's cells.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace dorva {

// The code of a tile. 0..63 are the STD forms, 128..191 the INV forms of the same tiles; the others are no tiles.
enum class Znak : std::uint8_t {};

constexpr Znak znak(int code) {
    return static_cast<Znak>(code);
}
constexpr int kod(Znak z) {
    return static_cast<int>(z);
}

inline constexpr int INV = 128;
inline constexpr int ZNAKI_COUNT = 64;

inline constexpr int PLANSZA_COLUMNS = 40;
inline constexpr int PLANSZA_ROWS = 20;
inline constexpr int PLANSZA_CELLS = PLANSZA_COLUMNS * PLANSZA_ROWS;

// The tiles that the editor itself knows by name.
inline constexpr Znak NIC = znak(0), ZIEMIA = znak(1), PULAPKA = znak(2), MUREK_PIONOWY = znak(5),
                      MUREK_POZIOMY = znak(6), WYJSCIE = znak(9), DRZWI = znak(10), MASKA = znak(12), KLUCZ = znak(13),
                      BOMBA = znak(14), PRZEDMIOT = znak(55), MASZYNA = znak(56), POCHODNIA = znak(57),
                      DORVA = znak(63), DORVA_INV = znak(63 + INV);

// True for the codes that a tile set has a picture of.
constexpr bool isTile(Znak z) {
    return kod(z) % INV < ZNAKI_COUNT;
}

// True for the 116 cells of the board's rim.
constexpr bool isEdge(int cell) {
    const int row = cell / PLANSZA_COLUMNS, column = cell % PLANSZA_COLUMNS;
    return row == 0 || row == PLANSZA_ROWS - 1 || column == 0 || column == PLANSZA_COLUMNS - 1;
}

// The edge rule: only walls and empty cells may stand there.
constexpr bool mayBeOnEdge(Znak z) {
    return z == NIC || z == MUREK_PIONOWY || z == MUREK_POZIOMY;
}

// The tooltips of the picker, by STD code.
inline constexpr std::array<std::string_view, ZNAKI_COUNT> NAZWY_ZNAKOW{
    "NIC",
    "ZIEMIA",
    "PUŁAPKA",
    "ŚLAD",
    "GLINIANE NACZYNIE",
    "MUREK PIONOWY NIEZNISZCZALNY",
    "MUREK POZIOMY NIEZNISZCZALNY",
    "MUREK KRUCHY",
    "ZAROŚLA",
    "WYJŚCIE",
    "DRZWI",
    "WODA",
    "MASKA",
    "KLUCZ",
    "BOMBA",
    "SKRZYNIA",
    "FIOLKA Z ELIKSIREM",
    "BLOK",
    "PROMIENNIK",
    "PROMIEŃ W LEWO",
    "PROMIEŃ W PRAWO",
    "PROMIEŃ W GÓRĘ",
    "PROMIEŃ W DÓŁ",
    "ODPALONA BOMBA",
    "DUCH",
    "STWOREK",
    "STWÓR W LEWO",
    "STWÓR W PRAWO",
    "STRAŻNIK IDĄCY W DÓŁ",
    "STRAŻNIK IDĄCY W GÓRĘ",
    "WYBUCH_1",
    "WYBUCH_2",
    "WYBUCH_3",
    "WYBUCH_4",
    "MONETA",
    "OGIEŃ",
    "TROPICIEL IDĄCY W LEWO",
    "TROPICIEL IDĄCY W PRAWO",
    "TROPICIEL IDĄCY W GÓRĘ",
    "TROPICIEL IDĄCY W DÓŁ",
    "MIOTNIK",
    "MIOTACZ",
    "PLUJKA",
    "ZATRUTA STRZAŁKA W LEWO",
    "ZATRUTA STRZAŁKA W PRAWO",
    "RZUCONY KAMYK W LEWO",
    "RZUCONY KAMYK W PRAWO",
    "RZUCONY KAMYK W GÓRĘ",
    "RZUCONY KAMYK W DÓŁ",
    "BAGNO",
    "DORVA W BAGNIE PO OCZY",
    "DORVA W BAGNIE PO PACHY",
    "DORVA W BAGNIE PO KOLANA",
    "DORVA PO WYJŚCIU Z BAGNA",
    "EPICENTRUM WYBUCHU",
    "MAGICZNY PRZEDMIOT",
    "MASZYNA",
    "POCHODNIA",
    "DORVA KRZYCZY",
    "DORVA IDĄCA W DÓŁ",
    "DORVA IDĄCA W PRAWO",
    "DORVA IDĄCA W LEWO",
    "DORVA IDĄCA W GÓRĘ",
    "DORVA",
};

// Indexes of `lblInfo`, the figures of the panel. The first IKONY_COUNT have an icon.
namespace info {
enum Figura : int {
    DORVA,
    WYJSCIE,
    MASKI,
    CEL_MASEK, // set by the user, not counted
    KLUCZE,
    DRZWI,
    BOMBY,
    PULAPKI,
    PRZEDMIOTY,
    MASZYNY,
    POCHODNIA,
    COUNT,
    IKONY_COUNT = POCHODNIA
};
} // namespace info

// The tile that each icon shows.
inline constexpr std::array<Znak, info::IKONY_COUNT> ZNAKI_INFO{DORVA, WYJSCIE, MASKA,   MASKA,     KLUCZ,
                                                                DRZWI, BOMBA,   PULAPKA, PRZEDMIOT, MASZYNA};

// The two visible rows of the picker, left to right; all other slots are hidden.
inline constexpr int WYBOR_COLUMNS = 22;
inline constexpr std::array<int, 2 * WYBOR_COLUMNS> WYBOR_ORDER{
    0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22,
    12, 23, 24, 25, 26, 27, 28, 29, 34, 35, 36, 37, 38, 39, 40, 41, 42, 49, 55, 56, 57, 63};

} // namespace dorva
