#include "output/obraz_gry.h"

#include "output/narzedzia.h"
#include "output/szablon.h"
#include "stage/etap.h"
#include "stage/zbior_etapow.h"

namespace dorva {
namespace {

constexpr std::string_view FILTR_GRY = "Plik gry|*.xex|Wszystkie pliki (*.*)|*.*";
constexpr std::string_view NAZWA_GRY = "Dorva - wyprawy.xex";
constexpr std::string_view LINIA_TESTU = "     TEST ETAPU     ";

std::optional<Bajty> readSzablon(Edytor& e) {
    return readFirst(e.system, e.KatalogBazowy / "PLIKI" / "DP2.DTA", GRA_SIZE_BYTES);
}

bool writeTestXex(Edytor& e, const Bajty& obraz) {
    return writeWhole(e.system, testXexPath(e), obraz);
}

// The launcher names its files relative to the base folder.
void offerRun(Edytor& e, const Komunikat& question) {
    std::error_code error;
    std::filesystem::current_path(e.KatalogBazowy, error);
    if (!error && askMessage(e.haki, question))
        RunEmulator(e);
}

} // namespace

std::filesystem::path testXexPath(const Edytor& e) {
    return e.KatalogBazowy / "PLIKI" / "TEST.XEX";
}

void cmdCreate_Click(Edytor& e) {
    PackEtap(e);
    if (!writeBiezacyEtap(e))
        return;
    auto obraz = readSzablon(e);
    if (!obraz)
        return;
    const auto etapy = readAllEtapy(e);
    if (!etapy)
        return;
    for (std::size_t i = 0; i < etapy->size(); ++i)
        splice(*obraz, rekordOffset(i), ETAP_SIZE_BYTES, (*etapy)[i]);
    spliceTytul(*obraz, {e.okno.txtAutorGry[0].tekst, e.okno.txtAutorGry[1].tekst, e.okno.txtAutorGry[2].tekst});
    if (obraz->size() != GRA_SIZE_BYTES) {
        askMessage(e.haki, komunikaty::NIE_MOZNA_GRY);
        return;
    }
    const auto path = askSavePath(e, {std::string(NAZWA_GRY), e.OstatniaSciezka, FILTR_GRY});
    if (!path || !writeChosen(e, *path, *obraz))
        return;
    if (!writeTestXex(e, *obraz))
        return;
    offerRun(e, komunikaty::GRA_UTWORZONA);
}

void cmdTest_Click(Edytor& e) {
    const Bajt ostatni = e.okno.chkOstatni;
    e.okno.chkOstatni = 1;
    PackEtap(e);
    e.okno.chkOstatni = ostatni;

    auto obraz = readSzablon(e);
    if (!obraz)
        return;
    splice(*obraz, rekordOffset(0), ETAP_SIZE_BYTES, e.obrazEtapu);
    spliceTytul(*obraz, {e.okno.txtAutorGry[0].tekst, Tekst::spaces(LINIA_WIDTH), Tekst{std::string(LINIA_TESTU)}});
    if (obraz->size() != GRA_SIZE_BYTES) {
        askMessage(e.haki, komunikaty::NIE_MOZNA_PLIKU);
        return;
    }
    if (!writeTestXex(e, *obraz))
        return;
    offerRun(e, komunikaty::TEST_UTWORZONY);
}

} // namespace dorva
