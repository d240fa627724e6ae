#include "output/obraz_gry.h"
#include "pulpit.h"
#include "stage/archiwum.h"
#include "system/system_plikow.h"

namespace dorva::test {
namespace {

class ZbiorEtapow : public Pulpit {};

// What another program, a second editor or the user puts in the place of a known file.
TEST_F(ZbiorEtapow, WhatOthersWroteInTheMeantimeIsKeptAside) {
    start();
    Edytor second;
    attach(second);
    Form_Load(second, base, "1.0.2");
    second.okno.imgPG[205].znak = BOMBA;
    SelectEtapNR(second, 1);
    const Bajty stage = readFile(etap(1)), lines(60, 'O');
    writeFile(base / "PLIKI/DP1.DTA", lines);
    cell(5, 5) = MASKA;
    SelectEtapNR(e, 1);
    EXPECT_EQ(readFile(base / "ETAPY/DETAP.1.kopia"), stage);
    EXPECT_EQ(readFile(etap(1))[uklad::PLANSZA + 205], 12);
    writeFile(etap(2), stage);
    chosen = root / "gra.dpa";
    cmdSaveArch_Click(e);
    EXPECT_EQ(readFile(base / "ETAPY/DETAP.2.kopia"), stage);
    EXPECT_EQ(readFile(base / "PLIKI/DP1.DTA.kopia"), lines);
    writeFile(etap(2), stage);
    cmdLoadArch_Click(e);
    EXPECT_EQ(readFile(base / "ETAPY/DETAP.2.kopia2"), stage);
    Form_QueryUnload(e);
    EXPECT_EQ(namesIn("ETAPY").size(), 35U);
}

TEST_F(ZbiorEtapow, OrdinaryWorkMakesNoCopies) {
    start();
    for (int index : {1, 0, 2, 31, 2}) {
        cell(5, 5) = znak(index);
        SelectEtapNR(e, index);
        cell(6, 6) = MASKA;
        chosen = etap(e.NumerEtapu);
        cmdSave_Click(e);
        writeFile(*chosen, sampleEtap(9)); // by another program, and then read
        cmdLoad_Click(e);
    }
    for (const char* name : {"a", "a"}) {
        chosen = root / name;
        cmdSaveArch_Click(e);
        cmdLoadArch_Click(e);
        cmdCreate_Click(e);
    }
    Form_QueryUnload(e);
    EXPECT_EQ(namesIn("ETAPY").size(), 32U);
    EXPECT_EQ(namesIn("PLIKI").size(), 3U);
}

// The folder of the stages answers with errors for a while: at the start, and while a stage is saved elsewhere.
TEST_F(ZbiorEtapow, AStageThatCouldNotBeReadIsKeptAside) {
    static bool broken = true;
    static const auto fails = [](const fs::path& path) { return broken && path.parent_path().filename() == "ETAPY"; };
    SystemPlikow system = SYSTEM_PLIKOW;
    system.open = [](const fs::path& path, Otwarcie otwarcie, Uchwyt& file) {
        return fails(path) ? Wynik::Blad : SYSTEM_PLIKOW.open(path, otwarcie, file);
    };
    system.stat = [](const fs::path& path, OpisPliku& opis) {
        return fails(path) ? Wynik::Blad : SYSTEM_PLIKOW.stat(path, opis);
    };
    e.system = &system;
    start();
    chosen = root / "obok";
    cmdSave_Click(e);
    EXPECT_EQ(shown.size(), 1U);
    broken = false;
    Form_QueryUnload(e);
    EXPECT_EQ(readFile(base / "ETAPY/DETAP.1.kopia"), sampleEtap(1));
}

TEST_F(ZbiorEtapow, LastStageRule) {
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

TEST_F(ZbiorEtapow, LoadTakesOnlyFilesOf931Bytes) {
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

TEST_F(ZbiorEtapow, SaveAsksBeforeItReplaces) {
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

TEST_F(ZbiorEtapow, ShortTextsAreFilledAndLongOnesNeverReachAFile) {
    start();
    e.okno.txtNazwa.tekst = ascii("ala");
    e.okno.txtAutor.tekst = ascii(std::string(64, 'q'));
    e.okno.txtAutorGry[1].tekst = ascii("ola");
    Form_QueryUnload(e);
    EXPECT_EQ(readFile(etap(1))[uklad::NAZWA + 15], 33);
    EXPECT_EQ(e.okno.txtAutor.tekst.znaki, std::string(64, 'q')) << "full texts stay as they are";
    EXPECT_EQ(readFile(base / "PLIKI/DP1.DTA")[20], 'O');

    chosen = root / "plik";
    e.okno.txtAutorGry[1].tekst = ascii(std::string(21, 'A'));
    const Bajty lines = readFile(base / "PLIKI/DP1.DTA");
    cmdCreate_Click(e);
    cmdSaveArch_Click(e);
    e.okno.txtAutorGry[0].tekst = ascii(std::string(21, 'A'));
    cmdTest_Click(e);
    e.okno.txtNazwa.tekst = ascii(std::string(33, 'A'));
    cmdSave_Click(e);
    SelectEtapNR(e, 1);
    const std::string wrong = "Coś poszło źle...\n";
    EXPECT_EQ(shown, (std::vector<std::string>{wrong + "Nie można utworzyć gry.", wrong + "Nie można utworzyć pliku.",
                                               wrong + "Nie można utworzyć pliku.", "Nie można zapisać etapu."}));
    EXPECT_EQ(readFile(base / "PLIKI/DP1.DTA"), lines);
    EXPECT_EQ(readFile(etap(1)).size(), ETAP_SIZE_BYTES);
    EXPECT_FALSE(fs::exists(*chosen) || fs::exists(base / "PLIKI/TEST.XEX"));
    chosen = "";
    e.okno.txtNazwa.tekst = ascii("");
    cmdSave_Click(e);
    EXPECT_EQ(shown.size(), 4U) << "a dialog that names no file is cancelled";
}

TEST_F(ZbiorEtapow, ClearBuildsTheWalledField) {
    start();
    answers = {false, true};
    cmdCzysc_Click(e);
    EXPECT_EQ(cell(5, 5), znak(5));
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
    EXPECT_EQ(e.okno.lblInfo[info::CEL_MASEK].liczba, 1);
    EXPECT_EQ(e.okno.txtNazwa.tekst, Tekst::spaces(32));
    EXPECT_EQ(readFile(etap(1)), sampleEtap(1));
    e.okno.optNN = 1;
    ClearEtap(e);
    PackEtap(e);
    EXPECT_EQ(kod(cell(0, 5)), 133) << "134 is not among the edge's kept values";
}

} // namespace
} // namespace dorva::test
