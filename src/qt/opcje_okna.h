// The option groups of the window.
#pragma once

#include "board/plansza.h"
#include "edytor.h"
#include "stage/zbior_etapow.h"
#include "tiles/zestaw.h"

#include <string_view>

namespace dorva {

// Where the record keeps the selected option of a group, and what runs when the user selects one.
struct GrupaOpcji {
    std::string_view name;
    int Okno::*selected;
    void (*run)(Edytor&, int index);
};
inline constexpr GrupaOpcji OPCJE[]{
    {"optEtapNR", &Okno::optEtapNR, SelectEtapNR},
    {"optObiektyNR", &Okno::optObiektyNR, [](Edytor& e, int index) { (void)SelectObiektyNR(e, index); }},
    {"optPPM", &Okno::optPPM, [](Edytor& e, int index) { e.okno.optPPM = index; }},
    {"optNN", &Okno::optNN, SelectNN}};

} // namespace dorva
