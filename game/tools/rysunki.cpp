#include "rysunki.h"

#include "stage/etap_image.h"

#include <algorithm>
#include <utility>

namespace dorva {
namespace {

constexpr std::string_view PIKSELE = ".gtu"; // tło, grunt, twarz, ubranie
constexpr std::array<std::string_view, KOLORY_SIZE_BYTES> NAZWY_KOLOROW{"grunt", "twarz", "ubranie", "woda", "tlo"};
constexpr Bajt WODA = 3, TLO = 4; // places in the colour file

Ksztalt takeKsztalt(Source& source) {
    Ksztalt ksztalt{};
    for (auto& row : ksztalt) {
        const std::string_view line = source.take();
        if (line.size() != row.size())
            source.fail("a row of a tile has four pixels");
        for (std::size_t x = 0; x < row.size(); ++x) {
            const std::size_t pixel = PIKSELE.find(line[x]);
            if (pixel == std::string_view::npos)
                source.fail("a pixel is one of .gtu");
            row[x] = static_cast<Bajt>(pixel);
        }
    }
    return ksztalt;
}

// A drawing: its own rows, or that of a tile up to `last` mirrored, "lustro 26" left to right, "odbicie 28" top to
// bottom.
Ksztalt takeRysunek(Source& source, const Ksztalty& ksztalty, int last) {
    const auto [word, number] = splitWord(source.peek());
    if (word != "lustro" && word != "odbicie")
        return takeKsztalt(source);
    source.take();
    Ksztalt ksztalt = ksztalty[parseNumber(source, number, 0, last)];
    if (word == "odbicie") {
        std::ranges::reverse(ksztalt);
        return ksztalt;
    }
    for (auto& row : ksztalt)
        std::ranges::reverse(row);
    return ksztalt;
}

// The colour (place in the colour file) of a pixel of a tile.
Bajt barwa(Bajt pixel, bool inv) {
    if (pixel == 0)
        return TLO;
    return pixel == 3 && inv ? WODA : static_cast<Bajt>(pixel - 1);
}

void draw(ObrazBarwny& obraz, int x, int y, int side, const Ksztalt& ksztalt, bool inv) {
    const int w = side / KSZTALT_COLUMNS, h = side / KSZTALT_ROWS;
    for (int row = 0; row < KSZTALT_ROWS; ++row)
        for (int column = 0; column < KSZTALT_COLUMNS; ++column) {
            const Bajt pixel = ksztalt[row][column];
            obraz.fill(x + column * w, y + row * h, w, h, barwa(pixel, inv));
        }
}

std::vector<Rgb> barwy(std::span<const Bajt> kolory) {
    std::vector<Rgb> result;
    for (Bajt kolor : kolory)
        result.push_back(PaletaWbudowana[kolor]);
    return result;
}

} // namespace

Rysunki parseRysunki(Source source) {
    Rysunki rysunki;
    for (std::size_t i = 0; i < KOLORY_SIZE_BYTES; ++i) {
        const auto [nazwa, value] = splitWord(source.take());
        if (nazwa != NAZWY_KOLOROW[i])
            source.fail("the colour " + std::string(NAZWY_KOLOROW[i]) + " should stand here");
        rysunki.kolory[i] = static_cast<Bajt>(parseNumber(source, value, 0, 255));
    }
    for (std::size_t i = 0; i < ZNAKI_COUNT; ++i) {
        const std::string title = std::to_string(i) + " " + std::string(NAZWY_ZNAKOW[i]);
        if (source.take() != title)
            source.fail("the tile \"" + title + "\" should stand here");
        rysunki.ksztalty[i] = takeRysunek(source, rysunki.ksztalty, static_cast<int>(i) - 1);
    }
    for (const auto& [nazwa, ksztalt] : {std::pair{"otwarte", &rysunki.otwarte}, {"obcy", &rysunki.obcy}}) {
        if (source.take() != nazwa)
            source.fail("the drawing \"" + std::string(nazwa) + "\" should stand here");
        *ksztalt = takeKsztalt(source);
    }
    rysunki.drugie = rysunki.ksztalty;
    while (!source.atEnd()) {
        const auto [word, number] = splitWord(source.take());
        if (word != "ruch")
            source.fail("only second drawings, \"ruch 11\", may stand here");
        const int code = parseNumber(source, number, 1, ZNAKI_COUNT - 1);
        rysunki.drugie[code] = takeRysunek(source, rysunki.drugie, code);
    }
    return rysunki;
}

Bajty BuildZnaki(const Rysunki& rysunki) {
    Bajty bytes;
    for (std::size_t code = 0; bytes.size() < ZNAKI_SIZE_BYTES; ++code)
        for (const auto& row : code < ZNAKI_COUNT    ? rysunki.ksztalty[code]
                               : code == ZNAKI_COUNT ? rysunki.otwarte
                                                     : rysunki.drugie[code - ZNAKI_COUNT])
            bytes.push_back(static_cast<Bajt>(row[0] << 6 | row[1] << 4 | row[2] << 2 | row[3]));
    return bytes;
}

ObrazBarwny BuildPasek(const Rysunki& rysunki) {
    ObrazBarwny pasek(2 * ZNAKI_COUNT * OBRAZ_SIDE, OBRAZ_SIDE, barwy(rysunki.kolory));
    for (int position = 0; position < 2 * ZNAKI_COUNT; ++position)
        draw(pasek, position * OBRAZ_SIDE, 0, OBRAZ_SIDE, rysunki.ksztalty[position % ZNAKI_COUNT],
             position >= ZNAKI_COUNT);
    return pasek;
}

ObrazBarwny BuildPlansza(const Rysunki& rysunki, const Bajty& etap) {
    constexpr int SIDE = OBRAZ_SIDE / 2;
    const std::span kolory = std::span(etap).subspan(uklad::KOLORY + KOLORY_FIRST_SLOT, KOLORY_SIZE_BYTES);
    ObrazBarwny obraz(PLANSZA_COLUMNS * SIDE, PLANSZA_ROWS * SIDE, barwy(kolory));
    for (int cell = 0; cell < PLANSZA_CELLS; ++cell) {
        const int code = etap[uklad::PLANSZA + cell];
        const auto shape = code % INV;
        draw(obraz, cell % PLANSZA_COLUMNS * SIDE, cell / PLANSZA_COLUMNS * SIDE, SIDE,
             shape < ZNAKI_COUNT ? rysunki.ksztalty[shape] : rysunki.obcy, code >= INV);
    }
    return obraz;
}

} // namespace dorva
