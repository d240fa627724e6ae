// Checks a finished game template: its length, its chain of segments from the first byte to the last, and every place
// where the builder puts stages and title lines. Prints what is wrong and ends with 1, so that a build with a displaced
// byte fails.
#include "output/szablon.h"
#include "source.h"
#include "stage/etap_image.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <map>
#include <span>

using namespace dorva;

// The constants of the game's sources, to be compared with the editor's.
namespace gra {
#include "constants.h" // made of ../src/reguly.inc and rekord.inc
} // namespace gra
static_assert(gra::ETAP_KOLORY == uklad::KOLORY && gra::ETAP_PLANSZA == uklad::PLANSZA &&
              gra::ETAP_CEL == uklad::CEL_MASEK && gra::ETAP_OSTATNI == uklad::OSTATNI &&
              gra::ETAP_SWIAT == uklad::SWIAT && gra::ETAP_NAZWA == uklad::NAZWA &&
              gra::ETAP_BAJTY == ETAP_SIZE_BYTES && gra::TYTUL_BAJTY == LINIA_TYTULU_SIZE_BYTES);
static_assert(gra::KOLUMNY == PLANSZA_COLUMNS && gra::WIERSZE == PLANSZA_ROWS && gra::INV == INV);
static_assert(znak(gra::NIC) == NIC && znak(gra::ZIEMIA) == ZIEMIA && znak(gra::PULAPKA) == PULAPKA &&
              znak(gra::MUR_V) == MUREK_PIONOWY && znak(gra::MUR_H) == MUREK_POZIOMY && znak(gra::WYJSCIE) == WYJSCIE &&
              znak(gra::DRZWI) == DRZWI && znak(gra::MASKA) == MASKA && znak(gra::KLUCZ) == KLUCZ &&
              znak(gra::BOMBA) == BOMBA && znak(gra::MAGICZNY) == PRZEDMIOT && znak(gra::MASZYNA) == MASZYNA &&
              znak(gra::POCHODNIA) == POCHODNIA && znak(gra::DORVA) == DORVA);

