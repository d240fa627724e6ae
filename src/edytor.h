// The whole state of the editor. Every operation is a free function on it.
#pragma once

#include "shell/okno.h"
#include "stage/etap_image.h"
#include "system/haki.h"
#include "system/system_calls.h"
#include "tiles/magazyn.h"
#include "tiles/paleta_barw.h"

#include <filesystem>
#include <optional>

namespace dorva {

struct Edytor {
    // the outside
    Haki haki;
    const SystemCalls* system = &SYSTEM_CALLS;

    // what the controls hold
    Okno okno = defaultOkno();

    // the stage
    EtapImage image = EtapImage(ETAP_SIZE_BYTES, 0); // last packed or read; goes stale as the user edits
    int NumerEtapu = 1;                              // 1..32
    int lastCell = 0;                                // the board cell of the last mouse event

    std::optional<Time> ostatniaKopia; // when keepWork last looked at the screen

    // folders
    std::filesystem::path KatalogBazowy;
    std::filesystem::path OstatniaSciezka;

    // tiles and colours
    TablicaBarw Paleta = PaletaWbudowana;
    TablicaKolorow KoloryDomyslne = KOLORY_STARTOWE;
    int WybranySlot = 0;
    int BiezacySwiat = 0;
    Magazyn frmZestawy;
};

} // namespace dorva
