#include "shell/okno.h"

namespace dorva {

Okno defaultOkno() {
    Okno okno;
    for (int i = 0; i < PLANSZA_CELLS; ++i) {
        const Znak z = isEdge(i) ? MUREK_PIONOWY : ZIEMIA;
        okno.imgPG[i] = {z, {ObrazRef::DOMYSLNY, z}};
    }
    for (int i = 0; i < ZNAKI_COUNT; ++i) {
        ZnakSlot& slot = okno.imgZnak[i];
        slot.znak = znak(i);
        slot.obraz = {ObrazRef::DOMYSLNY, znak(i)};
        slot.enabled = false;
    }
    for (int i : WYBOR_ORDER)
        okno.imgZnak[i].enabled = true;
    for (int k = 0; k < info::IKONY_COUNT; ++k)
        okno.imgInfo[k] = {ObrazRef::DOMYSLNY, ZNAKI_INFO[k]};
    okno.lblInfo[info::CEL_MASEK].liczba = okno.hscMonet;
    return okno;
}

} // namespace dorva
