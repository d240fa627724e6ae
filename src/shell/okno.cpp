#include "shell/okno.h"

namespace dorva {

Okno defaultOkno() {
    Okno okno;
    for (int i = 0; i < PLANSZA_CELLS; ++i) {
        const Znak z = isEdge(i) ? MUREK_PIONOWY : ZIEMIA;
        okno.imgPG[static_cast<std::size_t>(i)] = {z, {ObrazRef::DOMYSLNY, z}};
    }
    for (int i = 0; i < ZNAKI_COUNT; ++i) {
        ZnakSlot& slot = okno.imgZnak[static_cast<std::size_t>(i)];
        slot.znak = znak(i);
        slot.obraz = {ObrazRef::DOMYSLNY, znak(i)};
        slot.enabled = false;
    }
    for (int i : WYBOR_ORDER)
        okno.imgZnak[static_cast<std::size_t>(i)].enabled = true;
    for (std::size_t k = 0; k < IKONY_INFO.size(); ++k)
        okno.imgInfo[k] = {ObrazRef::DOMYSLNY, IKONY_INFO[k]};
    okno.lblInfo[0].caption = okno.lblInfo[1].caption = "!";
    okno.lblInfo[3].caption = "1";
    okno.txtAutor.tekst = {std::string(AUTOR_DOMYSLNY)};
    return okno;
}

} // namespace dorva
