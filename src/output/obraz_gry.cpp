#include "output/obraz_gry.h"

#include "output/narzedzia.h"
#include "output/szablon.h"
#include "sciezki.h"
#include "shell/komunikaty.h"
#include "stage/etap.h"
#include "stage/zapis_jako.h"
#include "stage/zbior_etapow.h"
#include "system/pliki.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace dorva {
namespace {

constexpr std::string_view FILTR_GRY = "Plik gry|*.xex|Wszystkie pliki (*.*)|*.*";
constexpr std::string_view NAZWA_GRY = "Dorva - wyprawy.xex";
constexpr std::string_view LINIA_TESTU = "     TEST ETAPU     ";

std::optional<SzablonGry> readOrCreateSzablon(const Edytor& e) {
    return readOrCreate(*e.system, e.KatalogBazowy / sciezki::SZABLON_GRY, GRA_SIZE_BYTES);
}

bool writeTestXex(const Edytor& e, const ObrazGry& gra) {
    return writeWhole(*e.system, e.KatalogBazowy / sciezki::TEST_XEX, gra);
}

// The launcher's paths are relative to the base folder.
void offerRun(Edytor& e, const Komunikat& question) {
    std::error_code error;
    std::filesystem::current_path(e.KatalogBazowy, error);
    if (!error && askMessage(e.haki, question))
        RunEmulator(e);
}

} // namespace

void cmdCreate_Click(Edytor& e) {
    PackEtap(e);
    if (!writeBiezacyEtap(e))
        return;
    const auto szablon = readOrCreateSzablon(e);
    if (!szablon)
        return;
    const auto etapy = readOrCreateAllEtapy(e);
    if (!etapy)
        return;
    const auto linia = [&](int index) -> const Tekst& { return e.okno.pola[TXT_AUTOR_GRY + index].tekst; };
    const ObrazGry gra = buildGra(*szablon, *etapy, {linia(0), linia(1), linia(2)});
    if (gra.size() != GRA_SIZE_BYTES) {
        askMessage(e.haki, komunikaty::NIE_MOZNA_GRY);
        return;
    }
    const auto path = askSavePath(e, {std::string(NAZWA_GRY), e.OstatniaSciezka, FILTR_GRY});
    if (!path || !writeChosen(e, *path, gra))
        return;
    if (!writeTestXex(e, gra))
        return;
    offerRun(e, komunikaty::GRA_UTWORZONA);
}

void cmdTest_Click(Edytor& e) {
    const Ostatni ostatni = e.okno.chkOstatni;
    e.okno.chkOstatni = 1;
    PackEtap(e);
    e.okno.chkOstatni = ostatni;

    const auto szablon = readOrCreateSzablon(e);
    if (!szablon)
        return;
    const Tekst& linia = e.okno.pola[TXT_AUTOR_GRY].tekst;
    const ObrazGry gra =
        buildGra(*szablon, {&e.image, 1}, {linia, Tekst::spaces(LINIA_WIDTH), Tekst{std::string(LINIA_TESTU)}});
    if (gra.size() != GRA_SIZE_BYTES) {
        askMessage(e.haki, komunikaty::NIE_MOZNA_PLIKU);
        return;
    }
    if (!writeTestXex(e, gra))
        return;
    offerRun(e, komunikaty::TEST_UTWORZONY);
}

} // namespace dorva
