#include "tiles/kolory.h"

#include <algorithm>

namespace dorva {
namespace {

constexpr std::string_view PLIK_PALETY = "PLIKI/PALETY/Bitwor.act";

// Fixed names: a world's colour file does not follow the listing of the tile sets.
constexpr std::array<std::string_view, SWIATY_COUNT> PLIKI_KOLOROW{"OBIEKTY/ORN_EXPORT/FNT01.ORN.ND.KOLORY",
                                                                   "OBIEKTY/ORN_EXPORT/FNT11.ORN.ND.KOLORY",
                                                                   "OBIEKTY/ORN_EXPORT/FNT21.ORN.ND.KOLORY"};

std::filesystem::path kolorPath(const Edytor& e, int swiat) {
    return e.KatalogBazowy / PLIKI_KOLOROW[static_cast<std::size_t>(swiat)];
}

void takeKolory(Edytor& e, int swiat, const Bajty& bytes) {
    std::copy(bytes.begin(), bytes.end(),
              e.KoloryDomyslne[static_cast<std::size_t>(swiat)].begin() + KOLORY_FIRST_SLOT);
}

} // namespace

void LoadPaleta(Edytor& e) {
    const auto bytes = readOptional(e.system, e.KatalogBazowy / PLIK_PALETY, PALETA_SIZE_BYTES);
    e.Paleta = bytes ? parsePaleta(*bytes).value_or(PaletaWbudowana) : PaletaWbudowana;
}

void LoadKolory(Edytor& e, int swiat) {
    if (const auto bytes = readOptional(e.system, kolorPath(e, swiat), KOLORY_SIZE_BYTES))
        takeKolory(e, swiat, *bytes);
}

bool openKolory(Edytor& e, int swiat) {
    const auto bytes = readFirst(e.system, kolorPath(e, swiat), KOLORY_SIZE_BYTES);
    if (bytes)
        takeKolory(e, swiat, *bytes);
    return bytes.has_value();
}

void ShowKolor(Edytor& e, int slot, Bajt value) {
    Probka& probka = e.okno.lblKolor[static_cast<std::size_t>(slot)];
    probka.value = value;
    probka.tlo = e.Paleta[value];
}

void showDomyslne(Edytor& e, int swiat, int first, int last) {
    for (int slot = first; slot <= last; ++slot)
        ShowKolor(e, slot, e.KoloryDomyslne[static_cast<std::size_t>(swiat)][static_cast<std::size_t>(slot)]);
}

void cmdResetKolory_Click(Edytor& e) {
    if (e.okno.chkZachowajKolory) {
        askMessage(e.haki, komunikaty::KOLORY_ZABLOKOWANE);
        return;
    }
    showDomyslne(e, e.okno.optObiektyNR, 0, SLOTY_COUNT - 1);
}

} // namespace dorva
