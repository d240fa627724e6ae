// The worlds and stages that the build has made, and the compiler that makes them.
#include "desk.h"
#include "etapy.h"
#include "stage/etap.h"
#include "stage/zbior_etapow.h"

#include <algorithm>

namespace dorva::test {
namespace {

const fs::path DATA = DORVA_DATA;

constexpr int DRUGIE = ZNAKI_COUNT; // the second drawing of tile n is character DRUGIE + n; tile 0 has none

Bajty readData(const std::string& name) {
    return readFile(DATA / name);
}
// A pixel of a bitmap file of four bits per pixel whose rows run from bottom to top.
Rgb pixelOf(const Bajty& bmp, int x, int y) {
    const auto word = [&](std::size_t at) { return bmp.at(at) | bmp.at(at + 1) << 8; };
    const int pixels = word(10), rowBytes = word(18) / 2, height = word(22);
    const Bajt pair = bmp.at(pixels + (height - 1 - y) * rowBytes + x / 2);
    const auto colour = 54 + 4 * (x % 2 ? pair & 15 : pair >> 4);
    return {bmp[colour + 2], bmp[colour + 1], bmp[colour]};
}

TEST(TileSets, StripIsTheCharacterSetSeenThroughTheColours) {
    for (const std::string name : {"FNT01.ORN.ND", "FNT11.ORN.ND", "FNT21.ORN.ND"}) {
        const Bajty znaki = readData("OBIEKTY/ORN_EXPORT/" + name);
        const Bajty bmp = readData("OBIEKTY/ORN_EXPORT/" + name + ".TILES.BMP");
        const Bajty kolory = readData("OBIEKTY/ORN_EXPORT/" + name + ".KOLORY");
        ASSERT_EQ(znaki.size(), 1024U);
        for (int x = 0; x < 4096; ++x)
            for (int y = 0; y < 32; ++y) {
                const int position = x / 32, code = position % 64;
                const unsigned bits = znaki[code * 8 + y / 4] >> (6 - x % 32 / 8 * 2) & 3U;
                // 00 is the background; 11 has the fourth colour in the INV half.
                const std::size_t kolor = bits == 0 ? 4 : bits == 3 && position >= 64 ? 3 : bits - 1;
                ASSERT_EQ(pixelOf(bmp, x, y), PaletaWbudowana[kolory[kolor]]) << name << " " << x << "," << y;
            }
    }
}

TEST(TileSets, DirectionsMirrorInBothDrawings) {
    const Bajty znaki = readData("OBIEKTY/ORN_EXPORT/FNT01.ORN.ND");
    const auto shapeOf = [&](int code) { return Bajty(&znaki[code * 8], &znaki[code * 8] + 8); };
    for (int drawing : {0, DRUGIE}) {
        Bajty left = shapeOf(drawing + 26), down = shapeOf(drawing + 28);
        for (Bajt& row : left)
            row = static_cast<Bajt>(row >> 6 | (row >> 2 & 0x0C) | (row << 2 & 0x30) | row << 6);
        EXPECT_EQ(shapeOf(drawing + 27), left);
        std::ranges::reverse(down);
        EXPECT_EQ(shapeOf(drawing + 29), down);
    }
    EXPECT_NE(shapeOf(DRUGIE + 26), shapeOf(26));
    EXPECT_EQ(shapeOf(DRUGIE + 1), shapeOf(1)) << "it doesn't move";
}

class BuiltStages : public Desk {};

TEST_F(BuiltStages, TheEditorKeepsEveryByte) {
    fs::copy(DATA, base, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    start();
    EXPECT_EQ(e.Paleta, PaletaWbudowana);
    EXPECT_EQ(e.okno.pola[TXT_AUTOR_GRY].tekst, ascii("DORVA PLANSZOWNIK!  "));
    for (int number = 1; number <= ETAPY_COUNT; ++number) {
        if (number > 1)
            SelectEtapNR(e, number - 1);
        PackEtap(e);
        EXPECT_EQ(e.image, readData("ETAPY/DETAP." + std::to_string(number))) << number;
    }
    EXPECT_EQ(e.image[uklad::OSTATNI], 1);
}

// Expects of each source that its parser complains, and how the complaint begins.
template <typename Parse> void expectMistakes(Parse parse, const std::map<std::string, std::string>& messages) {
    for (const auto& [source, message] : messages)
        try {
            (void)parse(Source("s", source));
            ADD_FAILURE() << "no mistake found in " << source;
        } catch (const SourceError& error) {
            EXPECT_EQ(std::string(error.what()).substr(0, message.size()), message) << source;
        }
}

// The source of a board whose first rows are given.
std::string boardOf(std::vector<std::string> rows) {
    rows.resize(PLANSZA_ROWS);
    std::string source;
    for (std::string& row : rows) {
        row.resize(PLANSZA_COLUMNS, '.');
        source += row + "\n";
    }
    return source;
}

const std::string LEGENDA =
    "kolory klucze 30 tlo 2 bomby 206\n. 0 NIC\n~ 139 WODA ; INV\nD 63 DORVA\nd 191 DORVA\nW 9 WYJŚCIE\n"
    "P 57 POCHODNIA\nM 56 MASZYNA\n";
const std::string HEAD = "swiat 1\nkolory standard\ncel 1\nostatni 0\npowitanie A\nopis\nplansza\n";

Bajty compiled(const Source& source, const Swiaty& swiaty = {}) {
    return parseEtap(source, parseLegenda({"l", LEGENDA}), swiaty);
}

TEST(Compiler, MistakesAreReportedWithTheirLine) {
    const std::string kolory = "grunt 1\ntwarz 2\nubranie 3\nwoda 4\ntlo 5\n";
    const std::string pusty = "0 NIC\n....\n....\n....\n....\n....\n....\n....\n....\n";
    expectMistakes(parseRysunki, {{"grunt 300\n", "s:1: a number from 0 to 255"},
                                  {kolory + "\n; uwaga\n0 NICO\n", "s:8: the tile \"0 NIC\""},
                                  {kolory + "0 NIC\n...x\n", "s:7: a pixel"},
                                  {kolory + pusty + "1 ZIEMIA\nlustro 1\n", "s:16: a number from 0 to 0"},
                                  {kolory + pusty, "s:14: the file ends"}});
    const auto stage = [](const Source& source) { return compiled(source); };
    const std::string row = std::string(40, '.') + "\n";
    expectMistakes(stage, {{"swiat 4\n", "s:1: a number from 1 to 3"},
                           {"swiat 1\nkolory niebo 4\n", "s:2: no colour"},
                           {"swiat 1\nkolory standard\ncel 100\n", "s:3: a number from 1 to 99"},
                           {HEAD.substr(0, HEAD.find("A\n")) + row, "s:5: at most 32"},
                           {HEAD + "." + row, "s:8: a row of the board"},
                           {HEAD + std::string(39, '.') + "?\n", "s:8: the legend"},
                           {HEAD + row, "s:8: the file ends"}});
    const std::string barwy = "kolory tlo 4\n";
    expectMistakes(parseLegenda, {{barwy + "ab 0 NIC\n", "s:2"},
                                  {barwy + ". 0 NIC\n. 1 ZIEMIA\n", "s:3"},
                                  {barwy + ". 64 NIC\n", "s:2"},
                                  {barwy + ". 1 NIC\n", "s:2"},
                                  {barwy + ". 0\n", "s:2"}});
    for (const char* tiles : {"", "D", "W", "DDW", "DdW", "DWW", "DWPP", "DWMM"})
        expectMistakes(stage, {{HEAD + boardOf({tiles}), "s:27: the board has"}});
    const fs::path stages = DORVA_STAGES;
    (void)parseEtap(Source::fromFile(stages / "szablon.txt"), parseLegenda(Source::fromFile(stages / "legenda.txt")),
                    {});
}

TEST(Compiler, AStagesColoursAreTheWorldsUnderTheSharedUnderItsOwn) {
    Swiaty swiaty{};
    swiaty[1].kolory = {10, 20, 30, 40, 50};
    const Bajty etap = compiled({"s", "swiat 2\nkolory tlo 6 klucze 8\ncel 7\nostatni 1\npowitanie ala, Żółw\nopis x\n"
                                      "plansza\n" +
                                          boardOf({"DW", "", std::string(40, '~')})},
                                swiaty);
    ASSERT_EQ(etap.size(), ETAP_SIZE_BYTES);
    EXPECT_EQ(Bajty(etap.begin() + 16, etap.begin() + 28), (Bajty{8, 206, 64, 128, 10, 20, 30, 40, 6, 0, 0, 164}));
    EXPECT_EQ(etap[32 + 79], 0);
    EXPECT_EQ(etap[32 + 80], 139);
    EXPECT_EQ(etap[32 + 119], 139);
    EXPECT_EQ((Bajty{etap[832], etap[833], etap[834]}), (Bajty{7, 1, 1}));
    // centred, with Polish capitals on the codes of lower-case letters
    EXPECT_EQ(Bajty(etap.begin() + 835 + 11, etap.begin() + 835 + 21),
              (Bajty{0, 33, 44, 33, 12, 0, 122, 111, 108, 55}));
}

} // namespace
} // namespace dorva::test
