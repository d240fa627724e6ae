#include "board/census.h"

#include "board/bufor.h"

#include <algorithm>

namespace dorva {
namespace {

// How often each pair of codes (STD and INV together) stands on the board.
using Liczby = std::array<int, ZNAKI_COUNT>;

Liczby countBoard(const std::array<ZnakPole, PLANSZA_CELLS>& plansza) {
    // Four tables in turn: long runs of one code would otherwise wait for each other's increments.
    constexpr std::size_t TABLES = 4;
    std::array<std::array<std::uint16_t, 256>, TABLES> byCode{};
    for (std::size_t i = 0; i < plansza.size(); ++i)
        ++byCode[i % TABLES][static_cast<std::size_t>(plansza[i].znak)];
    Liczby liczby{};
    for (const auto& table : byCode)
        for (std::size_t i = 0; i < liczby.size(); ++i)
            liczby[i] += table[i] + table[i + INV];
    return liczby;
}

int count(const Liczby& liczby, Znak z) {
    return liczby[static_cast<std::size_t>(z)];
}

enum Figura { F_DORVA, F_WYJSCIE, F_MASKI, F_CEL, F_KLUCZE, F_DRZWI, F_PRZEDMIOTY = 8, F_POCHODNIA = 10 };

// The figures that are plain counts.
struct Licznik {
    std::size_t label;
    Znak znak;
};
constexpr std::array<Licznik, 7> LICZNIKI{
    {{2, MASKA}, {4, KLUCZ}, {5, DRZWI}, {6, BOMBA}, {7, PULAPKA}, {8, PRZEDMIOT}, {9, MASZYNA}}};

// Tiles that the picker offers only while none stands on the board, in the order of their guard.
constexpr std::array UNIKATY{MASZYNA, DORVA, WYJSCIE, POCHODNIA};

int figure(const Okno& okno, std::size_t label) {
    return std::stoi(okno.lblInfo[label].caption);
}

void colourMaski(Okno& okno) {
    const bool broken = figure(okno, F_MASKI) < figure(okno, F_CEL);
    okno.lblInfo[F_MASKI].czerwony = okno.lblInfo[F_CEL].czerwony = broken;
}

void showFigures(Okno& okno, const Liczby& liczby) {
    okno.lblInfo[F_DORVA].caption = count(liczby, DORVA) > 0 ? "ok" : "!";
    okno.lblInfo[F_WYJSCIE].caption = count(liczby, WYJSCIE) > 0 ? "ok" : "!";
    for (auto [label, tile] : LICZNIKI)
        okno.lblInfo[label].caption = std::to_string(count(liczby, tile));
    okno.lblInfo[F_POCHODNIA].caption = count(liczby, POCHODNIA) > 0 ? "1" : "0";
}

void colourFigures(Okno& okno, const Liczby& liczby) {
    okno.lblInfo[F_DORVA].czerwony = count(liczby, DORVA) == 0;
    okno.lblInfo[F_WYJSCIE].czerwony = count(liczby, WYJSCIE) == 0;
    colourMaski(okno);
    const bool tooFewKeys = count(liczby, KLUCZ) < count(liczby, DRZWI);
    okno.lblInfo[F_KLUCZE].czerwony = okno.lblInfo[F_DRZWI].czerwony = tooFewKeys;
    okno.lblInfo[F_PRZEDMIOTY].czerwony = count(liczby, PRZEDMIOT) % 2 != 0;
}

void guardUnikaty(Edytor& e, const Liczby& liczby) {
    for (Znak unikat : UNIKATY) {
        const bool stands = count(liczby, unikat) > 0;
        e.okno.imgZnak[static_cast<std::size_t>(unikat)].enabled = !stands;
        if (stands && e.okno.imgBufor.znak == unikat)
            SetBufor(e, e.okno.imgZnak[static_cast<std::size_t>(ZIEMIA)]);
    }
}

} // namespace

void RefreshInfo(Edytor& e) {
    const Liczby liczby = countBoard(e.okno.imgPG);
    showFigures(e.okno, liczby);
    colourFigures(e.okno, liczby);
    guardUnikaty(e, liczby);
}

bool SetMonet(Edytor& e, int value) {
    if (value < CEL_MIN || value > CEL_MAX)
        return false;
    if (value == e.okno.hscMonet)
        return true;
    e.okno.hscMonet = value;
    hscMonet_Change(e);
    return true;
}

void hscMonet_Change(Edytor& e) {
    e.okno.lblInfo[F_CEL].caption = std::to_string(e.okno.hscMonet);
    colourMaski(e.okno);
}

void lblInfo_Click(Edytor& e, int index) {
    if (index != F_MASKI && index != F_CEL)
        return;
    const int cel = std::clamp(figure(e.okno, F_MASKI), CEL_MIN, CEL_MAX);
    e.okno.lblInfo[F_CEL].caption = std::to_string(cel);
    (void)SetMonet(e, cel);
}

} // namespace dorva
