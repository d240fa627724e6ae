// The finished game, and the tables and dialogs that people and other programs rely on.
#include "desk.h"
#include "output/narzedzia.h"
#include "output/obraz_gry.h"
#include "rows.h"
#include "shell/komunikaty.h"
#include "stage/archiwum.h"
#include "stage/etap.h"
#include "stage/zbior_etapow.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace dorva::test {
namespace {

class GameBuild : public Desk {
protected:
    // The template with stages, by their place in the game, and title lines.
    static Bajty expectedGame(const std::map<int, Bajty>& stages, const std::array<std::string, 3>& lines) {
        Bajty game = sampleSzablon();
        const auto put = [&](const Bajty& bytes, int at) { std::ranges::copy(bytes, game.begin() + at); };
        // A record with its header has 935 bytes; in the middle there are five more, a bank switch.
        for (const auto& [number, stage] : stages)
            put(stage, 29724 + 935 * (number - 1) + (number > 16 ? 5 : 0));
        for (int i = 0; i < 3; ++i)
            put(BuildLiniaTytulu(ascii(lines[i])), 116180 + 22 * i);
        return game;
    }
};

TEST(Template, TitleLines) {
    const Bajty test = BuildLiniaTytulu(ascii("     TEST ETAPU     "));
    EXPECT_EQ(test,
              (Bajty{7, 52, 37, 51, 52, 0, 37, 52, 33, 48, 53, 155, 155, 155, 155, 155, 155, 155, 155, 155, 155, 155}));
    const int columns[] = {12, 11, 11, 10, 10, 9, 9, 8, 8, 7, 7, 6, 6, 5, 5, 4, 4, 3, 3, 2, 2};
    for (std::size_t length = 0; length <= 20; ++length) {
        const Bajty line = BuildLiniaTytulu({std::string(length, 'A')});
        ASSERT_EQ(line.size(), LINIA_TYTULU_SIZE_BYTES);
        EXPECT_EQ(line[0], columns[length]);
        EXPECT_EQ(std::count(line.begin() + 1, line.end(), 155), static_cast<int>(21 - length));
    }
    EXPECT_EQ(BuildLiniaTytulu({"  \xA3\xD3\x44\x8F  "})[4], 120);
}

TEST_F(GameBuild, GameHoldsAllStagesAndNothingElseChanges) {
    start();
    cell(4, 4) = KLUCZ;
    run(cmdCreate_Click, "gra.xex");
    EXPECT_EQ(messages(), "Został utworzony plik XEX z grą Dorva.\nUruchomić grę na emulatorze Atari?");
    cmdORN_Click(e);
    EXPECT_EQ(started, (decltype(started){{base / "PLIKI/DP3.BAT", OknoProgramu::Hidden},
                                          {base / "OBIEKTY/ORN.exe", OknoProgramu::Normal}}));
    EXPECT_EQ(fs::current_path(), fs::canonical(base));

    const Bajty game = readFile(*chosen);
    ASSERT_EQ(game.size(), GRA_SIZE_BYTES);
    EXPECT_EQ(readFile(base / "PLIKI/TEST.XEX"), game);
    std::map<int, Bajty> stages;
    for (int number = 1; number <= ETAPY_COUNT; ++number)
        stages[number] = readFile(etap(number));
    EXPECT_EQ(game, expectedGame(stages, {std::string(20, 'X'), std::string(20, 'Y'), std::string(20, 'Z')}));
    EXPECT_EQ(game[29724 + 32 + 164], 13) << "unsaved changes are in the game";

    answers = {true, false};
    cmdCreate_Click(e);
    EXPECT_EQ(readFile(*chosen), game);
    EXPECT_EQ(started.size(), 2U) << "No starts nothing";
}

TEST_F(GameBuild, GameReadsEverythingBeforeItAsks) {
    start();
    fs::remove(etap(30));
    run(cmdCreate_Click, "gra.xex");
    writeFile(etap(30), sampleEtap(30));
    writeFile(base / "PLIKI/DP2.DTA", Bajty(GRA_SIZE_BYTES - 1, 0));
    cmdCreate_Click(e);
    cmdTest_Click(e);
    EXPECT_TRUE(dialogs.empty() && shown.empty());
    EXPECT_FALSE(fs::exists(*chosen) || fs::exists(base / "PLIKI/TEST.XEX"));
    EXPECT_EQ(e.okno.chkOstatni, 0);
}

TEST_F(GameBuild, TestBuildTakesTheBoardAndMarksItLast) {
    start();
    SelectEtapNR(e, 19);
    for (int number = 1; number <= ETAPY_COUNT; ++number)
        fs::remove(etap(number));
    Bajty longer = sampleSzablon();
    longer.resize(longer.size() + 100);
    writeFile(base / "PLIKI/DP2.DTA", longer);
    for (const int ostatni : {2, 1, 0}) {
        ASSERT_TRUE(SetOstatni(e, ostatni));
        cmdTest_Click(e);
        EXPECT_EQ(e.okno.chkOstatni, ostatni) << "the box holds what it held";
        EXPECT_EQ(messages(), "Został utworzony plik XEX z testowanym etapem.\nUruchomić plik na emulatorze Atari?");
    }
    EXPECT_FALSE(fs::exists(etap(20)));

    Bajty stage = sampleEtap(20);
    stage[uklad::OSTATNI] = 1;
    EXPECT_EQ(readFile(base / "PLIKI/TEST.XEX"), expectedGame({{1, stage}}, {std::string(20, 'X'), "", "TEST ETAPU"}));
}

std::string hex(Rgb c) {
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "%02x%02x%02x", c.r, c.g, c.b);
    return text.data();
}

