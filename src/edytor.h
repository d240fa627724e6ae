// The whole state of the editor. Every operation is a free function on it.
#pragma once

#include "shell/haki.h"
#include "shell/okno.h"
#include "shell/pliki.h"
#include "tiles/magazyn.h"
#include "tiles/paleta_barw.h"

#include <filesystem>

namespace dorva {

struct Edytor {
    // the outside
    Haki haki;
    SystemPlikow system = SYSTEM_PLIKOW;

    // what the controls hold
    Okno okno = defaultOkno();

    // the stage
    Bajty obrazEtapu = Bajty(ETAP_SIZE_BYTES, 0); // last packed or read; goes stale as the user edits
    int NumerEtapu = 1;                           // 1..32
    bool etapPrzejety = false;  // the bytes of DETAP.<NumerEtapu> are all in the editor, or came from it
    bool autorPrzejety = false; // likewise DP1.DTA
    int lastCell = 0;           // the board cell that the mouse rules handled last

    // folders
    std::filesystem::path KatalogBazowy;
    std::filesystem::path OstatniaSciezka;

    // tiles and colours
    TablicaBarw Paleta = PaletaWbudowana;
    TablicaKolorow KoloryDomyslne = KOLORY_STARTOWE;
    int WybranySlot = 0;
    int BiezacySwiat = 0;
    Magazyn zestawy;
};

} // namespace dorva
