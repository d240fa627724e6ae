// A board counted, and the rules about its figures: for the editor's panel and for the checks of a whole game.
#pragma once

#include "board/znak.h"

#include <array>
#include <functional>

namespace dorva {

// How often the tiles of the rules stand on a board, in either form, STD or INV.
struct Spis {
    int dorvy = 0, wyjscia = 0, maski = 0, klucze = 0, drzwi = 0, bomby = 0, pulapki = 0, przedmioty = 0, maszyny = 0,
        pochodnie = 0;
};

// `znakOf` takes a tile out of a cell.
template <typename Cells, typename ZnakOf> Spis countZnaki(const Cells& cells, ZnakOf znakOf) {
    std::array<int, 256> byCode{};
    for (const auto& cell : cells)
        ++byCode[kod(std::invoke(znakOf, cell))];
    const auto count = [&](Znak z) { return byCode[kod(z)] + byCode[kod(z) + INV]; };
    return {
        .dorvy = count(DORVA),
        .wyjscia = count(WYJSCIE),
        .maski = count(MASKA),
        .klucze = count(KLUCZ),
        .drzwi = count(DRZWI),
        .bomby = count(BOMBA),
        .pulapki = count(PULAPKA),
        .przedmioty = count(PRZEDMIOT),
        .maszyny = count(MASZYNA),
        .pochodnie = count(POCHODNIA),
    };
}

constexpr bool tooFewMaski(int maski, int celMasek) {
    return maski < celMasek;
}
constexpr bool tooFewKlucze(int klucze, int drzwi) {
    return klucze < drzwi;
}
constexpr bool unpaired(int przedmioty) {
    return przedmioty % 2 != 0;
}

} // namespace dorva
