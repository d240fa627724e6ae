#include "przeglad/zapis.h"

#include "sciezki.h"
#include "shell/okno.h"
#include "stage/archiwum_image.h"
#include "system/pliki.h"

#include <system_error>

namespace dorva {
namespace {

namespace fs = std::filesystem;

void append(Bajty& image, const Bajty& bytes) {
    image.insert(image.end(), bytes.begin(), bytes.end());
}

} // namespace

EtapImage firstEtap() {
    const Okno okno = defaultOkno();
    EtapImage image(uklad::PLANSZA, 0);
    for (const PokazanyZnak& cell : okno.imgPG)
        image.push_back(static_cast<Bajt>(cell.znak));
    append(image, {static_cast<Bajt>(okno.hscMonet), okno.chkOstatni, static_cast<Bajt>(okno.optObiektyNR)});
    append(image, EncodeTekst(okno.pola[TXT_NAZWA].tekst));
    append(image, EncodeTekst(okno.pola[TXT_AUTOR].tekst));
    return image;
}

Bajty archiwumOf(const Gra& gra) {
    Bajty linie;
    for (const Tekst& linia : gra.linie)
        append(linie, linia.bytes());
    std::array<EtapImage, ETAPY_COUNT> etapy;
    for (int i = 0; i < ETAPY_COUNT; ++i) {
        etapy[i] = gra.karty[i].image;
        if (!etapy[i].empty())
            continue;
        etapy[i] = firstEtap();
        etapy[i][uklad::OSTATNI] = gra.ostatni[i];
    }
    return assembleArchiwum(linie, etapy);
}

bool isInZestaw(const SystemCalls& system, const fs::path& base, const fs::path& target) {
    for (const fs::path& file : sciezki::zestawRoboczy(base))
        if (isSameFile(system, file, target))
            return true;
    std::error_code error;
    const fs::path real =
        fs::weakly_canonical(behindLinks(system, fs::absolute(target, error)).value_or(target), error);
    for (fs::path folder = real; folder != folder.parent_path(); folder = folder.parent_path())
        for (const char* own : {"ETAPY", "PLIKI"})
            if (isSameFile(system, folder, base / own))
                return true;
    return false;
}

} // namespace dorva
