#include "board/census.h"

#include "board/bufor.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace dorva {
namespace {

// How often each pair of codes (STD and INV together) stands on the board.
using Liczby = std::array<int, ZNAKI_COUNT>;

Liczby countPlansza(const Plansza& plansza) {
    // Four tables in turn: long runs of one code would otherwise wait for each other's increments.
    constexpr std::size_t TABLES = 4;
    std::array<std::array<std::uint16_t, 256>, TABLES> byCode{};
    for (std::size_t i = 0; i < plansza.size(); ++i)
        ++byCode[i % TABLES][kod(plansza[i].znak)];
    Liczby liczby{};
    for (const auto& table : byCode)
        for (std::size_t i = 0; i < liczby.size(); ++i)
            liczby[i] += table[i] + table[i + INV];
    return liczby;
}

// Tiles that the picker offers only while none stands on the board, in the order of their guard.
constexpr std::array UNIKATY{info::MASZYNY, info::DORVA, info::WYJSCIE, info::POCHODNIA};

// What is only there or not counts as one.
constexpr bool isPresence(int figura) {
    return figura == info::DORVA || figura == info::WYJSCIE || figura == info::POCHODNIA;
}

void takeLiczby(EtapInfo& etapInfo, const Liczby& liczby) {
    for (int figura = 0; figura < info::COUNT; ++figura) {
        const int liczba = liczby[kod(ZNAKI_INFO[figura])];
        if (figura != info::CEL_MASEK)
            etapInfo[figura].liczba = isPresence(figura) ? std::min(liczba, 1) : liczba;
    }
}

void colourMaski(EtapInfo& etapInfo) {
    const bool broken = etapInfo[info::MASKI].liczba < etapInfo[info::CEL_MASEK].liczba;
    etapInfo[info::MASKI].czerwona = etapInfo[info::CEL_MASEK].czerwona = broken;
}

void colourFigures(EtapInfo& etapInfo) {
    etapInfo[info::DORVA].czerwona = etapInfo[info::DORVA].liczba == 0;
    etapInfo[info::WYJSCIE].czerwona = etapInfo[info::WYJSCIE].liczba == 0;
    colourMaski(etapInfo);
    const bool tooFewKeys = etapInfo[info::KLUCZE].liczba < etapInfo[info::DRZWI].liczba;
    etapInfo[info::KLUCZE].czerwona = etapInfo[info::DRZWI].czerwona = tooFewKeys;
    etapInfo[info::PRZEDMIOTY].czerwona = etapInfo[info::PRZEDMIOTY].liczba % 2 != 0;
}

void guardUnikaty(Edytor& e) {
    for (info::Figura figura : UNIKATY) {
        const Znak unikat = ZNAKI_INFO[figura];
        const bool stands = e.okno.lblInfo[figura].liczba > 0;
        e.okno.imgZnak[kod(unikat)].enabled = !stands;
        if (stands && e.okno.imgBufor.znak == unikat)
            SetBufor(e, e.okno.imgZnak[kod(ZIEMIA)]);
    }
}

} // namespace

void RefreshInfo(Edytor& e) {
    takeLiczby(e.okno.lblInfo, countPlansza(e.okno.imgPG));
    colourFigures(e.okno.lblInfo);
    guardUnikaty(e);
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
    e.okno.lblInfo[info::CEL_MASEK].liczba = e.okno.hscMonet;
    colourMaski(e.okno.lblInfo);
}

void lblInfo_Click(Edytor& e, int index) {
    if (index != info::MASKI && index != info::CEL_MASEK)
        return;
    const int cel = std::clamp(e.okno.lblInfo[info::MASKI].liczba, CEL_MIN, CEL_MAX);
    e.okno.lblInfo[info::CEL_MASEK].liczba = cel;
    (void)SetMonet(e, cel);
}

} // namespace dorva
