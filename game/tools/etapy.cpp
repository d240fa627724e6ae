#include "etapy.h"

#include <algorithm>

namespace dorva {
namespace {

constexpr std::array<std::string_view, SLOTY_COUNT> NAZWY_SLOTOW{
    "klucze", "bomby", "maski", "energia", "grunt", "twarz", "ubranie", "woda", "tlo", "symbole", "znaki", "panel"};

// The rest of the next line, which has to start with `name`.
std::string_view takeWartosc(Zrodlo& z, std::string_view name) {
    const auto [slowo, reszta] = splitSlowo(z.take());
    if (slowo != name)
        z.fail("\"" + std::string(name) + "\" should stand here");
    return reszta;
}

// The text of the next line, which must not be longer than its box.
Tekst takeTekst(Zrodlo& z, std::string_view name, std::size_t width) {
    Tekst tekst = toTekst(z, takeWartosc(z, name));
    if (tekst.size() > width)
        z.fail("at most " + std::to_string(width) + " characters");
    return tekst;
}

// The colours of a line such as "kolory grunt 180 tlo 0"; "kolory standard" has none.
WybraneKolory takeKolory(Zrodlo& z) {
    WybraneKolory wybrane{};
    std::string_view pairs = takeWartosc(z, "kolory");
    while (pairs != "standard" && !pairs.empty()) {
        const auto [nazwa, value] = splitSlowo(pairs);
        const auto [liczba, reszta] = splitSlowo(value);
        const auto slot = std::ranges::find(NAZWY_SLOTOW, nazwa);
        if (slot == NAZWY_SLOTOW.end())
            z.fail("no colour has the name \"" + std::string(nazwa) + "\"");
        wybrane[slot - NAZWY_SLOTOW.begin()] = static_cast<Bajt>(parseLiczba(z, liczba, 0, 255));
        pairs = reszta;
    }
    return wybrane;
}

// The colours of a stage: its own, else those that all stages share, else the world's.
std::array<Bajt, SLOTY_COUNT> mixKolory(std::size_t swiat, const Rysunki& rysunki, const WybraneKolory& wspolne,
                                        const WybraneKolory& wlasne) {
    std::array<Bajt, SLOTY_COUNT> kolory = KOLORY_STARTOWE[swiat];
    std::ranges::copy(rysunki.kolory, kolory.begin() + KOLORY_FIRST_SLOT);
    for (std::size_t slot = 0; slot < kolory.size(); ++slot)
        kolory[slot] = wlasne[slot].value_or(wspolne[slot].value_or(kolory[slot]));
    return kolory;
}

void takePlansza(Zrodlo& z, const Legenda& legenda, std::span<Bajt> cells) {
    takeWartosc(z, "plansza");
    for (std::size_t row = 0; row < PLANSZA_ROWS; ++row) {
        const std::string_view line = z.take();
        if (line.size() != PLANSZA_COLUMNS)
            z.fail("a row of the board has 40 characters");
        for (std::size_t column = 0; column < PLANSZA_COLUMNS; ++column) {
            const auto character = static_cast<Bajt>(line[column]);
            const int code = character < legenda.kody.size() ? legenda.kody[character] : -1;
            if (code < 0)
                z.fail(std::string("the legend does not know \"") + line[column] + "\"");
            cells[row * PLANSZA_COLUMNS + column] = static_cast<Bajt>(code);
        }
    }
}

// How often a tile may be on a board, in either form.
struct Liczebnosc {
    Znak znak;
    int least, most;
};
constexpr std::array<Liczebnosc, 4> LICZEBNOSCI{{{DORVA, 1, 1}, {WYJSCIE, 1, 1}, {POCHODNIA, 0, 1}, {MASZYNA, 0, 1}}};

void checkLiczebnosci(const Zrodlo& z, std::span<const Bajt> cells) {
    for (const auto& [tile, least, most] : LICZEBNOSCI) {
        const auto isTile = [&](Bajt cell) { return cell % INV == kod(tile); };
        const auto count = std::ranges::count_if(cells, isTile);
        if (count < least || count > most)
            z.fail("the board has " + std::to_string(count) + " of the tile " + std::string(NAZWY_ZNAKOW[kod(tile)]) +
                   (least == most ? ", not one" : ", more than one"));
    }
}

} // namespace

Legenda parseLegenda(Zrodlo z) {
    Legenda legenda{};
    legenda.kolory = takeKolory(z);
    legenda.kody.fill(-1);
    while (!z.atEnd()) {
        const auto [znaczek, reszta] = splitSlowo(z.take());
        const auto [liczba, nazwa] = splitSlowo(reszta);
        const int code = parseLiczba(z, liczba, 0, 255);
        const auto character = static_cast<Bajt>(znaczek[0]);
        if (znaczek.size() != 1 || character >= legenda.kody.size() || legenda.kody[character] >= 0)
            z.fail("a character of its own should stand for each tile");
        if (!isTile(znak(code)) || nazwa != NAZWY_ZNAKOW[code % INV])
            z.fail("tile and name do not belong together");
        legenda.kody[character] = code;
    }
    return legenda;
}

Bajty parseEtap(Zrodlo z, const Legenda& legenda, const Swiaty& swiaty) {
    const auto swiat = parseLiczba(z, takeWartosc(z, "swiat"), 1, SWIATY_COUNT) - 1;
    const auto kolory = mixKolory(swiat, swiaty[swiat], legenda.kolory, takeKolory(z));
    const int cel = parseLiczba(z, takeWartosc(z, "cel"), CEL_MIN, CEL_MAX);
    const int ostatni = parseLiczba(z, takeWartosc(z, "ostatni"), 0, 1);
    const Tekst nazwa = takeTekst(z, "powitanie", NAZWA_WIDTH);
    const Tekst autor = takeTekst(z, "opis", AUTOR_WIDTH);

    Bajty image(ETAP_SIZE_BYTES, 0);
    std::ranges::copy(kolory, image.begin() + uklad::KOLORY);
    takePlansza(z, legenda, std::span(image).subspan(uklad::PLANSZA, PLANSZA_CELLS));
    image[uklad::CEL_MASEK] = static_cast<Bajt>(cel);
    image[uklad::OSTATNI] = static_cast<Bajt>(ostatni);
    image[uklad::SWIAT] = static_cast<Bajt>(swiat);
    std::ranges::copy(EncodeTekst(FitNazwa(nazwa)), image.begin() + uklad::NAZWA);
    std::ranges::copy(EncodeTekst(NormalizeBox(autor, AUTOR_WIDTH)), image.begin() + uklad::AUTOR);
    if (!z.atEnd()) {
        z.take();
        z.fail("the board has 20 rows");
    }
    checkLiczebnosci(z, std::span(image).subspan(uklad::PLANSZA, PLANSZA_CELLS));
    return image;
}

Bajty readEtap(const std::filesystem::path& path) {
    Bajty etap = readPlik(path);
    if (etap.size() != ETAP_SIZE_BYTES)
        throw BladZrodla(path.string() + ": no stage file");
    return etap;
}

Bajty parseTytul(Zrodlo z) {
    Bajty bytes;
    for (const char* name : {"linia1", "linia2", "linia3"}) {
        const Bajty line = NormalizeBox(takeTekst(z, name, LINIA_WIDTH), LINIA_WIDTH).bytes();
        bytes.insert(bytes.end(), line.begin(), line.end());
    }
    return bytes;
}

} // namespace dorva
