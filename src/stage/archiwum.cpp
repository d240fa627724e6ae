#include "stage/archiwum.h"

#include "sciezki.h"
#include "shell/komunikaty.h"
#include "stage/autor_gry.h"
#include "stage/etap.h"
#include "stage/kopie_ekranu.h"
#include "stage/zapis_jako.h"
#include "stage/zbior_etapow.h"
#include "system/kopie.h"
#include "system/pliki.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace dorva {
namespace {

constexpr std::string_view FILTR_ZAPISU = "Plik archiwum|*.dpa|Wszystkie pliki (*.*)|*.*";
constexpr std::string_view FILTR_ODCZYTU = "Pliki archiwum|*.dpa|Wszystkie pliki (*.*)|*.*";
constexpr std::string_view NAZWA_ARCHIWUM = "DPArchiwum.dpa";

// Makes a copy of the whole game, with the current stage and the title lines as they are on the screen. A stage whose
// file is missing or too short goes in as the one that a new window holds.
void keepGra(const Edytor& e) {
    const EtapImage first = packed(defaultOkno());
    std::array<EtapImage, ETAPY_COUNT> etapy;
    for (int number = 1; number <= ETAPY_COUNT; ++number) {
        const auto stored = readFirst(*e.system, sciezki::etap(e.KatalogBazowy, number), ETAP_SIZE_BYTES);
        etapy[number - 1] = stored.value_or(first);
    }
    etapy[e.NumerEtapu - 1] = packed(e.okno);
    const Bajty archiwum = assembleArchiwum(packedAutorGry(e.okno), etapy);
    if (archiwum.size() == ARCHIWUM_SIZE_BYTES)
        (void)keepCopy(*e.system, e.KatalogBazowy / sciezki::ARCHIWUM, archiwum, e.system->now(),
                       sciezki::ARCHIWUM_ENDING);
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
    const Bajty archiwum = assembleArchiwum(fillAutorGry(e), *etapy);
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
    keepEtap(e);
    keepGra(e);
    takeAutorGry(e, *archiwum);
    for (int number = 1; number <= ETAPY_COUNT; ++number)
        if (!writeKeeping(*e.system, sciezki::etap(e.KatalogBazowy, number), etapOf(*archiwum, number)))
            return;
    if (!writeAutorGry(e))
        return;
    (void)readOrCreateBiezacyEtap(e);
}

} // namespace dorva
