// Texts, the stage as bytes, the stage files, the archive.
#include "desk.h"
#include "output/obraz_gry.h"
#include "shell/komunikaty.h"
#include "stage/archiwum.h"
#include "stage/etap.h"
#include "stage/zbior_etapow.h"

#include <algorithm>

namespace dorva::test {
namespace {

TEST(Texts, CodePageCodingAndCapitals) {
    for (int c = 0; c < 256; ++c) {
        EXPECT_EQ(fromUnicode(toUnicode(static_cast<Bajt>(c))), c);
        const Tekst tekst = upperCase({std::string(1, static_cast<char>(std::max(c, 32)))});
        EXPECT_EQ(DecodeTekst(EncodeTekst(tekst)), tekst) << c;
    }
    EXPECT_EQ(toUnicode(0x98), u'\x98');
    EXPECT_EQ(fromUnicode(U'語'), '?');
    const std::u32string unicode = U"ĄĆĘŁŃÓŚŹŻąćęłńóśźż";
    const std::string page = "\xA5\xC6\xCA\xA3\xD1\xD3\x8C\x8F\xAF\xB9\xE6\xEA\xB3\xF1\xF3\x9C\x9F\xBF";
    const std::string stored = "acelnosxz\xB9\xE6\xEA\xB3\xF1\xF3\x9C\x9F\xBF";
    for (std::size_t i = 0; i < unicode.size(); ++i) {
        EXPECT_EQ(toUnicode(static_cast<Bajt>(page[i])), unicode[i]) << i;
        EXPECT_EQ(upperCase({page.substr(i, 1)}).znaki, page.substr(i % 9, 1)) << i;
    }
    EXPECT_EQ(EncodeTekst({page}), Bajty(stored.begin(), stored.end()));
    EXPECT_EQ(DecodeTekst(Bajty(stored.begin(), stored.end())).znaki, page);
    EXPECT_EQ(EncodeTekst({" !0AZ_XZ\x01"}), (Bajty{0, 1, 16, 33, 58, 63, 56, 58, 225}));
    EXPECT_EQ(DecodeTekst(Bajty{65, 67, 69, 76, 78, 79, 83, 88, 90}).znaki, page.substr(0, 9));
    EXPECT_EQ(upperCase({"a z{\xF7\xFF\xDF\xB5"}).znaki, "A Z{\xF7\xFF\xDF\xB5") << "the last four have no capital";
    EXPECT_EQ(upperCase({"\x9A\x9D\x9E\xBA\xBE\xFE"}).znaki, "\x8A\x8D\x8E\xAA\xBC\xDE");
}

TEST(Texts, FitNazwaCentresByLength) {
    for (auto [length, before] : {std::pair{31, 1}, {30, 1}, {29, 2}, {28, 2}, {32, 0}, {3, 15}}) {
        const Tekst fitted = FitNazwa({std::string(length, 'a')});
        EXPECT_EQ(fitted.znaki,
                  std::string(before, ' ') + std::string(length, 'A') + std::string(32 - before - length, ' '));
    }
    const Tekst indented = FitNazwa({std::string(10, ' ') + "ABCDEFGHIJ"});
    EXPECT_EQ(indented.znaki.find('A'), 16U) << "leading spaces count as text";
    EXPECT_EQ(FitNazwa(indented), indented);
    EXPECT_EQ(FitNazwa({"ala"}, 6).znaki, "  ALA ") << "a narrower box";
}

class Stage : public Desk {
protected:
    Tekst& text(std::size_t box) { return e.okno.pola[box].tekst; }
};

TEST_F(Stage, PackingBringsTheEdgeAndTheHeroineToTheirForms) {
    start();
    for (auto [before, after] :
         {std::pair{0, 0}, {5, 5}, {6, 6}, {7, 5}, {63, 5}, {133, 5}, {134, 5}, {191, 5}, {128, 5}}) {
        cell(0, 0) = cell(19, 39) = cell(7, 0) = cell(12, 39) = znak(before);
        PackEtap(e);
        for (Znak z : {cell(0, 0), cell(19, 39), cell(7, 0), cell(12, 39)})
            EXPECT_EQ(kod(z), after) << before;
    }
    e.okno.optNN = 1;
    cell(0, 3) = znak(134);
    cell(0, 4) = znak(6);
    cell(3, 7) = DORVA_INV;
    PackEtap(e);
    EXPECT_EQ(kod(cell(0, 3)), 133);
    EXPECT_EQ(kod(cell(0, 4)), 6);
    EXPECT_EQ(e.image[159], 63);
    EXPECT_EQ(cell(3, 7), DORVA);
    EXPECT_TRUE(e.okno.etapInfo.jestDorva) << "the figures are those of the packed board";
    EXPECT_EQ(e.okno.imgPG[127].obraz.znak, DORVA_INV) << "the picture follows at the next redraw";
    const Bajty once = e.image;
    PackEtap(e);
    EXPECT_EQ(e.image, once);
}

TEST_F(Stage, ARefusedFieldLeavesTheRestAsItWas) {
    start();
    const Okno before = e.okno;
    const auto expectRefused = [&](int monety, int ostatni) {
        EXPECT_FALSE(UnpackEtap(e));
        EXPECT_EQ(cell(5, 5), znak(e.image[uklad::PLANSZA + 205]));
        EXPECT_EQ(e.okno.lblKolor[4].value, e.image[uklad::KOLORY + 4]);
        EXPECT_EQ(e.okno.hscMonet, monety);
        EXPECT_EQ(e.okno.chkOstatni, ostatni);
        EXPECT_EQ(e.okno.optObiektyNR, before.optObiektyNR);
        EXPECT_EQ(e.okno.imgPG[205].obraz, before.imgPG[205].obraz);
        EXPECT_EQ(text(TXT_NAZWA), before.pola[TXT_NAZWA].tekst);
    };
    e.image.assign(ETAP_SIZE_BYTES, 0);
    expectRefused(1, 0);
    e.image = sampleEtap(9);
    e.image[uklad::OSTATNI] = 3;
    expectRefused(9, 0);
    e.image[uklad::OSTATNI] = 2;
    e.image[uklad::SWIAT] = 3;
    expectRefused(9, 2);
}

TEST_F(Stage, BlockedColoursStayAndTravelAlong) {
    start();
    e.okno.chkZachowajKolory = true;
    const auto colours = e.okno.lblKolor;
    SelectEtapNR(e, 4);
    EXPECT_EQ(e.okno.lblKolor, colours);
    EXPECT_EQ(e.okno.hscMonet, 5);
    SelectEtapNR(e, 0);
    const Bajty stored = readFile(etap(5));
    for (std::size_t i = 0; i < SLOTY_COUNT; ++i)
        EXPECT_EQ(stored[uklad::KOLORY + i], colours[i].value);
}

TEST_F(Stage, TheLastOneIsMarkedAsSuch) {
    Bajty last = sampleEtap(32);
    last[uklad::OSTATNI] = 0;
    writeFile(etap(32), last);
    start();
    SelectEtapNR(e, 31);
    EXPECT_EQ(e.okno.chkOstatni, 1);
    EXPECT_FALSE(e.okno.chkOstatniEnabled);
    run(cmdLoad_Click, etap(5));
    EXPECT_EQ(e.okno.chkOstatni, 0) << "a load does not apply the rule";
    SelectEtapNR(e, 4);
    EXPECT_TRUE(e.okno.chkOstatniEnabled);
    EXPECT_EQ(e.okno.chkOstatni, 0);
    ASSERT_TRUE(SetOstatni(e, 2));
    Form_QueryUnload(e);
    EXPECT_EQ(readFile(etap(5))[uklad::OSTATNI], 2) << "a file's third value stays what it is";
}

TEST_F(Stage, LoadTakesAStageOverIntoTheCurrentOne) {
    start();
    writeFile(root / "obcy", sampleEtap(16));
    run(cmdLoad_Click, "obcy");
    EXPECT_EQ(e.okno.hscMonet, 16);
    EXPECT_EQ(e.okno.imgPG[205].obraz.znak, cell(5, 5)) << "a stage of the same world is shown, too";
    EXPECT_EQ(e.NumerEtapu, 1);
    Form_QueryUnload(e);
    EXPECT_EQ(readFile(etap(1)), sampleEtap(16));
    run(cmdLoad_Click, "nie ma");
    EXPECT_EQ(e.OstatniaSciezka, root / "nie ma");
    EXPECT_FALSE(fs::exists(root / "nie ma"));
    EXPECT_EQ(messages(), "");
}

TEST_F(Stage, SaveAsksBeforeItReplaces) {
    start();
    SelectEtapNR(e, 6);
    run(cmdSave_Click, "kopia etapu");
    EXPECT_EQ(messages(), "Dane etapu zostały pomyślnie zapisane");
    EXPECT_EQ(readFile(root / "kopia etapu"), sampleEtap(7));
    writeFile(root / "inny", {1, 2, 3});
    answers = {false};
    run(cmdSave_Click, "inny");
    EXPECT_EQ(messages(), "Plik już istnieje!\nZastąpić?");
    EXPECT_EQ(readFile(root / "inny"), (Bajty{1, 2, 3}));
    EXPECT_EQ(e.OstatniaSciezka, root / "kopia etapu");
    run(cmdSave_Click, "brak/folderu");
    EXPECT_EQ(e.OstatniaSciezka, root / "brak/folderu");
    chosen = "";
    cmdSave_Click(e);
    EXPECT_EQ(e.OstatniaSciezka, root / "brak/folderu") << "a dialog that names no file is cancelled";
    EXPECT_EQ(messages(), "");
}

TEST_F(Stage, ShortTextsAreFilledAndLongOnesNeverReachAFile) {
    start();
    text(TXT_NAZWA) = ascii("ala");
    text(TXT_AUTOR) = ascii(std::string(64, 'q'));
    text(TXT_AUTOR_GRY + 1) = ascii("ola");
    Form_QueryUnload(e);
    EXPECT_EQ(readFile(etap(1))[uklad::NAZWA + 15], 33);
    EXPECT_EQ(text(TXT_NAZWA), FitNazwa(ascii("ala"))) << "the box shows what was stored";
    EXPECT_EQ(text(TXT_AUTOR).znaki, std::string(64, 'q')) << "full texts stay as they are";
    EXPECT_EQ(text(TXT_AUTOR_GRY + 1).znaki, "OLA" + std::string(17, ' '));
    const Bajty lines = readFile(base / "PLIKI/DP1.DTA");
    EXPECT_EQ(lines[20], 'O');

    const struct {
        std::size_t box;
        std::size_t length;
        void (*operation)(Edytor&);
        std::string message;
    } rows[]{{TXT_AUTOR_GRY + 1, 21, cmdCreate_Click, "Coś poszło źle...\nNie można utworzyć gry."},
             {TXT_AUTOR_GRY + 1, 21, cmdSaveArch_Click, ""},
             {TXT_AUTOR_GRY, 21, cmdTest_Click, "Coś poszło źle...\nNie można utworzyć pliku."},
             {TXT_NAZWA, 33, cmdSave_Click, "Coś poszło źle...\nNie można utworzyć pliku."},
             {TXT_NAZWA, 33, [](Edytor& editor) { SelectEtapNR(editor, 1); },
              std::string(komunikaty::NIE_MOZNA_ETAPU.text)}};
    for (const auto& row : rows) {
        const Tekst before = std::exchange(text(row.box), ascii(std::string(row.length, 'A')));
        run(row.operation, "plik");
        EXPECT_EQ(messages(), row.message);
        text(row.box) = before;
    }
    EXPECT_EQ(e.okno.optEtapNR, 0);
    EXPECT_EQ(readFile(base / "PLIKI/DP1.DTA"), lines);
    EXPECT_EQ(readFile(etap(1)).size(), ETAP_SIZE_BYTES);
    EXPECT_FALSE(fs::exists(root / "plik") || fs::exists(base / "PLIKI/TEST.XEX"));
}

TEST_F(Stage, ClearBuildsTheWalledField) {
    start();
    answers = {false, true};
    cmdCzysc_Click(e);
    EXPECT_EQ(packed(e.okno), sampleEtap(1)) << "No clears nothing";
    for (PokazanyZnak& pokazany : e.okno.imgPG)
        pokazany.znak = BOMBA;
    text(TXT_AUTOR) = ascii("ala");
    cmdCzysc_Click(e);
    EXPECT_TRUE(e.okno.txtAutorEnabled);
    EXPECT_EQ(shown.back(), "Czyszczenie usunie całą zawartość mapy!\nKontynuować?");
    for (int i = 0; i < PLANSZA_CELLS; ++i) {
        const int row = i / 40, column = i % 40;
        const bool side = column == 0 || column == 39;
        ASSERT_EQ(kod(cell(row, column)), row == 19 ? 6 : side ? 5 : row == 0 ? 6 : 1) << i;
    }
    EXPECT_EQ(e.okno.etapInfo.celMasek, 1);
    EXPECT_EQ(text(TXT_NAZWA), Tekst::spaces(32));
    EXPECT_EQ(text(TXT_AUTOR), Tekst::spaces(64));
    e.okno.optNN = 1;
    ClearEtap(e);
    PackEtap(e);
    EXPECT_EQ(kod(cell(0, 5)), 133) << "134 is not among the edge's kept values";
}

TEST_F(Stage, AnArchiveRestoresEveryStageAndTheTitleLines) {
    Bajty lines(60, ' ');
    lines[0] = 0xA3; // Ł
    lines[40] = 'a';
    writeFile(base / "PLIKI/DP1.DTA", lines);
    start();
    run(cmdSaveArch_Click, "gra.dpa");
    EXPECT_EQ(messages(), "Archiwum zostało pomyślnie zapisane");
    const Bajty archive = readFile(*chosen);
    ASSERT_EQ(archive.size(), ARCHIWUM_SIZE_BYTES);
    EXPECT_TRUE(std::equal(lines.begin(), lines.end(), archive.begin()));
    EXPECT_EQ(archive[28921 + uklad::CEL_MASEK], 32);

    for (int number = 1; number <= ETAPY_COUNT; ++number)
        writeFile(etap(number), sampleEtap(33 - number));
    writeFile(base / "PLIKI/DP1.DTA", Bajty(60, 'Y'));
    SelectEtapNR(e, 6);
    cell(3, 3) = BOMBA;
    cmdLoadArch_Click(e);
    EXPECT_EQ(e.NumerEtapu, 7);
    EXPECT_EQ(e.okno.hscMonet, 7);
    EXPECT_EQ(e.okno.pola[TXT_AUTOR_GRY].tekst.znaki[0], '\xA3');
    EXPECT_EQ(messages(), "");
    for (int number = 1; number <= ETAPY_COUNT; ++number)
        EXPECT_EQ(readFile(etap(number)), sampleEtap(number)) << number;
    EXPECT_EQ(readFile(base / "PLIKI/DP1.DTA"), lines);
    cmdSaveArch_Click(e);
    EXPECT_EQ(readFile(*chosen), archive);
}

TEST_F(Stage, AnArchiveIsWholeOrThereIsNone) {
    start();
    const auto before = e.OstatniaSciezka;
    run(cmdLoadArch_Click, "zle.dpa");
    EXPECT_EQ(messages(), "") << "a missing file gives no message";
    for (std::size_t size : {29851U, 29853U}) {
        writeFile(*chosen, Bajty(size, 1));
        cmdLoadArch_Click(e);
        EXPECT_EQ(messages(), "Niewłaściwy format pliku!");
    }
    EXPECT_EQ(e.OstatniaSciezka, before);
    dialogs.clear();
    writeFile(etap(21), Bajty(930, 1));
    cmdSaveArch_Click(e);
    fs::remove(base / "PLIKI/DP1.DTA");
    fs::create_directory(base / "PLIKI/DP1.DTA");
    cmdSaveArch_Click(e);
    EXPECT_TRUE(dialogs.empty() && messages().empty());
}

TEST_F(Stage, AnArchiveMayBreakOffOrHoldARefusedField) {
    start();
    writeFile(root / "x.dpa", sampleArchiwum());
    fs::remove(etap(20));
    fs::create_directory(etap(20));
    SelectEtapNR(e, 6);
    run(cmdLoadArch_Click, "x.dpa");
    EXPECT_EQ(readFile(etap(7)), sampleEtap(26));
    EXPECT_EQ(e.image, sampleEtap(7)) << "the editor never came to the archive's stage";
    EXPECT_EQ(e.okno.pola[TXT_AUTOR_GRY].tekst.znaki, std::string(20, 'A')) << "the title lines did";
    EXPECT_EQ(readFile(base / "PLIKI/DP1.DTA"), sampleLinie());

    fs::remove(etap(20));
    writeFile(root / "x.dpa", Bajty(ARCHIWUM_SIZE_BYTES, 7));
    cmdLoadArch_Click(e);
    EXPECT_EQ(readFile(etap(32)), Bajty(ETAP_SIZE_BYTES, 7));
    EXPECT_EQ(e.okno.hscMonet, 7);
    EXPECT_EQ(e.okno.optObiektyNR, 1) << "the last flag 7 is refused before the world";
}

TEST_F(Stage, SavedOverTheEditorsOwnFilesKeepsThem) {
    start();
    cell(3, 3) = BOMBA;
    run(cmdSaveArch_Click, etap(2));
    EXPECT_EQ(readFile(etap(2)).size(), ARCHIWUM_SIZE_BYTES);
    run(cmdSave_Click, base / "PLIKI/DP1.DTA");
    EXPECT_EQ(namesIn("ETAPY/KOPIE/DETAP.2").size(), 1U);
    EXPECT_EQ(namesIn("PLIKI/KOPIE/DP1.DTA").size(), 1U);
    writeFile(root / "obcy", {1});
    run(cmdSave_Click, "obcy");
    EXPECT_FALSE(fs::exists(root / "KOPIE")) << "any other file that the user chose is replaced without";
}

} // namespace
} // namespace dorva::test
