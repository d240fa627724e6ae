// What holds of every editor, whatever it was fed.
#pragma once

#include "bajty.h"
#include "board/census.h"
#include "edytor.h"
#include "stage/etap.h"

namespace dorva::fuzz {

// A count of the board written anew: how many cells hold either code of each pair.
using Liczby = std::array<int, 128>;
inline Liczby naiveCount(const Okno& okno) {
    Liczby liczby{};
    for (const PokazanyZnak& cell : okno.imgPG)
        ++liczby[static_cast<std::size_t>(kod(cell.znak) % 128)];
    return liczby;
}

inline void checkCensus(const Okno& okno) {
    const Liczby liczby = naiveCount(okno);
    struct Rzad {
        std::size_t label;
        std::size_t tile;
    };
    for (auto [label, tile] : {Rzad{2, 12}, {4, 13}, {5, 10}, {6, 14}, {7, 2}, {8, 55}, {9, 56}})
        SPRAWDZ(okno.lblInfo[label].liczba == liczby[tile]);
    const bool dorva = liczby[63] > 0, wyjscie = liczby[9] > 0;
    SPRAWDZ(okno.lblInfo[0].liczba == int{dorva} && okno.lblInfo[0].czerwona == !dorva);
    SPRAWDZ(okno.lblInfo[1].liczba == int{wyjscie} && okno.lblInfo[1].czerwona == !wyjscie);
    SPRAWDZ(okno.lblInfo[2].czerwona == (liczby[12] < okno.hscMonet));
    SPRAWDZ(okno.lblInfo[3].czerwona == okno.lblInfo[2].czerwona);
    SPRAWDZ(okno.lblInfo[4].czerwona == (liczby[13] < liczby[10]));
    SPRAWDZ(okno.lblInfo[8].czerwona == (liczby[55] % 2 == 1));
    SPRAWDZ(okno.lblInfo[10].liczba == (liczby[57] > 0 ? 1 : 0));
    for (std::size_t unikat : {9U, 56U, 57U, 63U}) {
        const bool stands = liczby[unikat] > 0;
        SPRAWDZ(okno.imgZnak[unikat].enabled == !stands);
        SPRAWDZ(!stands || kod(okno.imgBufor.znak) != static_cast<int>(unikat));
    }
}

// Packs the stage, and once more: 931 bytes that a second pack leaves alone, an edge of its three codes.
inline void checkPack(Edytor& e) {
    PackEtap(e);
    SPRAWDZ(e.image.size() == 931);
    checkCensus(e.okno);
    const Bajty first = e.image;
    PackEtap(e);
    SPRAWDZ(e.image == first);
    const int wall = kod(KodKrawedzi(e.okno));
    for (int i = 0; i < PLANSZA_CELLS; ++i) {
        const int code = first[32 + static_cast<std::size_t>(i)];
        SPRAWDZ(code == kod(e.okno.imgPG[static_cast<std::size_t>(i)].znak) && code != 191);
        SPRAWDZ(!isEdge(i) || code == 0 || code == 5 || code == 6 || code == wall);
    }
    SPRAWDZ(first[832] >= 1 && first[832] <= 99 && first[833] <= 2 && first[834] <= 2);
    SPRAWDZ(e.okno.lblInfo[3].liczba == e.okno.hscMonet);
}

} // namespace dorva::fuzz
