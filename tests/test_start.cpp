#include "desk.h"
#include "output/narzedzia.h"
#include "output/obraz_gry.h"
#include "stage/archiwum.h"
#include "stage/pola.h"
#include "stage/zbior_etapow.h"

#include <stdexcept>
#include <utility>

namespace dorva::test {
namespace {

class Start : public Desk {};

TEST_F(Start, DefaultStateHoldsWithoutStageOne) {
    fs::remove(etap(1));
    start();
    EXPECT_EQ(cell(0, 7), MUREK_PIONOWY);
    EXPECT_EQ(cell(7, 7), ZIEMIA);
    EXPECT_EQ(e.okno.lblKolor[4].value, 180);
    EXPECT_EQ(e.okno.pola[TXT_AUTOR_GRY].tekst.znaki, "DORVA PLANSZOWNIK!  ") << "title lines aren't read then";
    EXPECT_EQ(fs::file_size(etap(1)), 0U);
    Form_QueryUnload(e);
    EXPECT_EQ(namesIn("PLIKI/KOPIE/DP1.DTA").size(), 1U);
    EXPECT_EQ(namesIn("ETAPY").size(), 32U) << "an empty file is worth no copy";
}

TEST_F(Start, TooFewTileSetNamesEndStartUp) {
    for (int names : {0, 1, 2, 3, 4}) {
        for (const std::string& name : namesIn("OBIEKTY/ORN_EXPORT"))
            fs::remove(base / "OBIEKTY/ORN_EXPORT" / name);
        for (int i = 0; i < names; ++i)
            writeFile(base / "OBIEKTY/ORN_EXPORT" / ("F" + std::to_string(i) + ".ND"), {});
        restart();
        EXPECT_EQ(e.okno.optObiektyNR, names >= 2 ? 1 : 0) << names;
    }
}

TEST_F(Start, TitleLinesOfOtherLengths) {
    const fs::path file = base / "PLIKI/DP1.DTA";
    for (std::size_t size : {0U, 19U, 20U, 41U, 59U, 60U, 61U}) {
        writeFile(file, Bajty(size, 'Q'));
        restart();
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_EQ(e.okno.pola[TXT_AUTOR_GRY + i].tekst.znaki, std::string(20, size >= 20 * (i + 1) ? 'Q' : ' '))
                << size;
        Form_QueryUnload(e);
        EXPECT_EQ(readFile(file).size(), 60U);
    }
    EXPECT_EQ(namesIn("PLIKI/KOPIE/DP1.DTA").size(), 5U);
    fs::remove(file);
    fs::create_directory(file);
    restart();
    EXPECT_EQ(e.okno.pola[TXT_AUTOR_GRY].tekst.znaki, "DORVA PLANSZOWNIK!  ") << "the boxes stay as they were";
}

TEST_F(Start, HooksThatThrowOrAreMissingAnswerLikeACancel) {
    const auto fail = [](auto&&...) -> bool { throw std::runtime_error("hook"); };
    const auto failAlso = [&](auto&&...) { return fail(), std::nullopt; };
    for (const Haki& haki : {Haki{}, Haki{fail, failAlso, failAlso, fail, failAlso}}) {
        e = Edytor{};
        e.haki = haki;
        start();
        cell(5, 5) = BOMBA;
        for (auto operation : {cmdSave_Click, cmdLoad_Click, cmdSaveArch_Click, cmdLoadArch_Click, cmdCreate_Click,
                               cmdTest_Click, cmdCzysc_Click, RunEmulator, cmdORN_Click})
            operation(e);
        EXPECT_EQ(cell(5, 5), BOMBA) << "nothing was cleared";
        Form_QueryUnload(e);
        EXPECT_EQ(readFile(etap(1))[uklad::PLANSZA + 205], 14);
    }
}

// The folder is given by a relative name; it has spaces, quotes and Polish letters in it.
TEST_F(Start, OddFolderAndFileNames) {
    const std::string quote = POSIX ? "\"" : "'";
    const auto odd = root / (POSIX ? "Moje gry: zażółć gęślą jaźń" : "Moje gry - zażółć gęślą jaźń & %100^");
    fs::rename(base, odd);
    fs::current_path(root);
    Form_Load(e, odd.filename(), "1.0.2");
    EXPECT_TRUE(e.okno.caption.starts_with("Dorva Planszownik [wersja 1.0.2]"));
    EXPECT_EQ(e.image, sampleEtap(1));
    EXPECT_EQ(e.OstatniaSciezka, fs::canonical(root));
    run(cmdSaveArch_Click, "Gra " + quote + "Łoś" + quote + ".dpa");
    cmdLoadArch_Click(e);
    run(cmdCreate_Click, "Gra łosia.xex");
    EXPECT_EQ(readFile(*chosen).size(), GRA_SIZE_BYTES);
    EXPECT_EQ(readFile(odd / "PLIKI/TEST.XEX"), readFile(*chosen));
    EXPECT_EQ(started.size(), 1U);
    SelectEtapNR(e, 8);
    EXPECT_EQ(e.image, sampleEtap(9));
}

TEST_F(Start, EmptiedBoxIsRefilledAndLeavingFitsTheText) {
    start();
    const auto text = [&](std::size_t box) { return e.okno.pola[box].tekst.znaki; };
    const unsigned before = e.okno.pola[TXT_AUTOR].zaznaczenia;
    txt_Change(e, POLE_AUTOR, {});
    EXPECT_EQ(text(TXT_AUTOR), std::string(64, ' '));
    EXPECT_EQ(e.okno.pola[TXT_AUTOR].zaznaczenia, before + 1);
    txt_Change(e, POLE_NAZWA, {std::string(33, 'A')});
    EXPECT_EQ(text(TXT_NAZWA).size(), 32U) << "a longer one couldn't be stored";
    const struct {
        std::size_t box;
        std::string typed, left;
    } rows[]{{TXT_NAZWA, "ala", std::string(15, ' ') + "ALA" + std::string(14, ' ')},
             {TXT_AUTOR, "ola", "OLA" + std::string(61, ' ')},
             {TXT_AUTOR_GRY + 1, "za\xBF\xF3\xB3\xE6", "ZA\xAF\xD3\xA3\xC6" + std::string(14, ' ')}};
    for (const auto& row : rows) {
        txt_Change(e, POLA[row.box], {row.typed});
        txt_LostFocus(e, POLA[row.box]);
        EXPECT_EQ(text(row.box), row.left);
    }
}

} // namespace
} // namespace dorva::test
