// A model of the whole editor: the bytes drive its operations on files in memory, any file call of which
// may fail, and after each the invariants hold.
#include "board/bufor.h"
#include "board/census.h"
#include "board/plansza.h"
#include "output/obraz_gry.h"
#include "output/szablon.h"
#include "pamiec.h"
#include "sciezki.h"
#include "shell/start.h"
#include "sprawdz.h"
#include "stage/archiwum.h"
#include "stage/autor_gry.h"
#include "stage/etap.h"
#include "stage/pola.h"
#include "stage/zbior_etapow.h"
#include "tiles/kolory.h"
#include "tiles/paleta.h"
#include "tiles/zestaw.h"

#include <iterator>

using namespace dorva;
using test::pamiec, test::Pliki;

namespace {

// The given bytes, from the first to the last; zeros when they are used up.
struct Strumien {
    std::span<const Bajt> left;

    std::span<const Bajt> take(std::size_t count) {
        const auto taken = left.first(std::min(count, left.size()));
        left = left.subspan(taken.size());
        return taken;
    }
    int byte() {
        const auto taken = take(1);
        return taken.empty() ? 0 : taken[0];
    }
    int below(int limit) { return (byte() << 8 | byte()) % limit; }
};

Strumien* input; // the hooks answer from it

std::optional<std::filesystem::path> anyPath() {
    const int choice = input->byte();
    if (choice < 16)
        return std::nullopt;
    if (choice < 80)
        return "/p/ETAPY/DETAP." + std::to_string(choice % ETAPY_COUNT + 1);
    return choice < 100 ? "/p/PLIKI/DP1.DTA" : "/wolny" + std::to_string(choice % 3);
}

Edytor freshEditor() {
    Edytor e;
    e.system = test::systemPamieci();
    e.KatalogBazowy = "/p";
    e.haki.messageBox = [](const Komunikat&) { return input->byte() % 4 != 0; };
    e.haki.openDialog = e.haki.saveDialog = [](const DialogPliku&) { return anyPath(); };
    e.haki.startProgram = [](const std::filesystem::path&, OknoProgramu) {};
    return e;
}

// Puts a file where the editor looks for one: of the length that it has there, or of another.
void plant(Edytor&) {
    const std::string etap = "/p/ETAPY/" + sciezki::nazwaEtapu(input->byte() % ETAPY_COUNT + 1);
    const std::pair<std::string, std::size_t> places[] = {{etap, ETAP_SIZE_BYTES},
                                                          {"/wolny0", ARCHIWUM_SIZE_BYTES},
                                                          {"/p/PLIKI/DP1.DTA", AUTOR_GRY_SIZE_BYTES},
                                                          {"/p/PLIKI/PALETY/Bitwor.act", PALETA_SIZE_BYTES},
                                                          {"/p/" + std::string(sciezki::KOLORY[1]), KOLORY_SIZE_BYTES}};
    const auto& [path, length] = places[input->byte() % std::size(places)];
    const std::size_t size = input->byte() < 200 ? length : input->below(1863);
    const auto given = input->take(size / 8);
    Bajty bytes;
    while (!given.empty() && bytes.size() + given.size() <= size)
        bytes.insert(bytes.end(), given.begin(), given.end());
    bytes.resize(size, 1);
    pamiec.put(path, bytes);
}

using Operacja = void (*)(Edytor&);
constexpr Operacja OPERACJE[] = {
    [](Edytor& e) { imgPG_MouseDown(e, input->below(PLANSZA_CELLS), input->byte() % 8); },
    [](Edytor& e) { imgPG_MouseMove(e, input->below(PLANSZA_CELLS), input->byte() % 8); },
    [](Edytor& e) { imgZnak_Click(e, input->byte() % ZNAKI_COUNT); },
    [](Edytor& e) { SelectEtapNR(e, input->byte() % ETAPY_COUNT); },
    [](Edytor& e) { SelectNN(e, input->byte() % 2); },
    [](Edytor& e) { (void)SelectObiektyNR(e, input->byte() % 4); },
    [](Edytor& e) {
        const Pole& pole = POLA[input->byte() % POLA.size()];
        txt_Change(e, pole, Tekst::fromBytes(input->take(input->byte() % 80)));
    },
    [](Edytor& e) { txt_LostFocus(e, POLA[input->byte() % POLA.size()]); },
    [](Edytor& e) { (void)SetMonet(e, input->byte()); },
    [](Edytor& e) { lblInfo_Click(e, input->byte() % 11); },
    [](Edytor& e) { PickKolor(e, input->byte() % SLOTY_COUNT); },
    [](Edytor& e) { picPaleta_Click(e, input->byte() % 128); },
    [](Edytor& e) { e.okno.chkZachowajKolory = !e.okno.chkZachowajKolory; },
    [](Edytor& e) { e.okno.optPPM = input->byte() % 2; },
    cmdSave_Click,
    cmdLoad_Click,
    cmdCzysc_Click,
    cmdSaveArch_Click,
    cmdLoadArch_Click,
    cmdCreate_Click,
    cmdTest_Click,
    cmdResetKolory_Click,
    cmdReload_Click,
    LoadPaleta,
    [](Edytor& e) {
        e = freshEditor();
        Form_Load(e, "/p", "1.0.2");
    },
    Form_QueryUnload,
    plant,
    [](Edytor&) { pamiec.awaria = {.at = input->byte() + 1}; },
};

// A content that leaves a stage file must be the editor's own or stay as a copy.
void checkFiles(const Pliki& before, const Pliki& after) {
    for (const auto& [name, bytes] : after) {
        const auto old = before.find(name);
        const bool changed = old == before.end() || old->second != bytes;
        const bool chosen = bytes.size() == GRA_SIZE_BYTES || bytes.size() == ARCHIWUM_SIZE_BYTES;
        const bool kept = name.find(".kopia") != std::string::npos;
        const bool created = old == before.end() && bytes.empty();
        const bool temporary = name.ends_with(".dp-tmp"); // its removal was the call that failed
        SPRAWDZ(!changed || bytes.size() == ETAP_SIZE_BYTES || chosen || kept || created || temporary);
    }
    for (const auto& [name, bytes] : before)
        SPRAWDZ(after.contains(name) || name.ends_with(".dp-tmp"));
}

// Packs the stage, then unpacks and packs it once more: 931 bytes that stay, an edge of its three codes.
void checkPack(Edytor e) {
    PackEtap(e);
    SPRAWDZ(e.image.size() == ETAP_SIZE_BYTES);
    const Bajty first = e.image;
    SPRAWDZ(UnpackEtap(e));
    PackEtap(e);
    SPRAWDZ(e.image == first);
    const int wall = kod(KodKrawedzi(e.okno));
    for (int i = 0; i < PLANSZA_CELLS; ++i) {
        const int code = first[uklad::PLANSZA + i];
        SPRAWDZ(code != kod(DORVA_INV) && (!isEdge(i) || code == 0 || code == 5 || code == 6 || code == wall));
    }
    SPRAWDZ(e.okno.lblInfo[info::CEL_MASEK].liczba == e.okno.hscMonet);
    for (info::Figura unikat : {info::DORVA, info::WYJSCIE, info::MASZYNY, info::POCHODNIA}) {
        const Znak z = ZNAKI_INFO[unikat];
        const bool stands =
            std::ranges::any_of(e.okno.imgPG, [&](const auto& cell) { return kod(cell.znak) % INV == kod(z); });
        SPRAWDZ(e.okno.imgZnak[kod(z)].enabled == !stands && !(stands && e.okno.imgBufor.znak == z));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Edytor fresh = freshEditor();
    static const auto szablon = std::make_shared<test::Plik>(test::Plik{Bajty(GRA_SIZE_BYTES, 7), {}});
    Strumien stream{{data, size}};
    input = &stream;
    pamiec = {};
    pamiec.nazwy["/p/PLIKI/DP2.DTA"] = szablon;
    for (const char* name : {"A.ND", "B.ND", "C.ND"})
        pamiec.put(std::string("/p/OBIEKTY/ORN_EXPORT/") + name, {});
    Edytor e = fresh;
    (void)readOrCreateBiezacyEtap(e);
    for (int steps = 0; !stream.left.empty() && steps < 200; ++steps) {
        const auto operation = OPERACJE[stream.byte() % std::size(OPERACJE)];
        const Pliki before = pamiec.files("/p/ETAPY/");
        operation(e);
        if (operation != plant)
            checkFiles(before, pamiec.files("/p/ETAPY/"));
        SPRAWDZ(e.NumerEtapu >= 1 && e.NumerEtapu <= ETAPY_COUNT);
        SPRAWDZ(e.okno.optEtapNR == e.NumerEtapu - 1);
        SPRAWDZ(e.okno.chkOstatniEnabled == (e.NumerEtapu != ETAPY_COUNT));
        SPRAWDZ(e.okno.lblKodBufor[0] == std::to_string(kod(e.okno.imgBufor.znak)));
        SPRAWDZ(e.okno.txtAutor.tekst.size() <= AUTOR_WIDTH && !e.okno.txtAutor.tekst.znaki.empty());
    }
    checkPack(e);
    return 0;
}
