#include "tiles/zestaw.h"

#include "board/plansza.h"
#include "tiles/kolory.h"
#include "tiles/paski.h"

#include <cstdint>
#include <filesystem>

namespace dorva {
bool ScanZestawy(Edytor& e) {
    const auto zestawy = listZestawy(*e.system, e.KatalogBazowy);
    const int count = zestawy.size();
    for (Swiat swiat = 0; swiat < SWIATY_COUNT; ++swiat) {
        // Only the last world may be without a tile set.
        if (swiat > count)
            return false;
        if (swiat < count)
            LoadZestaw(e, zestawy[swiat], swiat);
    }
    return true;
}

void LoadZestaw(Edytor& e, const std::filesystem::path& path, Swiat swiat) {
    if (!loadPasek(e.frmZestawy, e.haki, path, swiat))
        return;
    if (!readOrCreateKolory(e, swiat))
        return;
    if (swiat != e.BiezacySwiat)
        return;
    showDomyslne(e, swiat, KOLORY_FIRST_SLOT, KOLORY_FIRST_SLOT + KOLORY_SIZE_BYTES - 1);
}

void ShowZestaw(Edytor& e, Swiat swiat) {
    Okno& okno = e.okno;
    const std::int8_t s = swiat;
    showWybor(okno, swiat, okno.optNN);
    okno.imgBufor.obraz = {s, okno.imgBufor.znak};
    for (PokazanyZnak& cell : okno.imgPG)
        cell.obraz = {s, cell.znak};
    for (int k = 0; k < info::IKONY_COUNT; ++k)
        okno.imgInfo[k] = okno.imgZnak[kod(ZNAKI_INFO[k])].obraz;
    e.BiezacySwiat = swiat;
}

bool SelectObiektyNR(Edytor& e, Swiat swiat) {
    if (swiat < 0 || swiat >= SWIATY_COUNT)
        return false;
    if (swiat == e.okno.optObiektyNR)
        return true;
    e.okno.optObiektyNR = swiat;
    optObiektyNR_Click(e, swiat);
    return true;
}

void optObiektyNR_Click(Edytor& e, int index) {
    ShowZestaw(e, index);
}

void cmdReload_Click(Edytor& e) {
    if (!ScanZestawy(e))
        return;
    for (Swiat swiat = 0; swiat < SWIATY_COUNT; ++swiat)
        LoadKolory(e, swiat);
    ShowZestaw(e, e.okno.optObiektyNR);
}

} // namespace dorva
