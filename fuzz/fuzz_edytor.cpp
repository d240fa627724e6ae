// A model of the whole editor: the bytes drive its operations on files in memory, any file call of which
// may fail, and after each the invariants hold.
#include "board/bufor.h"
#include "board/plansza.h"
#include "niezmienniki.h"
#include "output/obraz_gry.h"
#include "output/szablon.h"
#include "pamiec.h"
#include "shell/start.h"
#include "stage/archiwum.h"
#include "stage/pola.h"
#include "tiles/kolory.h"
#include "tiles/paleta.h"
#include "tiles/zestaw.h"

#include <iterator>

using namespace dorva;
using fuzz::pamiec;
using fuzz::Strumien;

namespace {

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
    e.system = fuzz::systemPamieci();
    e.KatalogBazowy = "/p";
    e.haki.messageBox = [](const Komunikat&) { return input->byte() % 4 != 0; };
    e.haki.openDialog = e.haki.saveDialog = [](const DialogPliku&) { return anyPath(); };
    e.haki.startProgram = [](const std::filesystem::path&, OknoProgramu) {};
    return e;
}

void plant(Edytor& e) {
    const int number = input->byte() % ETAPY_COUNT + 1;
    const std::size_t length = input->byte() < 200 ? ETAP_SIZE_BYTES : static_cast<std::size_t>(input->below(1863));
    Bajty bytes = input->filled(length / 8);
    bytes.resize(length, 1);
    pamiec.put(etapPath(e, number).string(), bytes);
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
        const Pole pole = static_cast<Pole>(input->byte() % 5);
        txt_Change(e, pole, Tekst::fromBytes(input->take(static_cast<std::size_t>(input->byte() % 80))));
    },
    [](Edytor& e) { txt_LostFocus(e, static_cast<Pole>(input->byte() % 5)); },
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
    Form_QueryUnload,
    plant,
    [](Edytor&) { pamiec.failAt = input->byte() + 1; },
};

using Stan = std::map<std::string, Bajty>;

// The stage files; a content that leaves them must be the editor's own or stay as a copy.
Stan stageFiles() {
    Stan files;
    for (const auto& [name, bytes] : pamiec.pliki)
        if (name.starts_with("/p/ETAPY/"))
            files[name] = *bytes;
    return files;
}

void checkFiles(const Stan& before, const Stan& after) {
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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Edytor fresh = freshEditor();
    static const auto szablon = std::make_shared<Bajty>(GRA_SIZE_BYTES, Bajt{7});
    Strumien stream{{data, size}};
    input = &stream;
    pamiec = {};
    pamiec.pliki["/p/PLIKI/DP2.DTA"] = szablon;
    Edytor e = fresh;
    (void)readEtap(e, 1);
    for (int steps = 0; !stream.empty() && steps < 200; ++steps) {
        const auto operation = OPERACJE[static_cast<std::size_t>(stream.byte()) % std::size(OPERACJE)];
        const Stan before = stageFiles();
        operation(e);
        if (operation != +plant)
            checkFiles(before, stageFiles());
        SPRAWDZ(e.NumerEtapu >= 1 && e.NumerEtapu <= ETAPY_COUNT);
        SPRAWDZ(e.okno.optEtapNR == e.NumerEtapu - 1);
        SPRAWDZ(e.okno.chkOstatniEnabled == (e.NumerEtapu != ETAPY_COUNT));
        SPRAWDZ(e.okno.lblKodBufor[0] == std::to_string(kod(e.okno.imgBufor.znak)));
        SPRAWDZ(e.okno.txtAutor.tekst.size() <= AUTOR_WIDTH && !e.okno.txtAutor.tekst.znaki.empty());
    }
    Edytor twin = e;
    fuzz::checkPack(twin);
    return 0;
}
