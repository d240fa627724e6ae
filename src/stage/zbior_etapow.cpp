#include "stage/zbior_etapow.h"

#include "board/census.h"
#include "sciezki.h"
#include "shell/komunikaty.h"
#include "stage/etap.h"
#include "stage/kopie_ekranu.h"
#include "stage/pola.h"
#include "stage/zapis_jako.h"
#include "system/kopie.h"
#include "system/pliki.h"
#include "tiles/zestaw.h"

#include <filesystem>
#include <string_view>
#include <utility>

namespace dorva {
namespace {

constexpr std::string_view FILTR_ODCZYTU = "Etapy gry|DETAP.*|Wszystkie pliki (*.*)|*.*";
constexpr std::string_view FILTR_ZAPISU = "Etap gry|DETAP.*|Wszystkie pliki (*.*)|*.*";

constexpr int OSTATNI_INDEX = ETAPY_COUNT - 1;

// No stage follows stage 32, so its box is checked and can't be changed.
void applyLastStageRule(Edytor& e, int index) {
    if (index == OSTATNI_INDEX)
        (void)SetOstatni(e, 1);
    e.okno.chkOstatniEnabled = index != OSTATNI_INDEX;
}

// A cell of a cleared stage: earth within walls. The upper corners belong to the side walls, the lower ones to the
// bottom wall.
Znak clearedCell(int cell, Znak krawedz) {
    const int row = cell / PLANSZA_COLUMNS, column = cell % PLANSZA_COLUMNS;
    const bool side = column == 0 || column == PLANSZA_COLUMNS - 1;
    if (side && row != PLANSZA_ROWS - 1)
        return krawedz;
    return isEdge(cell) ? znak(kod(krawedz) + 1) : ZIEMIA;
}

// Reads the first 931 bytes of a file into the editor's image; zeros if that fails.
bool readOrCreateEtap(Edytor& e, const std::filesystem::path& path) {
    auto image = readOrCreate(*e.system, path, ETAP_SIZE_BYTES);
    e.image = image ? std::move(*image) : EtapImage(ETAP_SIZE_BYTES, 0);
    return image.has_value();
}

std::filesystem::path biezacyPath(const Edytor& e) {
    return sciezki::etap(e.KatalogBazowy, e.NumerEtapu);
}

} // namespace

void SelectEtapNR(Edytor& e, int index) {
    if (index == e.okno.optEtapNR)
        return;
    e.okno.optEtapNR = index;
    optEtapNR_Click(e, index);
}

void optEtapNR_Click(Edytor& e, int index) {
    PackEtap(e);
    if (!writeBiezacyEtap(e)) {
        e.okno.optEtapNR = e.NumerEtapu - 1;
        askMessage(e.haki, komunikaty::NIE_MOZNA_ETAPU);
        return;
    }
    e.NumerEtapu = index + 1;
    (void)readOrCreateBiezacyEtap(e);
    applyLastStageRule(e, index);
}

void cmdLoad_Click(Edytor& e) {
    const auto path = askOpen(e.haki, {"", e.OstatniaSciezka, FILTR_ODCZYTU});
    if (!path)
        return;
    e.OstatniaSciezka = *path;
    const auto length = lengthOf(*e.system, *path);
    if (!length)
        return;
    if (*length != ETAP_SIZE_BYTES) {
        askMessage(e.haki, komunikaty::ZLY_FORMAT);
        return;
    }
    if (!readOrCreateEtap(e, *path))
        return;
    keepEtap(e);
    (void)UnpackEtap(e);
}

void cmdSave_Click(Edytor& e) {
    PackEtap(e);
    if (e.image.size() != ETAP_SIZE_BYTES) {
        askMessage(e.haki, komunikaty::NIE_MOZNA_PLIKU);
        return;
    }
    const EtapImage image = e.image;
    const auto path = askSavePath(e, {sciezki::nazwaEtapu(e.NumerEtapu), e.OstatniaSciezka, FILTR_ZAPISU});
    if (!path || !writeChosen(e, *path, image))
        return;
    askMessage(e.haki, komunikaty::ETAP_ZAPISANY);
}

void cmdCzysc_Click(Edytor& e) {
    if (!askMessage(e.haki, komunikaty::CZYSZCZENIE))
        return;
    keepEtap(e);
    ClearEtap(e);
    e.okno.txtAutorEnabled = true;
}

void ClearEtap(Edytor& e) {
    const Znak krawedz = KodKrawedzi(e.okno);
    for (int i = 0; i < PLANSZA_CELLS; ++i)
        e.okno.imgPG[i].znak = clearedCell(i, krawedz);
    ShowZestaw(e, e.okno.optObiektyNR);
    (void)SetMonet(e, CEL_MIN);
    RefreshInfo(e);
    SetTekst(e.okno, POLE_NAZWA, Tekst::spaces(NAZWA_WIDTH));
    SetTekst(e.okno, POLE_AUTOR, Tekst::spaces(AUTOR_WIDTH));
}

bool writeBiezacyEtap(Edytor& e) {
    return e.image.size() == ETAP_SIZE_BYTES && writeKeeping(*e.system, biezacyPath(e), e.image);
}

bool readOrCreateBiezacyEtap(Edytor& e) {
    return readOrCreateEtap(e, biezacyPath(e)) && UnpackEtap(e);
}

std::optional<std::array<EtapImage, ETAPY_COUNT>> readOrCreateAllEtapy(const Edytor& e) {
    std::array<EtapImage, ETAPY_COUNT> etapy;
    for (int i = 0; i < ETAPY_COUNT; ++i) {
        auto image = readOrCreate(*e.system, sciezki::etap(e.KatalogBazowy, i + 1), ETAP_SIZE_BYTES);
        if (!image)
            return std::nullopt;
        etapy[i] = std::move(*image);
    }
    return etapy;
}

} // namespace dorva