namespace {

constexpr std::uint16_t PORTB = 0xD301;
constexpr std::uint16_t RUN_ADDRESS = 0x02E0;
constexpr std::uint16_t WINDOW = 0x4000;
constexpr std::uint16_t WINDOW_END = 0x8000;
constexpr std::uint16_t ROM_START = 0xC000;
constexpr Bajt MAIN_MEMORY = 0xFF;

// The value of PORTB while a block of stages loads, each into its own bank.
constexpr std::array<Bajt, 2> BANKS{0xE3, 0xE7};
constexpr std::size_t SWITCH_AT = rekordOffset(BLOK_ETAPOW - 1) + ETAP_SIZE_BYTES; // the header of a bank switch

struct Segment {
    std::uint16_t start = 0;
    std::size_t bytes = 0;
    Bajt bank = MAIN_MEMORY; // the value of PORTB when it is loaded
};

int faults = 0;

void expect(bool ok, const char* what, std::size_t at) {
    if (ok)
        return;
    std::fprintf(stderr, "szablon: %s (offset %zu)\n", what, at);
    ++faults;
}

std::uint16_t word(const Bajty& file, std::size_t at) {
    return static_cast<std::uint16_t>(file[at] | file[at + 1] << 8);
}

// Walks through the file like a loader. The key is the file offset of a segment's first data byte.
std::map<std::size_t, Segment> walk(const Bajty& file) {
    std::map<std::size_t, Segment> segments;
    Bajt bank = MAIN_MEMORY;
    expect(file.size() > 2 && word(file, 0) == 0xFFFF, "no $FFFF marker at the start", 0);
    std::size_t at = 2;
    while (at < file.size()) {
        if (at + 4 > file.size()) {
            expect(false, "half a segment header at the end", at);
            break;
        }
        const std::uint16_t start = word(file, at);
        const std::uint16_t end = word(file, at + 2);
        at += 4;
        const std::size_t bytes = end + 1 - start;
        if (end < start || at + bytes > file.size()) {
            expect(false, "a segment runs over the end of the file or backwards", at - 4);
            break;
        }
        segments[at] = {start, bytes, bank};
        if (start == PORTB) {
            expect(bytes == 1, "a bank switch is longer than one byte", at);
            bank = file[at];
        } else {
            expect(end < ROM_START, "a segment lies in ROM or among the hardware registers", at);
            expect(end < WINDOW || start >= WINDOW_END || bank != MAIN_MEMORY,
                   "main memory under the bank window is loaded", at);
        }
        at += bytes;
    }
    expect(bank == MAIN_MEMORY, "the last bank switch doesn't bring main memory back", at);
    return segments;
}

void checkStages(const std::map<std::size_t, Segment>& segments) {
    for (std::size_t i = 0; i < ETAPY_COUNT; ++i) {
        const std::size_t at = rekordOffset(i);
        const auto found = segments.find(at);
        if (found == segments.end()) {
            expect(false, "a stage record isn't a segment of its own", at);
            continue;
        }
        const Segment& s = found->second;
        expect(s.bytes == ETAP_SIZE_BYTES, "a stage record doesn't have 931 bytes", at);
        expect(s.bank == BANKS[i / BLOK_ETAPOW], "a stage loads into the wrong bank", at);
        expect(s.start == WINDOW + i % BLOK_ETAPOW * gra::ETAP_ODSTEP, "a stage loads to the wrong place", at);
    }
    const auto change = segments.find(SWITCH_AT + 4);
    expect(change != segments.end() && change->second.start == PORTB, "no bank switch between the two blocks of stages",
           SWITCH_AT);
}

void checkTitle(const Bajty& file, const std::map<std::size_t, Segment>& segments) {
    const auto found = segments.find(LINIE_TYTULU_OFFSET);
    expect(found != segments.end() && found->second.bytes == LINIE_COUNT * LINIA_TYTULU_SIZE_BYTES &&
               found->second.bank == MAIN_MEMORY,
           "the title lines aren't one segment in main memory", LINIE_TYTULU_OFFSET);
    for (std::size_t i = 0; i < LINIE_COUNT; ++i) {
        const std::size_t at = LINIE_TYTULU_OFFSET + i * LINIA_TYTULU_SIZE_BYTES;
        const auto line = std::span(file).subspan(at, LINIA_TYTULU_SIZE_BYTES);
        const auto end = std::ranges::find(line.subspan(1), line.back());
        expect(std::ranges::equal(line, BuildLiniaTytulu(DecodeTekst({line.begin() + 1, end}))),
               "a title line isn't one that the builder would lay there", at);
    }
}

void checkRun(const Bajty& file, const std::map<std::size_t, Segment>& segments) {
    const auto& [at, last] = *segments.rbegin();
    expect(last.start == RUN_ADDRESS && last.bytes == 2, "the file doesn't end with its run address", at);
    const std::uint16_t run = word(file, GRA_SIZE_BYTES - 2);
    bool loaded = false;
    for (const auto& [offset, s] : segments)
        loaded |= s.bank == MAIN_MEMORY && run >= s.start && run < s.start + s.bytes;
    expect(loaded, "the run address points to memory that isn't loaded", at);
}

} // namespace

int main(int argc, char** argv) {
    try {
        const Bajty file = readFile(argc == 2 ? argv[1] : "");
        expect(file.size() == GRA_SIZE_BYTES, "the file doesn't have 118433 bytes", file.size());
        if (faults)
            return 1;
        const auto segments = walk(file);
        if (!segments.empty()) {
            checkStages(segments);
            checkTitle(file, segments);
            checkRun(file, segments);
        }
        if (!faults)
            std::printf("szablon: %zu segments, %zu bytes, all in place\n", segments.size(), file.size());
    } catch (const SourceError& error) {
        expect(false, error.what(), 0);
    }
    return faults ? 1 : 0;
}
