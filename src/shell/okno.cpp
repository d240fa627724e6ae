#include "shell/okno.h"

#include <string>
#include <string_view>

namespace dorva {
namespace {

// The first texts, in Windows-1250: \xD3 is Ó.
constexpr std::string_view NAZWA_DOMYSLNA = "           POWODZENIA!          ";
constexpr std::string_view AUTOR_DOMYSLNY = "DORVA PLANSZOWNIK - EDYTOR ETAP\xD3W                               ";
constexpr std::string_view LINIA_DOMYSLNA = "DORVA PLANSZOWNIK!  ";
static_assert(NAZWA_DOMYSLNA.size() == NAZWA_WIDTH && AUTOR_DOMYSLNY.size() == AUTOR_WIDTH &&
              LINIA_DOMYSLNA.size() == LINIA_WIDTH);

} // namespace

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
    okno.lblInfo[info::DORVA].caption = okno.lblInfo[info::WYJSCIE].caption = "!";
    okno.lblInfo[info::CEL_MASEK].caption = std::to_string(okno.hscMonet);
    okno.pola[TXT_NAZWA].tekst.znaki = NAZWA_DOMYSLNA;
    okno.pola[TXT_AUTOR].tekst.znaki = AUTOR_DOMYSLNY;
    okno.pola[TXT_AUTOR_GRY].tekst.znaki = LINIA_DOMYSLNA;
    okno.pola[TXT_AUTOR_GRY + 1].tekst = okno.pola[TXT_AUTOR_GRY + 2].tekst = Tekst::spaces(LINIA_WIDTH);
    return okno;
}

} // namespace dorva
