#include "shell/start.h"

#include "sciezki.h"
#include "stage/autor_gry.h"
#include "stage/etap.h"
#include "stage/kopie_ekranu.h"
#include "stage/zbior_etapow.h"
#include "system/pliki.h"
#include "tiles/kolory.h"
#include "tiles/paleta.h"
#include "tiles/zestaw.h"

#include <filesystem>
#include <string>
#include <system_error>

namespace dorva {
namespace {

constexpr std::string_view PODPIS = " - edytor etapów gry na Atari XL/XE";

void setTitle(Edytor& e, std::string_view version) {
    e.okno.caption = "Dorva Planszownik [wersja " + std::string(version) + "]" + std::string(PODPIS);
}

// The parent of the program's folder becomes the current directory and the start of the file dialogs.
void setFolders(Edytor& e, const std::filesystem::path& folder) {
    std::error_code error;
    e.KatalogBazowy = std::filesystem::absolute(folder, error);
    std::filesystem::current_path(e.KatalogBazowy / "..", error);
    e.OstatniaSciezka = std::filesystem::current_path(error);
}

// Removes what a killed run left beside the files that the editor writes.
void sweepLeftovers(const Edytor& e) {
    for (const auto& file : {sciezki::etap(e.KatalogBazowy, 1), e.KatalogBazowy / sciezki::AUTOR_GRY})
        sweepTemporary(*e.system, file.parent_path());
}

void loadColours(Edytor& e) {
    LoadPaleta(e);
    e.KoloryDomyslne = KOLORY_STARTOWE;
    for (int swiat = 0; swiat < SWIATY_COUNT; ++swiat)
        LoadKolory(e, swiat);
    showDomyslne(e, 0, 0, SLOTY_COUNT - 1);
}

// The part of start-up that ends without a message at its first failure.
void loadWork(Edytor& e) {
    if (!ScanZestawy(e))
        return;
    (void)SelectObiektyNR(e, 0);
    e.NumerEtapu = 1;
    SelectEtapNR(e, 0);
    if (!readOrCreateBiezacyEtap(e))
        return;
    readAutorGry(e);
}

} // namespace

void Form_Load(Edytor& e, const std::filesystem::path& folder, std::string_view version) {
    setTitle(e, version);
    setFolders(e, folder);
    sweepLeftovers(e);
    loadColours(e);
    loadWork(e);
}

void Form_QueryUnload(Edytor& e) {
    PackEtap(e);
    if (!writeBiezacyEtap(e))
        return;
    (void)writeAutorGry(e);
}

void Form_Unload(Edytor& e) {
    closePaleta(e);
    trimKopie(e);
}

} // namespace dorva