// A message as one row: a bar stands for a line feed.
std::string rowOf(const Komunikat& k) {
    constexpr std::array ICONS{"critical", "warning", "information"};
    constexpr std::array BUTTONS{"OK", "OK, Cancel", "Yes, No"};
    std::string text(k.text);
    std::ranges::replace(text, '\n', '|');
    return std::string(k.title) + " / " + text + " / " + ICONS[static_cast<int>(k.ikona)] + " / " +
           BUTTONS[static_cast<int>(k.przyciski)];
}

TEST(Tables, PaletteColoursNamesPickerAndMessages) {
    std::vector<std::string> rows;
    for (std::size_t value = 0; value < PaletaWbudowana.size(); ++value)
        rows.push_back("colour " + std::to_string(value) + " " + hex(PaletaWbudowana[value]));
    for (const auto& swiat : KOLORY_STARTOWE) {
        rows.emplace_back("colours of a world:");
        for (const Bajt value : swiat)
            rows.back() += " " + std::to_string(value);
    }
    for (std::size_t code = 0; code < NAZWY_ZNAKOW.size(); ++code)
        rows.push_back("tile " + std::to_string(code) + " " + std::string(NAZWY_ZNAKOW[code]));
    rows.emplace_back("picker:");
    for (const int code : WYBOR_ORDER)
        rows.back() += " " + std::to_string(code);
    using namespace komunikaty;
    for (const Komunikat& k : {ZLY_FORMAT, ZASTAPIC, ETAP_ZAPISANY, ARCHIWUM_ZAPISANE, NIE_MOZNA_PLIKU, NIE_MOZNA_GRY,
                               NIE_MOZNA_ETAPU, CZYSZCZENIE, KOLORY_ZABLOKOWANE, GRA_UTWORZONA, TEST_UTWORZONY})
        rows.push_back(rowOf(k));
    expectRows("tables.txt", rows);
}

class Dialogs : public Desk {};

TEST_F(Dialogs, NamesFiltersAndWhereTheNextOneStarts) {
    const struct {
        void (*operation)(Edytor&);
        const char *name, *filter; // proposed
        const char* answer;
    } all[]{{cmdSave_Click, "DETAP.7", "Etap gry|DETAP.*|Wszystkie pliki (*.*)|*.*", "etap"},
            {cmdLoad_Click, "", "Etapy gry|DETAP.*|Wszystkie pliki (*.*)|*.*", "etap"},
            {cmdSaveArch_Click, "DPArchiwum.dpa", "Plik archiwum|*.dpa|Wszystkie pliki (*.*)|*.*", "gra/x.dpa"},
            {cmdCreate_Click, "Dorva - wyprawy.xex", "Plik gry|*.xex|Wszystkie pliki (*.*)|*.*", "gra.xex"},
            {cmdLoadArch_Click, "", "Pliki archiwum|*.dpa|Wszystkie pliki (*.*)|*.*", "gra/x.dpa"}};
    start();
    SelectEtapNR(e, 6);
    fs::create_directory(root / "gra");
    fs::path last = fs::canonical(root);
    for (const auto& d : all) {
        run(d.operation, d.answer);
        EXPECT_EQ(dialogs.back().name, d.name);
        EXPECT_EQ(dialogs.back().filter, d.filter);
        EXPECT_EQ(dialogs.back().start, last) << d.name;
        EXPECT_EQ(e.OstatniaSciezka, *chosen) << d.name;
        last = *chosen;
        chosen.reset();
        d.operation(e);
        EXPECT_EQ(e.OstatniaSciezka, last) << "a cancel changes nothing";
    }
    EXPECT_EQ(dialogs.size(), 10U);
}

} // namespace
} // namespace dorva::test
