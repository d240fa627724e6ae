#include "stage/zbior_etapow.h"

#include "board/census.h"
#include "stage/etap.h"
#include "tiles/zestaw.h"

#include <algorithm>

namespace dorva {
namespace {

constexpr std::string_view FILTR_ODCZYTU = "Etapy gry|DETAP.*|Wszystkie pliki (*.*)|*.*";
constexpr std::string_view FILTR_ZAPISU = "Etap gry|DETAP.*|Wszystkie pliki (*.*)|*.*";

constexpr int OSTATNI_INDEX = ETAPY_COUNT - 1;

// Stage 32 is always the last one of the game.
void applyLastStageRule(Edytor& e, int index) {
    if (index == OSTATNI_INDEX)
        (void)SetOstatni(e, 1);
    e.okno.chkOstatniEnabled = index != OSTATNI_INDEX;
}

// The walled field of a cleared stage. The corners follow from the order: row 0 ends up with the side
// walls at its ends, row 19 with the bottom wall.
Znak clearedCell(int cell, Znak krawedz) {
    const int row = cell / PLANSZA_COLUMNS, column = cell % PLANSZA_COLUMNS;
    const bool side = column == 0 || column == PLANSZA_COLUMNS - 1;
    if (side && row != PLANSZA_ROWS - 1)
        return krawedz;
    return isEdge(cell) ? znak(kod(krawedz) + 1) : ZIEMIA;
}

} // namespace

std::filesystem::path etapPath(const Edytor& e, int number) {
    return e.KatalogBazowy / "ETAPY" / ("DETAP." + std::to_string(number));
}

std::filesystem::path autorGryPath(const Edytor& e) {
    return e.KatalogBazowy / "PLIKI" / "DP1.DTA";
}

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
    (void)readEtap(e, e.NumerEtapu);
    applyLastStageRule(e, index);
}

void cmdLoad_Click(Edytor& e) {
    const auto path = askOpen(e.haki, {"", e.OstatniaSciezka, FILTR_ODCZYTU});
    if (!path)
        return;
    e.OstatniaSciezka = *path;
    const auto length = lengthOf(e.system, *path);
    if (!length)
        return;
    if (*length != ETAP_SIZE_BYTES) {
        askMessage(e.haki, komunikaty::ZLY_FORMAT);
        return;
    }
    e.obrazEtapu.assign(ETAP_SIZE_BYTES, 0);
    auto image = readFirst(e.system, *path, ETAP_SIZE_BYTES);
    if (!image)
        return;
    e.obrazEtapu = std::move(*image);
    (void)UnpackEtap(e);
}

void cmdSave_Click(Edytor& e) {
    PackEtap(e);
    if (e.obrazEtapu.size() != ETAP_SIZE_BYTES) {
        askMessage(e.haki, komunikaty::NIE_MOZNA_PLIKU);
        return;
    }
    const Bajty image = e.obrazEtapu;
    const auto path = askSavePath(e, {"DETAP." + std::to_string(e.NumerEtapu), e.OstatniaSciezka, FILTR_ZAPISU});
    if (!path || !writeChosen(e, *path, image))
        return;
    askMessage(e.haki, komunikaty::ETAP_ZAPISANY);
}

void cmdCzysc_Click(Edytor& e) {
    if (!askMessage(e.haki, komunikaty::CZYSZCZENIE))
        return;
    ClearEtap(e);
    e.okno.txtAutorEnabled = true;
}

void ClearEtap(Edytor& e) {
    const Znak krawedz = KodKrawedzi(e.okno);
    for (int i = 0; i < PLANSZA_CELLS; ++i)
        e.okno.imgPG[static_cast<std::size_t>(i)].znak = clearedCell(i, krawedz);
    ShowZestaw(e, e.okno.optObiektyNR);
    e.okno.lblInfo[3].caption = std::to_string(CEL_MIN);
    (void)SetMonet(e, CEL_MIN);
    RefreshInfo(e);
    SetTekst(e.okno.txtNazwa, Tekst::spaces(NAZWA_WIDTH));
    SetTekst(e.okno.txtAutor, Tekst::spaces(AUTOR_WIDTH));
}

bool writeBiezacyEtap(Edytor& e) {
    if (e.obrazEtapu.size() != ETAP_SIZE_BYTES)
        return false;
    const auto path = etapPath(e, e.NumerEtapu);
    const bool written =
        e.etapPrzejety ? writeWhole(e.system, path, e.obrazEtapu) : writeKeepingOld(e.system, path, e.obrazEtapu);
    e.etapPrzejety = e.etapPrzejety || written;
    return written;
}

Bajty autorGryBytes(Edytor& e) {
    Bajty bytes;
    for (std::size_t i = 0; i < e.okno.txtAutorGry.size(); ++i) {
        if (e.okno.txtAutorGry[i].tekst.size() < LINIA_WIDTH)
            leaveAutorGry(e, static_cast<int>(i));
        const Bajty linia = e.okno.txtAutorGry[i].tekst.bytes();
        bytes.insert(bytes.end(), linia.begin(), linia.end());
    }
    return bytes;
}

bool writeAutorGry(Edytor& e) {
    const Bajty bytes = autorGryBytes(e);
    if (bytes.size() != AUTOR_GRY_SIZE_BYTES)
        return false;
    const bool written = e.autorPrzejety ? writeWhole(e.system, autorGryPath(e), bytes)
                                         : writeKeepingOld(e.system, autorGryPath(e), bytes);
    e.autorPrzejety = e.autorPrzejety || written;
    return written;
}

bool readEtap(Edytor& e, int number) {
    e.etapPrzejety = false;
    e.obrazEtapu.assign(ETAP_SIZE_BYTES, 0);
    auto image = readFirst(e.system, etapPath(e, number), ETAP_SIZE_BYTES);
    if (!image)
        return false;
    e.obrazEtapu = std::move(*image);
    if (!UnpackEtap(e))
        return false;
    e.etapPrzejety = lengthOf(e.system, etapPath(e, number)) == ETAP_SIZE_BYTES;
    return true;
}

std::optional<std::array<Bajty, ETAPY_COUNT>> readAllEtapy(Edytor& e) {
    std::array<Bajty, ETAPY_COUNT> etapy;
    for (int number = 1; number <= ETAPY_COUNT; ++number) {
        auto image = readFirst(e.system, etapPath(e, number), ETAP_SIZE_BYTES);
        if (!image)
            return std::nullopt;
        etapy[static_cast<std::size_t>(number - 1)] = std::move(*image);
    }
    return etapy;
}

std::optional<std::filesystem::path> askSavePath(Edytor& e, const DialogPliku& dialog) {
    auto path = askSave(e.haki, dialog);
    if (!path)
        return std::nullopt;
    if (fileExists(e.system, *path) && !askMessage(e.haki, komunikaty::ZASTAPIC))
        return std::nullopt;
    e.OstatniaSciezka = *path;
    return path;
}

bool writeChosen(Edytor& e, const std::filesystem::path& path, std::span<const Bajt> bytes) {
    sweepTemporary(e.system, std::array{path});
    if (!writeWhole(e.system, path, bytes))
        return false;
    if (isSameFile(e.system, path, etapPath(e, e.NumerEtapu)))
        e.etapPrzejety = std::ranges::equal(bytes, e.obrazEtapu);
    if (isSameFile(e.system, path, autorGryPath(e)))
        e.autorPrzejety = false;
    return true;
}

} // namespace dorva
