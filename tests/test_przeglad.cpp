// The overview of a whole game: where it is read from, its warnings, arrangements, earlier versions and its archive.
#include "desk.h"
#include "output/obraz_gry.h"
#include "przeglad/ostrzezenia.h"
#include "przeglad/sprawdz.h"
#include "przeglad/wersje.h"
#include "przeglad/zapis.h"
#include "przeglad/zrodla.h"
#include "sciezki.h"
#include "stage/archiwum.h"
#include "stage/etap.h"
#include "stage/pola.h"
#include "system/kopie.h"

#include <algorithm>
#include <chrono>
#include <functional>

namespace dorva::test {
namespace {

class Przeglad : public Desk {};

TEST_F(Przeglad, EachSourceGivesTheVeryGameOfTheEditor) {
    writeFile(base / "PLIKI/DP1.DTA", Bajty(25, 'Q')); // one whole line
    const Gra gra = readZestaw(SYSTEM_CALLS, base);
    start(); // fills the title lines that are missing
    run(cmdSaveArch_Click, "gra.dpa");
    EXPECT_EQ(archiwumOf(gra), readFile(*chosen));
    EXPECT_EQ(readZrodlo(SYSTEM_CALLS, *chosen).gra, gra);

    for (const std::string linia : {"  DORVA\xD3  \x9B 2", "", "12345678901234567890"}) {
        SetTekst(e.okno, poleLinii(1), NormalizeBox({linia}, LINIA_WIDTH));
        run(cmdCreate_Click, "gra.xex");
        const auto back = readZrodlo(SYSTEM_CALLS, *chosen).gra;
        ASSERT_TRUE(back) << linia;
        EXPECT_EQ(back->karty, gra.karty);
        EXPECT_EQ(trimmed(back->linie[1]), trimmed({linia}));
        EXPECT_EQ(archiwumOf(*back).size(), ARCHIWUM_SIZE_BYTES);
    }
}

TEST_F(Przeglad, WhatIsNoGameIsRefusedWithASentence) {
    start();
    run(cmdCreate_Click, "gra.xex");
    const Bajty gra = readFile(*chosen);
    Bajty column = gra, text = gra, ending = gra;
    column[116180] = 3;
    text[116180 + 22 + 5] = 70;
    ending[116180 + 3 * 22 - 1] = 0;
    const Bajty rows[] = {{}, Bajty(29851), Bajty(29853), Bajty(118433), Bajty(118432), column, text, ending};
    for (const Bajty& bytes : rows) {
        writeFile(*chosen, bytes);
        const Odczyt odczyt = readZrodlo(SYSTEM_CALLS, *chosen);
        EXPECT_FALSE(odczyt.gra) << &bytes - rows;
        EXPECT_TRUE(odczyt.dlaczego.ends_with('.'));
    }
    EXPECT_FALSE(readZrodlo(SYSTEM_CALLS, root / "nie ma").gra || readZrodlo(SYSTEM_CALLS, root).gra);
}

TEST_F(Przeglad, WhatCannotBeReadHasACardThatSaysSoAndAnEmptyStageInTheArchive) {
    fs::remove(base / "PLIKI/DP1.DTA");
    fs::remove(etap(3));
    writeFile(etap(4), Bajty(930));
    fs::remove(etap(5));
    fs::create_directory(etap(5));
    Bajty longer = sampleEtap(6);
    longer.push_back(1);
    writeFile(etap(6), longer);
    fs::remove(etap(32));
    const Gra gra = readZestaw(SYSTEM_CALLS, base);
    EXPECT_FALSE(fs::exists(etap(3)) || fs::exists(base / "PLIKI/DP1.DTA")) << "reading creates nothing";
    EXPECT_EQ(gra.karty[2].brak, "brak pliku DETAP.3");
    EXPECT_EQ(gra.karty[3].brak, "plik DETAP.4 jest za krótki (930 z 931 bajtów)");
    EXPECT_EQ(gra.karty[4].brak, "pliku DETAP.5 nie można odczytać");
    EXPECT_EQ(gra.karty[5].image, sampleEtap(6));

    const Bajty archiwum = archiwumOf(gra);
    ASSERT_EQ(archiwum.size(), ARCHIWUM_SIZE_BYTES);
    EXPECT_EQ(std::string(archiwum.begin(), archiwum.begin() + 20), defaultOkno().pola[TXT_AUTOR_GRY].tekst.znaki);
    const auto third = etapOf(archiwum, 3);
    EXPECT_EQ(Bajty(third.begin(), third.end()), packed(defaultOkno())) << "what the editor's own copies hold";
    EXPECT_EQ(etapOf(archiwum, 32)[uklad::OSTATNI], 1);
}

// A stage without a fault. Every number gives a different one.
EtapImage faultless(int number) {
    EtapImage image = firstEtap();
    int cell = 100;
    for (const Znak z : {DORVA, WYJSCIE, MASKA, znak(20 + number)})
        image[uklad::PLANSZA + cell++] = static_cast<Bajt>(z);
    return image;
}

Gra faultlessGra() {
    Gra gra;
    gra.linie.fill(Tekst::spaces(LINIA_WIDTH));
    for (int i = 0; i < ETAPY_COUNT; ++i)
        gra.karty[i] = {faultless(i + 1), "", i + 1};
    gra.karty[31].image[uklad::OSTATNI] = 1;
    takeOstatni(gra);
    return gra;
}

TEST(Ostrzezenia, EachFaultHasItsWords) {
    const auto put = [](EtapImage& image, int cell, int code) {
        image[uklad::PLANSZA + cell] = static_cast<Bajt>(code);
    };
    struct {
        std::string words;
        std::function<void(EtapImage&)> spoil;
    } rows[] = {
        {"nie ma Dorvy", [&](auto& image) { put(image, 100, 62); }},
        {"nie ma wyjścia", [&](auto& image) { put(image, 101, 1); }},
        {"za mało masek: 1, a cel to 2", [](auto& image) { image[uklad::CEL_MASEK] = 2; }},
        {"za mało kluczy: 0, a drzwi jest 1", [&](auto& image) { put(image, 210, 10 + INV); }},
        {"magiczny przedmiot bez pary (jest ich 1)", [&](auto& image) { put(image, 210, 55); }},
        {"więcej niż jedna Dorva: 2", [&](auto& image) { put(image, 210, 63 + INV); }},
        {"więcej niż jedno wyjście: 2", [&](auto& image) { put(image, 210, 9); }},
        {"znaki bez obrazka, o kodach: 64, 255",
         [&](auto& image) { put(image, 210, 255), put(image, 211, 64), put(image, 212, 64); }},
        {"obce znaki na brzegu, kratek: 2",
         [&](auto& image) { put(image, 0, 1), put(image, 799, 5 + INV), put(image, 1, 6), put(image, 2, 0); }},
        {"puste powitanie", [](auto& image) { std::fill_n(image.begin() + uklad::NAZWA, NAZWA_WIDTH, Bajt{0}); }},
        {"edytor nie odczyta całego etapu: cel etapu to 0", [](auto& image) { image[uklad::CEL_MASEK] = 0; }},
        {"edytor nie odczyta całego etapu: świat to 4", [](auto& image) { image[uklad::SWIAT] = 3; }},
        {"taki sam jak etap 1", [](auto& image) { image = faultless(1); }},
        {"OSTATNI, a po nim niepustych etapów: 30", [](auto& image) { image[uklad::OSTATNI] = 1; }},
    };
    EXPECT_EQ(listOstrzezenia(faultlessGra()), (std::array<std::vector<std::string>, ETAPY_COUNT>()));
    for (const auto& [words, spoil] : rows) {
        Gra gra = faultlessGra();
        spoil(gra.karty[1].image);
        std::array<std::vector<std::string>, ETAPY_COUNT> expected;
        expected[1] = {words};
        EXPECT_EQ(listOstrzezenia(gra), expected) << words;
    }
}

TEST(Ostrzezenia, AShortGameMayEndInClearedStages) {
    Gra gra = faultlessGra();
    for (int i = 2; i < ETAPY_COUNT; ++i)
        gra.karty[i].image = firstEtap();
    const auto isFaulty = [&](int place) { return !listOstrzezenia(gra)[place].empty(); };
    EXPECT_TRUE(isFaulty(2) && isFaulty(31)) << "no stage is marked";
    gra.karty[1].image[uklad::OSTATNI] = 1;
    EXPECT_FALSE(isFaulty(1) || isFaulty(2) || isFaulty(31));
    gra.karty[20].image[uklad::PLANSZA + 300] = 2;
    EXPECT_TRUE(isFaulty(1) && isFaulty(20));
}

// The stages of the places, as their boards and their cards tell them, each with its mark; "-" for a missing one.
std::string placesOf(const Gra& gra) {
    std::string text;
    for (const Karta& karta : gra.karty) {
        EXPECT_TRUE(karta.image.empty() || karta.image[uklad::PLANSZA + 103] == 20 + karta.numer);
        const int mark = karta.image.empty() ? 0 : karta.image[uklad::OSTATNI];
        text += (karta.image.empty() ? "-" : std::to_string(karta.numer)) + std::string(mark, '*') + " ";
    }
    return text;
}

TEST(Ustawianie, StagesMoveAndMarksStay) {
    Gra gra = faultlessGra();
    gra.karty[4].image[uklad::OSTATNI] = 2;
    gra.karty[9] = {{}, "brak pliku DETAP.10", 10};
    takeOstatni(gra);
    const std::string middle = "11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28 29 30 31 ";
    const Gra down = moved(gra, 2, 31), up = moved(down, 31, 0), swapped = exchanged(gra, 4, 9);
    EXPECT_EQ(placesOf(down), "1 2 4 5 6** 7 8 9 - " + middle + "32 3* ");
    EXPECT_EQ(placesOf(up), "3 1 2 4 5** 6 7 8 9 - " + middle + "32* ");
    EXPECT_EQ(placesOf(swapped), "1 2 3 4 - 6 7 8 9 5 " + middle + "32* ");
    EXPECT_EQ(placesOf(exchanged(swapped, 4, 31)), "1 2 3 4 32** 6 7 8 9 5 " + middle + "- ");
    EXPECT_EQ(exchanged(swapped, 4, 9), gra) << "the mark waits where a stage is missing";
    EXPECT_EQ(moved(up, 0, 2), gra);
    EXPECT_EQ(replaced(gra, 4, faultless(5)), gra) << "an earlier version takes the mark of the place";
}

TEST(Ustawianie, OddMarks) {
    Gra gra = faultlessGra(); // two places whose marks only earlier versions know, and one with a mark that is none
    gra.karty[3] = {{}, "brak", 4}, gra.karty[31] = {{}, "brak", 32};
    gra.karty[0].image[uklad::OSTATNI] = 7;
    takeOstatni(gra);
    EtapImage last = faultless(4);
    last[uklad::OSTATNI] = 1;
    EXPECT_EQ(replaced(gra, 3, last).karty[3].image, last);
    EXPECT_EQ(replaced(gra, 31, faultless(4)).karty[31].image, last) << "place 32 is always marked";
    EXPECT_EQ(replaced(exchanged(gra, 3, 1), 1, last).karty[1], (Karta{faultless(4), "", 4})) << "of another place";
    EXPECT_EQ(archiwumOf(exchanged(gra, 1, 2))[AUTOR_GRY_SIZE_BYTES + uklad::OSTATNI], 7)
        << "what isn't touched isn't changed";
    EXPECT_EQ(placesOf(exchanged(gra, 0, 1)).substr(0, 4), "2 1 ") << "a mark that is none stays with nobody";
}

TEST_F(Przeglad, EarlierVersionsComeNewestFirstAndOnce) {
    const auto keep = [&](const fs::path& file, int minute, const Bajty& bytes, const char* ending = "") {
        const Time time(std::chrono::hours(500000) + std::chrono::minutes(minute));
        ASSERT_TRUE(keepCopy(SYSTEM_CALLS, file, bytes, time, ending));
    };
    Bajty game = sampleArchiwum();
    keep(etap(7), 0, sampleEtap(3));
    keep(etap(7), 3, sampleEtap(4));
    keep(etap(7), 5, sampleEtap(7));
    keep(etap(7), 1, sampleEtap(1)); // a file that was older than the screen before it
    keep(etap(7), 6, Bajty(930));
    keep(base / sciezki::ARCHIWUM, 2, game, ".dpa"); // holds stage 26 as the seventh
    std::copy_n(sampleEtap(3).begin(), ETAP_SIZE_BYTES, game.begin() + AUTOR_GRY_SIZE_BYTES + 6 * ETAP_SIZE_BYTES);
    keep(base / sciezki::ARCHIWUM, 4, game, ".dpa");
    const auto wersje = listWersje(SYSTEM_CALLS, base, 7, sampleEtap(7));
    ASSERT_EQ(wersje.size(), 4U);
    for (int i = 0; const int number : {3, 4, 26, 1})
        EXPECT_EQ(wersje[i++].image, sampleEtap(number)) << number;
    EXPECT_EQ(wersje[0].made.size(), 16U);
    EXPECT_GT(wersje[0].made, wersje[1].made);
    EXPECT_EQ(readFile(listGry(SYSTEM_CALLS, base).front().path), game);
    EXPECT_TRUE(listWersje(SYSTEM_CALLS, base, 8, {}).size() == 1 && listWersje(SYSTEM_CALLS, root, 8, {}).empty());
}

TEST_F(Przeglad, TheWorkingSetIsNoPlaceToWriteTo) {
    fs::create_directories(base / "ETAPY/KOPIE");
    fs::create_directories(root / "obok");
    const auto isOwn = [&](const fs::path& path) { return isInZestaw(SYSTEM_CALLS, base, path); };
    for (const char* name : {"praca/ETAPY/DETAP.7", "praca/ETAPY/nowy.dpa", "praca/ETAPY/KOPIE/x",
                             "praca/PLIKI/DP2.DTA", "praca/OBIEKTY/../PLIKI/x.png", "praca/ETAPY"})
        EXPECT_TRUE(isOwn(root / name)) << name;
    for (const char* name : {"gra.dpa", "praca/gra.dpa", "praca/ETAPY.dpa", "obok/DETAP.7", "brak/brak/x"})
        EXPECT_FALSE(isOwn(root / name)) << name;
    fs::current_path(base / "PLIKI");
    EXPECT_TRUE(isOwn("gra.dpa"));
    if (!POSIX)
        return;
    fs::create_hard_link(etap(1), root / "twardy");
    fs::create_symlink(base / "ETAPY/nowy", root / "w pustke");
    fs::create_directory_symlink(base / "ETAPY", root / "folder");
    for (const char* name : {"twardy", "w pustke", "folder/x", "folder/../PLIKI/x"})
        EXPECT_TRUE(isOwn(root / name)) << name;
}

TEST_F(Przeglad, TheCheckForScriptsPrintsLinesAndEndsWithAStatus) {
    const auto check = [&](const fs::path& source) {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const int status = sprawdz(SYSTEM_CALLS, source);
        return std::to_string(status) + testing::internal::GetCapturedStderr().substr(0, 9) + "\n" +
               testing::internal::GetCapturedStdout();
    };
    Gra gra = faultlessGra();
    writeFile(root / "gra.dpa", archiwumOf(gra));
    EXPECT_EQ(check(root / "gra.dpa"), "0\n");
    gra.karty[11].image[uklad::CEL_MASEK] = 3;
    writeFile(root / "gra.dpa", archiwumOf(gra));
    EXPECT_EQ(check(root / "gra.dpa"), "1\n12: za mało masek: 1, a cel to 3\n");
    EXPECT_EQ(check(root / "nie ma"), "2przeglad:\n");
}

} // namespace
} // namespace dorva::test
