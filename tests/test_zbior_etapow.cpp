#include "desk.h"
#include "output/obraz_gry.h"
#include "stage/archiwum.h"
#include "stage/etap.h"
#include "stage/zbior_etapow.h"

namespace dorva::test {
namespace {

class StageFiles : public Desk {};

TEST_F(StageFiles, LastStageRule) {
    Bajty last = sampleEtap(32);
    last[uklad::OSTATNI] = 0;
    writeFile(etap(32), last);
    start();
    SelectEtapNR(e, 31);
    EXPECT_EQ(e.okno.chkOstatni, 1);
    EXPECT_FALSE(e.okno.chkOstatniEnabled);
    chosen = etap(5);
    cmdLoad_Click(e);
    EXPECT_EQ(e.okno.chkOstatni, 0) << "a load does not apply the rule";
    SelectEtapNR(e, 4);
    EXPECT_TRUE(e.okno.chkOstatniEnabled);
    EXPECT_EQ(e.okno.chkOstatni, 0);
}

TEST_F(StageFiles, LoadTakesOnlyFilesOf931Bytes) {
    start();
    chosen = root / "obcy";
    writeFile(*chosen, Bajty(932, 1));
    cmdLoad_Click(e);
    EXPECT_EQ(shown, std::vector<std::string>{"Niewłaściwy format pliku!"});
    EXPECT_EQ(e.OstatniaSciezka, *chosen);
    writeFile(root / "obcy", sampleEtap(17));
    cmdLoad_Click(e);
    EXPECT_EQ(e.okno.hscMonet, 17);
    EXPECT_EQ(e.NumerEtapu, 1);
    Form_QueryUnload(e);
    EXPECT_EQ(readFile(etap(1)), sampleEtap(17));

    chosen = root / "nie ma";
    cmdLoad_Click(e);
    chosen.reset();
    cmdLoad_Click(e);
    EXPECT_EQ(shown.size(), 1U);
    EXPECT_EQ(e.OstatniaSciezka, root / "nie ma");
    EXPECT_FALSE(fs::exists(root / "nie ma"));
}

TEST_F(StageFiles, SaveAsksBeforeItReplaces) {
    start();
    SelectEtapNR(e, 6);
    chosen = root / "kopia etapu";
    cmdSave_Click(e);
    EXPECT_EQ(shown, std::vector<std::string>{"Dane etapu zostały pomyślnie zapisane"});
    EXPECT_EQ(readFile(*chosen), sampleEtap(7));

    writeFile(root / "inny", {1, 2, 3});
    chosen = root / "inny";
    answers = {false};
    cmdSave_Click(e);
    EXPECT_EQ(shown.back(), "Plik już istnieje!\nZastąpić?");
    EXPECT_EQ(readFile(root / "inny"), (Bajty{1, 2, 3}));
    EXPECT_EQ(e.OstatniaSciezka, root / "kopia etapu");

    chosen = root / "brak" / "folderu";
    cmdSave_Click(e);
    EXPECT_EQ(shown.size(), 2U);
    EXPECT_EQ(e.OstatniaSciezka, *chosen);
}

TEST_F(StageFiles, ShortTextsAreFilledAndLongOnesNeverReachAFile) {
    start();
    e.okno.pola[TXT_NAZWA].tekst = ascii("ala");
    e.okno.pola[TXT_AUTOR].tekst = ascii(std::string(64, 'q'));
    e.okno.pola[TXT_AUTOR_GRY + 1].tekst = ascii("ola");
    Form_QueryUnload(e);
    EXPECT_EQ(readFile(etap(1))[uklad::NAZWA + 15], 33);
    EXPECT_EQ(e.okno.pola[TXT_AUTOR].tekst.znaki, std::string(64, 'q')) << "full texts stay as they are";
    EXPECT_EQ(readFile(base / "PLIKI/DP1.DTA")[20], 'O');

    chosen = root / "plik";
    e.okno.pola[TXT_AUTOR_GRY + 1].tekst = ascii(std::string(21, 'A'));
    const Bajty lines = readFile(base / "PLIKI/DP1.DTA");
    cmdCreate_Click(e);
    cmdSaveArch_Click(e);
    e.okno.pola[TXT_AUTOR_GRY].tekst = ascii(std::string(21, 'A'));
    cmdTest_Click(e);
    e.okno.pola[TXT_NAZWA].tekst = ascii(std::string(33, 'A'));
    cmdSave_Click(e);
    SelectEtapNR(e, 1);
    const std::string wrong = "Coś poszło źle...\n";
    ASSERT_EQ(shown.size(), 4U);
    EXPECT_TRUE(shown[3].starts_with("Nie można zapisać etapu."));
    shown.pop_back();
    EXPECT_EQ(shown, (std::vector<std::string>{wrong + "Nie można utworzyć gry.", wrong + "Nie można utworzyć pliku.",
                                               wrong + "Nie można utworzyć pliku."}));
    EXPECT_EQ(readFile(base / "PLIKI/DP1.DTA"), lines);
    EXPECT_EQ(readFile(etap(1)).size(), ETAP_SIZE_BYTES);
    EXPECT_FALSE(fs::exists(*chosen) || fs::exists(base / "PLIKI/TEST.XEX"));
    chosen = "";
    e.okno.pola[TXT_NAZWA].tekst = ascii("");
    cmdSave_Click(e);
    EXPECT_EQ(shown.size(), 3U) << "a dialog that names no file is cancelled";
}

TEST_F(StageFiles, ClearBuildsTheWalledField) {
    start();
    answers = {false, true};
    cmdCzysc_Click(e);
    EXPECT_EQ(cell(5, 5), znak(5));
    for (PokazanyZnak& pokazany : e.okno.imgPG)
        pokazany.znak = BOMBA;
    cmdCzysc_Click(e);
    EXPECT_TRUE(e.okno.txtAutorEnabled);
    EXPECT_EQ(shown.back(), "Czyszczenie usunie całą zawartość mapy!\nKontynuować?");
    for (int i = 0; i < PLANSZA_CELLS; ++i) {
        const int row = i / 40, column = i % 40;
        const bool side = column == 0 || column == 39;
        const int expected = row == 19 ? 6 : side ? 5 : row == 0 ? 6 : 1;
        ASSERT_EQ(kod(cell(row, column)), expected) << i;
    }
    EXPECT_EQ(e.okno.hscMonet, 1);
    EXPECT_EQ(e.okno.etapInfo.celMasek, 1);
    EXPECT_EQ(e.okno.pola[TXT_NAZWA].tekst, Tekst::spaces(32));
    EXPECT_EQ(readFile(etap(1)), sampleEtap(1));
    e.okno.optNN = 1;
    ClearEtap(e);
    PackEtap(e);
    EXPECT_EQ(kod(cell(0, 5)), 133) << "134 is not among the edge's kept values";
}

} // namespace
} // namespace dorva::test
