#include "board/census.h"

#include "board/bufor.h"
#include "board/spis.h"

#include <algorithm>
#include <string>

namespace dorva {
namespace {

EtapInfo countPlansza(const Plansza& plansza, int celMasek) {
    const Spis spis = countZnaki(plansza, &PokazanyZnak::znak);
    return {
        .jestDorva = spis.dorvy > 0,
        .jestWyjscie = spis.wyjscia > 0,
        .maski = spis.maski,
        .celMasek = celMasek,
        .klucze = spis.klucze,
        .drzwi = spis.drzwi,
        .bomby = spis.bomby,
        .pulapki = spis.pulapki,
        .przedmioty = spis.przedmioty,
        .maszyny = spis.maszyny,
        .pochodnia = spis.pochodnie > 0,
    };
}

InfoFigura presence(bool isThere) {
    return {isThere ? "ok" : "!", !isThere};
}

InfoFigura number(int count, bool broken = false) {
    return {std::to_string(count), broken};
}

void showMaski(Okno& okno) {
    const EtapInfo& etap = okno.etapInfo;
    const bool tooFew = tooFewMaski(etap.maski, etap.celMasek);
    okno.lblInfo[info::MASKI] = number(etap.maski, tooFew);
    okno.lblInfo[info::CEL_MASEK] = number(etap.celMasek, tooFew);
}

void showInfo(Okno& okno) {
    const EtapInfo& etap = okno.etapInfo;
    const bool tooFewKeys = tooFewKlucze(etap.klucze, etap.drzwi);
    okno.lblInfo[info::DORVA] = presence(etap.jestDorva);
    okno.lblInfo[info::WYJSCIE] = presence(etap.jestWyjscie);
    showMaski(okno);
    okno.lblInfo[info::KLUCZE] = number(etap.klucze, tooFewKeys);
    okno.lblInfo[info::DRZWI] = number(etap.drzwi, tooFewKeys);
    okno.lblInfo[info::BOMBY] = number(etap.bomby);
    okno.lblInfo[info::PULAPKI] = number(etap.pulapki);
    okno.lblInfo[info::PRZEDMIOTY] = number(etap.przedmioty, unpaired(etap.przedmioty));
    okno.lblInfo[info::MASZYNY] = number(etap.maszyny);
    okno.lblInfo[info::POCHODNIA] = number(etap.pochodnia ? 1 : 0);
}

// A tile that may be on the board once can't be picked while it is there, nor stay in the buffer.
void guardUnikat(Edytor& e, Znak unikat, bool stands) {
    e.okno.imgZnak[kod(unikat)].enabled = !stands;
    if (stands && e.okno.imgBufor.znak == unikat)
        SetBufor(e, e.okno.imgZnak[kod(ZIEMIA)]);
}

} // namespace

void RefreshInfo(Edytor& e) {
    e.okno.etapInfo = countPlansza(e.okno.imgPG, e.okno.hscMonet);
    showInfo(e.okno);
    guardUnikat(e, MASZYNA, e.okno.etapInfo.maszyny > 0);
    guardUnikat(e, DORVA, e.okno.etapInfo.jestDorva);
    guardUnikat(e, WYJSCIE, e.okno.etapInfo.jestWyjscie);
    guardUnikat(e, POCHODNIA, e.okno.etapInfo.pochodnia);
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
    e.okno.etapInfo.celMasek = e.okno.hscMonet;
    showMaski(e.okno);
}

void lblInfo_Click(Edytor& e, int index) {
    if (index == info::MASKI || index == info::CEL_MASEK)
        (void)SetMonet(e, std::clamp(e.okno.etapInfo.maski, CEL_MIN, CEL_MAX));
}

} // namespace dorva
