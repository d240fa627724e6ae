#include "etapy.h"

#include <algorithm>

namespace dorva {
namespace {

constexpr std::array<std::string_view, SLOTY_COUNT> NAZWY_SLOTOW{
    "klucze", "bomby", "maski", "energia", "grunt", "twarz", "ubranie", "woda", "tlo", "symbole", "znaki", "panel"};

// The rest of the next line, which has to start with `name`.
std::string_view takeValue(Source& source, std::string_view name) {
    const auto [word, rest] = splitWord(source.take());
    if (word != name)
        source.fail("\"" + std::string(name) + "\" should stand here");
    return rest;
}

// The text of the next line, which must not be longer than its box.
Tekst takeTekst(Source& source, std::string_view name, std::size_t width) {
    Tekst tekst = toTekst(source, takeValue(source, name));
    if (tekst.size() > width)
        source.fail("at most " + std::to_string(width) + " characters");
    return tekst;
}

// The colours of a line such as "kolory grunt 180 tlo 0"; "kolory standard" has none.
GivenColours takeKolory(Source& source) {
    GivenColours chosen{};
    std::string_view pairs = takeValue(source, "kolory");
    while (pairs != "standard" && !pairs.empty()) {
        const auto [nazwa, value] = splitWord(pairs);
        const auto [number, rest] = splitWord(value);
        const auto slot = std::ranges::find(NAZWY_SLOTOW, nazwa);
        if (slot == NAZWY_SLOTOW.end())
            source.fail("no colour has the name \"" + std::string(nazwa) + "\"");
        chosen[slot - NAZWY_SLOTOW.begin()] = static_cast<Bajt>(parseNumber(source, number, 0, 255));
        pairs = rest;
    }
    return chosen;
}

// The colours of a stage: its own, else those that all stages share, else the world's.
std::array<Bajt, SLOTY_COUNT> mixKolory(std::size_t swiat, const Rysunki& rysunki, const GivenColours& shared,
                                        const GivenColours& own) {
    std::array<Bajt, SLOTY_COUNT> kolory = KOLORY_STARTOWE[swiat];
    std::ranges::copy(rysunki.kolory, kolory.begin() + KOLORY_FIRST_SLOT);
    for (std::size_t slot = 0; slot < kolory.size(); ++slot)
        kolory[slot] = own[slot].value_or(shared[slot].value_or(kolory[slot]));
    return kolory;
}

void takePlansza(Source& source, const Legenda& legenda, std::span<Bajt> cells) {
    takeValue(source, "plansza");
    for (std::size_t row = 0; row < PLANSZA_ROWS; ++row) {
        const std::string_view line = source.take();
        if (line.size() != PLANSZA_COLUMNS)
            source.fail("a row of the board has 40 characters");
        for (std::size_t column = 0; column < PLANSZA_COLUMNS; ++column) {
            const auto character = static_cast<Bajt>(line[column]);
            const int code = character < legenda.kody.size() ? legenda.kody[character] : -1;
            if (code < 0)
                source.fail(std::string("the legend does not know \"") + line[column] + "\"");
            cells[row * PLANSZA_COLUMNS + column] = static_cast<Bajt>(code);
        }
    }
}

// How often a tile may be on a board, in either form.
struct TileCount {
    Znak znak;
    int least, most;
};
constexpr std::array<TileCount, 4> TILE_COUNTS{{{DORVA, 1, 1}, {WYJSCIE, 1, 1}, {POCHODNIA, 0, 1}, {MASZYNA, 0, 1}}};

void checkTileCounts(const Source& source, std::span<const Bajt> cells) {
    for (const TileCount& tile : TILE_COUNTS) {
        const auto isTile = [&](Bajt cell) { return cell % INV == kod(tile.znak); };
        const auto count = std::ranges::count_if(cells, isTile);
        if (count < tile.least || count > tile.most)
            source.fail("the board has " + std::to_string(count) + " of the tile " +
                        std::string(NAZWY_ZNAKOW[kod(tile.znak)]) +
                        (tile.least == tile.most ? ", not one" : ", more than one"));
    }
}

} // namespace

Legenda parseLegenda(Source source) {
    Legenda legenda{};
    legenda.kolory = takeKolory(source);
    legenda.kody.fill(-1);
    while (!source.atEnd()) {
        const auto [mark, rest] = splitWord(source.take());
        const auto [number, nazwa] = splitWord(rest);
        const int code = parseNumber(source, number, 0, 255);
        const auto character = static_cast<Bajt>(mark[0]);
        if (mark.size() != 1 || character >= legenda.kody.size() || legenda.kody[character] >= 0)
            source.fail("a character of its own should stand for each tile");
        if (!isTile(znak(code)) || nazwa != NAZWY_ZNAKOW[code % INV])
            source.fail("tile and name do not belong together");
        legenda.kody[character] = code;
    }
    return legenda;
}

Bajty parseEtap(Source source, const Legenda& legenda, const Swiaty& swiaty) {
    const auto swiat = parseNumber(source, takeValue(source, "swiat"), 1, SWIATY_COUNT) - 1;
    const auto kolory = mixKolory(swiat, swiaty[swiat], legenda.kolory, takeKolory(source));
    const int cel = parseNumber(source, takeValue(source, "cel"), CEL_MIN, CEL_MAX);
    const int ostatni = parseNumber(source, takeValue(source, "ostatni"), 0, 1);
    const Tekst nazwa = takeTekst(source, "powitanie", NAZWA_WIDTH);
    const Tekst autor = takeTekst(source, "opis", AUTOR_WIDTH);

    Bajty image(ETAP_SIZE_BYTES, 0);
    std::ranges::copy(kolory, image.begin() + uklad::KOLORY);
    takePlansza(source, legenda, std::span(image).subspan(uklad::PLANSZA, PLANSZA_CELLS));
    image[uklad::CEL_MASEK] = static_cast<Bajt>(cel);
    image[uklad::OSTATNI] = static_cast<Bajt>(ostatni);
    image[uklad::SWIAT] = static_cast<Bajt>(swiat);
    std::ranges::copy(EncodeTekst(FitNazwa(nazwa)), image.begin() + uklad::NAZWA);
    std::ranges::copy(EncodeTekst(NormalizeBox(autor, AUTOR_WIDTH)), image.begin() + uklad::AUTOR);
    if (!source.atEnd()) {
        source.take();
        source.fail("the board has 20 rows");
    }
    checkTileCounts(source, std::span(image).subspan(uklad::PLANSZA, PLANSZA_CELLS));
    return image;
}

Bajty readEtap(const std::filesystem::path& path) {
    Bajty etap = readFile(path);
    if (etap.size() != ETAP_SIZE_BYTES)
        throw SourceError(path.string() + ": no stage file");
    return etap;
}

Bajty parseTytul(Source source) {
    Bajty bytes;
    for (const char* name : {"linia1", "linia2", "linia3"}) {
        const Bajty line = NormalizeBox(takeTekst(source, name, LINIA_WIDTH), LINIA_WIDTH).bytes();
        bytes.insert(bytes.end(), line.begin(), line.end());
    }
    return bytes;
}

} // namespace dorva
