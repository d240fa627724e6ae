#include "stage/archiwum.h"

#include "sciezki.h"
#include "shell/komunikaty.h"
#include "stage/etap.h"
#include "stage/zapis_jako.h"
#include "stage/zbior_etapow.h"
#include "system/pliki.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace dorva {
namespace {

constexpr std::string_view FILTR_ZAPISU = "Plik archiwum|*.dpa|Wszystkie pliki (*.*)|*.*";
constexpr std::string_view FILTR_ODCZYTU = "Pliki archiwum|*.dpa|Wszystkie pliki (*.*)|*.*";
constexpr std::string_view NAZWA_ARCHIWUM = "DPArchiwum.dpa";

Bajty assemble(const Bajty& autorGry, const std::array<EtapImage, ETAPY_COUNT>& etapy) {
    Bajty archiwum = autorGry;
    for (const EtapImage& image : etapy)
        archiwum.insert(archiwum.end(), image.begin(), image.end());
    return archiwum;
}

// The bytes of stage `number` in an archive.
std::span<const Bajt> etapOf(std::span<const Bajt> archiwum, int number) {
    return archiwum.subspan(AUTOR_GRY_SIZE_BYTES + (number - 1) * ETAP_SIZE_BYTES, ETAP_SIZE_BYTES);
}

// Writes a stage of the archive over the working set. A file that is no whole stage is kept aside, and so is what the
// editor doesn't know of the current one.
bool replaceEtap(Edytor& e, int number, std::span<const Bajt> image) {
    const auto path = sciezki::etap(e.KatalogBazowy, number);
    const bool current = number == e.NumerEtapu;
    if (!current && lengthOf(*e.system, path) == ETAP_SIZE_BYTES)
        return writeWhole(*e.system, path, image);
    if (!writeKeepingUnknown(*e.system, path, image, current ? e.znanyEtap : std::nullopt))
        return false;
    if (current)
        e.znanyEtap.reset(); // until the editor has taken over the archive's stage
    return true;
}

} // namespace

void cmdSaveArch_Click(Edytor& e) {
    PackEtap(e);
    if (!writeBiezacyEtap(e))
        return;
    if (!writeAutorGry(e))
        return;
    const auto etapy = readOrCreateAllEtapy(e);
    if (!etapy)
        return;
    const Bajty archiwum = assemble(fillAutorGry(e), *etapy);
    if (archiwum.size() != ARCHIWUM_SIZE_BYTES) {
        askMessage(e.haki, komunikaty::NIE_MOZNA_PLIKU);
        return;
    }
    const auto path = askSavePath(e, {std::string(NAZWA_ARCHIWUM), e.OstatniaSciezka, FILTR_ZAPISU});
    if (!path || !writeChosen(e, *path, archiwum))
        return;
    askMessage(e.haki, komunikaty::ARCHIWUM_ZAPISANE);
}

void cmdLoadArch_Click(Edytor& e) {
    const auto path = askOpen(e.haki, {"", e.OstatniaSciezka, FILTR_ODCZYTU});
    if (!path)
        return;
    const auto length = lengthOf(*e.system, *path);
    if (!length)
        return;
    if (*length != ARCHIWUM_SIZE_BYTES) {
        askMessage(e.haki, komunikaty::ZLY_FORMAT);
        return;
    }
    e.OstatniaSciezka = *path;
    const auto archiwum = readOrCreate(*e.system, *path, ARCHIWUM_SIZE_BYTES);
    if (!archiwum)
        return;
    takeAutorGry(e, *archiwum);
    for (int number = 1; number <= ETAPY_COUNT; ++number)
        if (!replaceEtap(e, number, etapOf(*archiwum, number)))
            return;
    if (!writeAutorGry(e))
        return;
    (void)readOrCreateBiezacyEtap(e);
}

} // namespace dorva
