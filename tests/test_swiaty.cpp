// The worlds and stages as the build has made them, and the compiler that makes them.
#include "etapy.h"
#include "pulpit.h"

#include <algorithm>
#include <set>

namespace dorva::test {
namespace {

const fs::path DANE = DORVA_DANE;
constexpr std::array<const char*, SWIATY_COUNT> ZESTAWY{"FNT01.ORN.ND", "FNT11.ORN.ND", "FNT21.ORN.ND"};

constexpr int OTWARTE_WYJSCIE = ZNAKI_COUNT; // a character that stands behind the tiles

Bajty readDane(const std::string& name) {
    return readFile(DANE / name);
}
Bajty readEtap(int number) {
    return readDane("ETAPY/DETAP." + std::to_string(number));
}
int codeAt(const Bajty& etap, int row, int column) {
    return etap[uklad::PLANSZA + row * PLANSZA_COLUMNS + column] % INV;
}
// The pixel of a bitmap of four bits a pixel that stands upright on its last row.
Rgb pixelOf(const Bajty& bmp, int x, int y) {
    const auto word = [&](std::size_t at) {
        return bmp[at] | bmp[at + 1] << 8 | bmp[at + 2] << 16 | bmp[at + 3] << 24;
    };
    const int width = word(18), height = word(22), rowBytes = width / 2;
    const Bajt pair = bmp.at(word(10) + (height - 1 - y) * rowBytes + x / 2);
    const auto colour = 54 + 4 * (x % 2 ? pair & 15 : pair >> 4);
    return {bmp[colour + 2], bmp[colour + 1], bmp[colour]};
}

TEST(Zestaw, StripIsTheCharacterSetSeenThroughTheColours) {
    for (const std::string name : ZESTAWY) {
        const Bajty znaki = readDane("OBIEKTY/ORN_EXPORT/" + name);
        const Bajty bmp = readDane("OBIEKTY/ORN_EXPORT/" + name + ".TILES.BMP");
        const Bajty kolory = readDane("OBIEKTY/ORN_EXPORT/" + name + ".KOLORY");
        ASSERT_EQ(znaki.size(), 1024U);
        ASSERT_EQ(kolory.size(), KOLORY_SIZE_BYTES);
        ASSERT_EQ(bmp.size(), 54U + 4U * 5U + 4096U * 32U / 2U);
        for (int x = 0; x < 4096; ++x)
            for (int y = 0; y < 32; ++y) {
                const int position = x / 32, code = position % 64;
                const unsigned bits = znaki[code * 8 + y / 4] >> (6 - x % 32 / 8 * 2) & 3U;
                // 00 is the background; 11 of the INV half takes the fourth colour.
                const std::size_t kolor = bits == 0 ? 4 : bits == 3 && position >= 64 ? 3 : bits - 1;
                ASSERT_EQ(pixelOf(bmp, x, y), PaletaWbudowana[kolory[kolor]]) << name << " " << x << "," << y;
            }
    }
}

using Wzor = std::array<Bajt, 8>;
Wzor wzor(const Bajty& znaki, int code) {
    Wzor w{};
    std::copy_n(znaki.begin() + code * 8, 8, w.begin());
    return w;
}
Wzor leftRight(Wzor w) {
    for (Bajt& row : w)
        row = static_cast<Bajt>(row >> 6 | (row >> 2 & 0x0C) | (row << 2 & 0x30) | row << 6);
    return w;
}
Wzor upDown(Wzor w) {
    std::reverse(w.begin(), w.end());
    return w;
}

// Tiles that may look alike: they do the same, or are one thing on its way.
const std::vector<std::set<int>> PODOBNE{{0, 3},                                    // free cells
                                         {5, 6},                                    // walls
                                         {19, 20, 21, 22},                          // rays
                                         {26, 27},                                  // creatures
                                         {28, 29},                                  // guards
                                         {30, 31, 32, 33, 54},                      // an explosion
                                         {36, 37, 38, 39},                          // trackers
                                         {43, 44},                                  // darts
                                         {45, 46, 47, 48},                          // stones
                                         {50, 51, 52, 53, 58, 59, 60, 61, 62, 63}}; // the heroine

int roznica(const Wzor& a, const Wzor& b) {
    int pixels = 0;
    for (std::size_t row = 0; row < a.size(); ++row)
        for (int shift = 0; shift < 8; shift += 2)
            pixels += (a[row] >> shift & 3) != (b[row] >> shift & 3);
    return pixels;
}

TEST(Zestaw, TilesOfDifferentEffectDifferInAtLeast12Of32Pixels) {
    for (const std::string name : ZESTAWY) {
        const Bajty znaki = readDane("OBIEKTY/ORN_EXPORT/" + name);
        for (int a = 0; a <= OTWARTE_WYJSCIE; ++a) {
            EXPECT_NE(wzor(znaki, a), wzor(znaki, 127)) << name << ": " << a << " looks like a code that is none";
            for (int b = 0; b < a; ++b) {
                const auto areBoth = [&](const auto& g) { return g.contains(a) && g.contains(b); };
                const int least = std::ranges::any_of(PODOBNE, areBoth) ? 1 : 12;
                EXPECT_GE(roznica(wzor(znaki, a), wzor(znaki, b)), least) << name << " " << b << " " << a;
            }
        }
    }
}

TEST(Zestaw, DirectionsMirrorAndWorldsDiffer) {
    std::set<Wzor> ziemie;
    for (const std::string name : ZESTAWY) {
        const Bajty znaki = readDane("OBIEKTY/ORN_EXPORT/" + name);
        EXPECT_EQ(wzor(znaki, 0), Wzor{});
        for (int code : {19, 26, 36, 43, 45})
            EXPECT_EQ(leftRight(wzor(znaki, code)), wzor(znaki, code + 1)) << name << " " << code;
        for (int code : {21, 28, 38, 47})
            EXPECT_EQ(upDown(wzor(znaki, code)), wzor(znaki, code + 1)) << name << " " << code;
        EXPECT_EQ(leftRight(wzor(znaki, 60)), wzor(znaki, 61)) << name;
        for (int code = OTWARTE_WYJSCIE + 1; code < 128; ++code)
            EXPECT_EQ(wzor(znaki, code), wzor(znaki, 127)) << name << " " << code;
        EXPECT_TRUE(ziemie.insert(wzor(znaki, 1)).second) << "each world has its own drawings";
    }
}

// What may be in the heroine's way, and by what she gets past it.
enum Srodek { BOMBY, SKRZYNIE, MAGIA, KLUCZE, BRODZENIE, BAGNA, PLOMIENIE };

struct Zasieg {
    int maski = 0, klucze = 0;
    bool wyjscie = false;
    std::set<int> drzwi; // doors that have stopped her
    bool isEnough(const Bajty& etap) const { return wyjscie && maski >= etap[uklad::CEL_MASEK]; }
};

bool isSolid(int code, const std::set<Srodek>& bez) {
    static const std::set<int> zawsze{5, 6, 9, 50, 51, 52, 53, 56, 58, 59, 60, 61, 62};
    static const std::map<int, Srodek> przez{{7, BOMBY},      {17, BOMBY}, {18, BOMBY},    {40, BOMBY},
                                             {41, BOMBY},     {42, BOMBY}, {15, SKRZYNIE}, {10, KLUCZE},
                                             {11, BRODZENIE}, {49, BAGNA}, {35, PLOMIENIE}};
    return zawsze.contains(code) || (przez.contains(code) && bez.contains(przez.at(code)));
}

// How far she may get at best without some of the means, the others given without end. A swamp takes her after three
// cells where no crate fills it; without keys, some doors may have been opened.
Zasieg findZasieg(const Bajty& etap, const std::set<Srodek>& bez, const std::set<int>& otwarte = {}) {
    std::vector<int> magiczne;
    int start = 0;
    for (int cell = 0; cell < PLANSZA_CELLS; ++cell) {
        if (codeAt(etap, 0, cell) == kod(DORVA))
            start = cell;
        if (codeAt(etap, 0, cell) == kod(PRZEDMIOT) && !isEdge(cell))
            magiczne.push_back(cell);
    }
    Zasieg zasieg;
    std::set<int> seen; // cells, a thousand for each cell of swamp in a row
    std::vector<int> next{start};
    while (!next.empty()) {
        const int cell = next.back() % 1000, bagno = next.back() / 1000;
        next.pop_back();
        for (int beside : {cell - 1, cell + 1, cell - PLANSZA_COLUMNS, cell + PLANSZA_COLUMNS}) {
            const int code = codeAt(etap, 0, beside);
            zasieg.wyjscie |= code == kod(WYJSCIE);
            const int deep = code == 49 && bez.contains(SKRZYNIE) ? bagno + 1 : 0;
            if (isEdge(beside) || (isSolid(code, bez) && !otwarte.contains(beside)) || deep > 3) {
                if (code == kod(DRZWI))
                    zasieg.drzwi.insert(beside);
                continue;
            }
            const auto magiczny = std::find(magiczne.begin(), magiczne.end(), beside);
            if (magiczny != magiczne.end() && !bez.contains(MAGIA))
                beside = magiczne.at((magiczny - magiczne.begin()) ^ 1U);
            if (!seen.insert(beside + 1000 * deep).second)
                continue;
            next.push_back(beside + 1000 * deep);
            zasieg.maski += code == kod(MASKA) && deep == 0;
            zasieg.klucze += code == kod(KLUCZ);
        }
    }
    return zasieg;
}

// Whatever doors she opens first, a key is left until she has all that she needs.
bool isSafeToOpen(const Bajty& etap, const std::set<int>& otwarte = {}) {
    const Zasieg zasieg = findZasieg(etap, {KLUCZE}, otwarte);
    return zasieg.isEnough(etap) || (zasieg.klucze > static_cast<int>(otwarte.size()) &&
                                     std::all_of(zasieg.drzwi.begin(), zasieg.drzwi.end(), [&](int drzwi) {
                                         std::set<int> next = otwarte;
                                         next.insert(drzwi);
                                         return isSafeToOpen(etap, next);
                                     }));
}

// The recorded runs prove that each stage can be finished; this, that none can be without its tools: one of them from
// stage 9 on, two from stage 20 on. Keys are a tool where a key lies behind a door.
TEST(Etapy, EachAsksForItsTools) {
    const std::map<int, Srodek> przeszkody{{8, BAGNA},      {13, BRODZENIE}, {22, BRODZENIE},
                                           {23, BRODZENIE}, {28, BRODZENIE}, {32, PLOMIENIE}};
    for (int number = 1; number <= ETAPY_COUNT; ++number) {
        const Bajty etap = readEtap(number);
        const Zasieg wszystko = findZasieg(etap, {});
        EXPECT_TRUE(wszystko.isEnough(etap)) << number;
        EXPECT_TRUE(isSafeToOpen(etap)) << number << ": a door that no key is left for";
        int narzedzia = 0;
        for (Srodek srodek : {BOMBY, SKRZYNIE, MAGIA, KLUCZE}) {
            const Zasieg bez = findZasieg(etap, {srodek});
            narzedzia += !bez.isEnough(etap) && (srodek != KLUCZE || bez.klucze < wszystko.klucze);
        }
        EXPECT_GE(narzedzia, number < 9 ? 0 : number < 20 ? 1 : 2) << number;
        if (przeszkody.contains(number)) {
            EXPECT_FALSE(findZasieg(etap, {przeszkody.at(number)}).isEnough(etap)) << number;
        }
    }
}

TEST(Etapy, WorldsTakeTurnsGoalsRiseTextsDiffer) {
    std::set<std::string> nazwy;
    std::set<int> uzyte;
    for (int number = 1; number <= ETAPY_COUNT; ++number) {
        const Bajty etap = readEtap(number);
        ASSERT_EQ(etap.size(), ETAP_SIZE_BYTES);
        EXPECT_EQ(etap[uklad::SWIAT], (number - 1) % SWIATY_COUNT) << number;
        EXPECT_EQ(etap[uklad::OSTATNI], number == ETAPY_COUNT) << number;
        if (number > 8) {
            EXPECT_GE(etap[uklad::CEL_MASEK], readEtap(number - 8)[uklad::CEL_MASEK]) << number;
        }
        for (int cell = 0; cell < PLANSZA_CELLS; ++cell)
            uzyte.insert(codeAt(etap, 0, cell));

        const std::string nazwa = DecodeTekst(std::span(etap).subspan(uklad::NAZWA, NAZWA_WIDTH)).znaki;
        EXPECT_TRUE(nazwy.insert(nazwa).second) << number;
        EXPECT_EQ(etap[uklad::KOLORY + 11] % 16, 4) << number << ": the panel's luminance";
    }
    for (int code : WYBOR_ORDER)
        EXPECT_TRUE(uzyte.contains(code)) << "no stage uses tile " << code;
}

class Swiaty32 : public Pulpit {};

TEST_F(Swiaty32, TheEditorFindsNoFaultAndKeepsEveryByte) {
    fs::copy(DANE, base, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    start();
    EXPECT_EQ(e.Paleta, PaletaWbudowana);
    EXPECT_EQ(e.okno.txtAutorGry[0].tekst, ascii("DORVA PLANSZOWNIK!  "));
    for (int number = 1; number <= ETAPY_COUNT; ++number) {
        if (number > 1)
            SelectEtapNR(e, number - 1);
        for (const InfoFigura& figura : e.okno.lblInfo)
            EXPECT_FALSE(figura.czerwona) << number;
        PackEtap(e);
        EXPECT_EQ(e.image, readEtap(number)) << number;
        for (info::Figura one : {info::DORVA, info::WYJSCIE})
            EXPECT_EQ(e.okno.lblInfo[one].liczba, 1) << number;
        for (info::Figura atMostOne : {info::MASZYNY, info::POCHODNIA})
            EXPECT_LE(e.okno.lblInfo[atMostOne].liczba, 1) << number;
    }
}

void expectTold(const std::function<void(const Zrodlo&)>& parse, const std::map<std::string, std::string>& mistakes) {
    for (const auto& [source, message] : mistakes) {
        std::string told;
        try {
            parse({"s", source});
        } catch (const BladZrodla& blad) {
            told = blad.what();
        }
        EXPECT_EQ(told.substr(0, message.size()), message) << source;
    }
}

TEST(Kompilator, MistakesAreToldWithTheirLine) {
    const std::string kolory = "grunt 1\ntwarz 2\nubranie 3\nwoda 4\ntlo 5\n";
    const std::string pusty = "0 NIC\n....\n....\n....\n....\n....\n....\n....\n....\n";
    expectTold([](const Zrodlo& zrodlo) { parseRysunki(zrodlo); },
               {{"grunt 300\n", "s:1: a number from 0 to 255"},
                {kolory + "\n; uwaga\n0 NICO\n", "s:8: the tile \"0 NIC\""},
                {kolory + "0 NIC\n...x\n", "s:7: a pixel"},
                {kolory + pusty + "1 ZIEMIA\nlustro 1\n", "s:16: a number from 0 to 0"},
                {kolory + pusty, "s:14: the file ends"}});

    const std::string head = "swiat 1\nkolory standard\ncel 1\nostatni 0\npowitanie A\nopis\nplansza\n";
    const std::string row = std::string(40, '.') + "\n";
    expectTold(
        [](const Zrodlo& zrodlo) {
            parseEtap(zrodlo, parseLegenda({"l", "kolory standard\n. 0 NIC\n~ 139 WODA ; INV\n"}), {});
        },
        {{"swiat 4\n", "s:1: a number from 1 to 3"},
         {"swiat 1\nkolory niebo 4\n", "s:2: no colour"},
         {"swiat 1\nkolory standard\ncel 100\n", "s:3: a number from 1 to 99"},
         {"swiat 1\nkolory standard\ncel 1\nostatni 0\npowitanie " + row, "s:5: at most 32"},
         {head + std::string(39, '.') + "?\n", "s:8: the legend"},
         {head + row, "s:8: the file ends"}});
    const std::string barwy = "kolory tlo 4\n";
    expectTold([](const Zrodlo& zrodlo) { parseLegenda(zrodlo); }, {{barwy + "ab 0 NIC\n", "s:2"},
                                                                    {barwy + ". 0 NIC\n. 1 ZIEMIA\n", "s:3"},
                                                                    {barwy + ". 64 NIC\n", "s:2"},
                                                                    {barwy + ". 1 NIC\n", "s:2"},
                                                                    {barwy + ". 0\n", "s:2"}});
}

TEST(Kompilator, TheTemplateOfAStageIsAStage) {
    const fs::path stages = DORVA_STAGES;
    const Bajty etap =
        parseEtap(Zrodlo::fromFile(stages / "szablon.txt"), parseLegenda(Zrodlo::fromFile(stages / "legenda.txt")), {});
    EXPECT_TRUE(findZasieg(etap, {}).isEnough(etap));
}

TEST(Kompilator, AStagesColoursAreTheWorldsUnderTheSharedUnderItsOwn) {
    Swiaty swiaty{};
    swiaty[1].kolory = {10, 20, 30, 40, 50};
    std::string source = "swiat 2\nkolory tlo 6 klucze 8\ncel 7\nostatni 1\npowitanie ala, Żółw\nopis x\nplansza\n";
    for (int row = 0; row < PLANSZA_ROWS; ++row)
        source += std::string(40, row == 2 ? '~' : '.') + "\n";
    const Bajty etap = parseEtap(
        {"s", source}, parseLegenda({"l", "kolory klucze 30 tlo 2 bomby 206\n. 0 NIC\n~ 139 WODA\n"}), swiaty);
    ASSERT_EQ(etap.size(), ETAP_SIZE_BYTES);
    EXPECT_EQ(Bajty(etap.begin() + 16, etap.begin() + 28), (Bajty{8, 206, 64, 128, 10, 20, 30, 40, 6, 0, 0, 164}));
    EXPECT_EQ(etap[32 + 79], 0);
    EXPECT_EQ(etap[32 + 80], 139);
    EXPECT_EQ(etap[32 + 119], 139);
    EXPECT_EQ((Bajty{etap[832], etap[833], etap[834]}), (Bajty{7, 1, 1}));
    // centred by its length, Polish letters on the codes of their lower-case ones
    EXPECT_EQ(Bajty(etap.begin() + 835 + 11, etap.begin() + 835 + 21),
              (Bajty{0, 33, 44, 33, 12, 0, 122, 111, 108, 55}));
}

} // namespace
} // namespace dorva::test
