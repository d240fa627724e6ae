#include "tiles/paleta.h"

#include "shell/komunikaty.h"
#include "tiles/kolory.h"

#include <cstddef>

namespace dorva {
namespace {

constexpr int SLOT_PANELU = 11;
constexpr int KOLUMNA_PANELU = 2; // luminance 4, the only one that the panel can take

KolorSlot& wybrany(Edytor& e) {
    return e.okno.lblKolor[e.WybranySlot];
}

void showWybrany(Edytor& e) {
    e.okno.dlgPaleta.picWybrany = wybrany(e).tlo;
    e.okno.dlgPaleta.lblWybrany = kolorText(wybrany(e).value);
}

} // namespace

void PickKolor(Edytor& e, int slot) {
    if (e.okno.chkZachowajKolory) {
        askMessage(e.haki, komunikaty::KOLORY_ZABLOKOWANE);
        return;
    }
    e.WybranySlot = slot;
    for (KolorSlot& kolor : e.okno.lblKolor)
        kolor.wybrany = false;
    wybrany(e).wybrany = true;
    OpenPaleta(e);
}

void OpenPaleta(Edytor& e) {
    OknoPalety& okno = e.okno.dlgPaleta;
    for (std::size_t i = 0; i < okno.picPaleta.size(); ++i)
        okno.picPaleta[i] = e.Paleta[2 * i];
    showWybrany(e);
    okno.otwarte = true;
    ++okno.otwarcia;
}

void picPaleta_Click(Edytor& e, int index) {
    if (e.WybranySlot == SLOT_PANELU)
        index = index / PALETA_COLUMNS * PALETA_COLUMNS + KOLUMNA_PANELU;
    ShowKolor(e, e.WybranySlot, static_cast<Bajt>(2 * index));
    showWybrany(e);
}

void closePaleta(Edytor& e) {
    if (!e.okno.dlgPaleta.otwarte)
        return;
    e.okno.dlgPaleta.otwarte = false;
    wybrany(e).wybrany = false;
}

} // namespace dorva
