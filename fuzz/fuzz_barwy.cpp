// The palette file and the worlds' colour files.
#include "bajty.h"
#include "pamiec.h"
#include "tiles/kolory.h"

using namespace dorva;
using fuzz::pamiec;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Edytor e;
    e.system = fuzz::systemPamieci();
    e.KatalogBazowy = "/p";
    pamiec = {};
    fuzz::Strumien input{{data, size}};
    const int swiat = input.below(SWIATY_COUNT);
    const auto kolory = input.take(static_cast<std::size_t>(input.byte() % 9));
    const auto barwy = input.left;
    const char* names[] = {"FNT01", "FNT11", "FNT21"};
    pamiec.put("/p/OBIEKTY/ORN_EXPORT/" + std::string(names[swiat]) + ".ORN.ND.KOLORY", {kolory.begin(), kolory.end()});
    pamiec.put("/p/PLIKI/PALETY/Bitwor.act", {barwy.begin(), barwy.end()});

    LoadPaleta(e);
    for (std::size_t i = 0; i < 256; ++i) {
        const bool whole = barwy.size() >= PALETA_SIZE_BYTES;
        const Rgb expected = whole ? Rgb{barwy[3 * i], barwy[3 * i + 1], barwy[3 * i + 2]} : PaletaWbudowana[i];
        SPRAWDZ(e.Paleta[i] == expected);
    }
    e.KoloryDomyslne = KOLORY_STARTOWE;
    LoadKolory(e, swiat);
    TablicaKolorow expected = KOLORY_STARTOWE;
    if (kolory.size() >= KOLORY_SIZE_BYTES)
        std::copy_n(kolory.begin(), KOLORY_SIZE_BYTES, expected[static_cast<std::size_t>(swiat)].begin() + 4);
    SPRAWDZ(e.KoloryDomyslne == expected);
    SPRAWDZ(pamiec.pliki.size() == 2);
    return 0;
}
