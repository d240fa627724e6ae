#include "tiles/kolory.h"

#include "sciezki.h"
#include "shell/komunikaty.h"
#include "system/pliki.h"

#include <algorithm>
#include <filesystem>

namespace dorva {
namespace {

std::filesystem::path kolorPath(const Edytor& e, Swiat swiat) {
    return e.KatalogBazowy / sciezki::KOLORY[swiat];
}

void takeKolory(Edytor& e, Swiat swiat, const Bajty& bytes) {
    std::copy(bytes.begin(), bytes.end(), e.KoloryDomyslne[swiat].begin() + KOLORY_FIRST_SLOT);
}

} // namespace

void LoadPaleta(Edytor& e) {
    const auto bytes = readFirst(*e.system, e.KatalogBazowy / sciezki::PALETA, PALETA_SIZE_BYTES);
    e.Paleta = bytes ? parsePaleta(*bytes).value_or(PaletaWbudowana) : PaletaWbudowana;
}

void LoadKolory(Edytor& e, Swiat swiat) {
    if (const auto bytes = readFirst(*e.system, kolorPath(e, swiat), KOLORY_SIZE_BYTES))
        takeKolory(e, swiat, *bytes);
}

bool readOrCreateKolory(Edytor& e, Swiat swiat) {
    const auto bytes = readOrCreate(*e.system, kolorPath(e, swiat), KOLORY_SIZE_BYTES);
    if (bytes)
        takeKolory(e, swiat, *bytes);
    return bytes.has_value();
}

void ShowKolor(Edytor& e, int slot, Bajt value) {
    KolorSlot& kolor = e.okno.lblKolor[slot];
    kolor.value = value;
    kolor.tlo = e.Paleta[value];
}

void showDomyslne(Edytor& e, Swiat swiat, int first, int last) {
    for (int slot = first; slot <= last; ++slot)
        ShowKolor(e, slot, e.KoloryDomyslne[swiat][slot]);
}

void cmdResetKolory_Click(Edytor& e) {
    if (e.okno.chkZachowajKolory) {
        askMessage(e.haki, komunikaty::KOLORY_ZABLOKOWANE);
        return;
    }
    showDomyslne(e, e.okno.optObiektyNR, 0, SLOTY_COUNT - 1);
}

} // namespace dorva
