#include "board/plansza.h"

#include "board/bufor.h"
#include "board/census.h"

#include <cstdint>

namespace dorva {
namespace {

constexpr int PIPETA = 0; // in optPPM

// The eraser paints what slot 1 of the picker holds; under STD that is earth.
const ZnakSlot& slotZiemi(const Okno& okno) {
    return okno.imgZnak[kod(ZIEMIA)];
}

PokazanyZnak& cellOf(Okno& okno, int index) {
    return okno.imgPG[index];
}

} // namespace

void imgPG_MouseDown(Edytor& e, int index, int button) {
    Okno& okno = e.okno;
    e.lastCell = index;
    if (button == LEWY)
        cellOf(okno, index) = okno.imgBufor;
    else if (button == PRAWY && okno.optPPM == PIPETA)
        SetBufor(e, cellOf(okno, index));
    else if (button == PRAWY)
        cellOf(okno, index) = slotZiemi(okno);
    RefreshInfo(e);
}

void imgPG_MouseMove(Edytor& e, int index, int button) {
    if (index == e.lastCell)
        return;
    e.lastCell = index;
    if (button == LEWY) {
        cellOf(e.okno, index) = e.okno.imgBufor;
        RefreshInfo(e);
    }
    e.okno.obrys = index;
}

void imgZnak_Click(Edytor& e, int index) {
    const ZnakSlot& slot = e.okno.imgZnak[index];
    if (slot.enabled)
        SetBufor(e, slot);
}

void SelectNN(Edytor& e, int index) {
    if (index == e.okno.optNN)
        return;
    e.okno.optNN = index;
    optNN_Click(e, index);
}

void optNN_Click(Edytor& e, int index) {
    showWybor(e.okno, e.okno.optObiektyNR, index);
}

void showWybor(Okno& okno, Swiat swiat, int half) {
    const std::int8_t s = swiat;
    for (int i = 0; i < ZNAKI_COUNT; ++i) {
        ZnakSlot& slot = okno.imgZnak[i];
        slot.znak = znak(half * INV + i);
        slot.obraz = {s, slot.znak};
    }
}

} // namespace dorva
