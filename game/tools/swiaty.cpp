// Compiles the worlds and stages from their text sources:
//   swiaty zestaw SWIAT.txt WYNIK.ND        character set, WYNIK.ND.TILES.BMP and WYNIK.ND.KOLORY of a world
//   swiaty etapy ART STAGES WYNIK           folder of the 32 stage files
//   swiaty tytul TYTUL.txt WYNIK            title lines
//   swiaty paleta WYNIK                     the built-in colour table as a palette file
//   swiaty plansza SWIAT.txt ETAP WYNIK.BMP picture of a stage file's board
#include "etapy.h"
#include "sciezki.h"

#include <algorithm>
#include <exception>
#include <functional>
#include <iostream>
#include <map>

using namespace dorva;
namespace fs = std::filesystem;

namespace {

using Argumenty = std::vector<fs::path>;

fs::path plus(fs::path path, const char* suffix) {
    return path += suffix;
}

void makeZestaw(const Argumenty& a) {
    const Rysunki rysunki = parseRysunki(Zrodlo::fromFile(a[0]));
    writePlik(a[1], BuildZnaki(rysunki));
    writePlik(plus(a[1], ".TILES.BMP"), BuildBmp(BuildPasek(rysunki)));
    writePlik(plus(a[1], ".KOLORY"), {rysunki.kolory.begin(), rysunki.kolory.end()});
}

void makeEtapy(const Argumenty& a) {
    Swiaty swiaty;
    for (std::size_t i = 0; i < swiaty.size(); ++i)
        swiaty[i] = parseRysunki(Zrodlo::fromFile(a[0] / ("swiat" + std::to_string(i + 1) + ".txt")));
    const Legenda legenda = parseLegenda(Zrodlo::fromFile(a[1] / "legenda.txt"));
    const auto isSource = [](const fs::directory_entry& entry) {
        return entry.path().extension() == ".txt" && entry.path().stem().string().starts_with("etap");
    };
    if (std::ranges::count_if(fs::directory_iterator(a[1]), fs::directory_iterator(), isSource) > ETAPY_COUNT)
        throw BladZrodla(a[1].string() + ": more stages than the 32 that a game has");
    for (int number = 1; number <= ETAPY_COUNT; ++number) {
        const std::string two = (number < 10 ? "0" : "") + std::to_string(number);
        writePlik(a[2] / sciezki::nazwaEtapu(number),
                  parseEtap(Zrodlo::fromFile(a[1] / ("etap" + two + ".txt")), legenda, swiaty));
    }
}

void makeTytul(const Argumenty& a) {
    writePlik(a[1], parseTytul(Zrodlo::fromFile(a[0])));
}

void makePaleta(const Argumenty& a) {
    Bajty bytes;
    for (const Rgb& barwa : PaletaWbudowana)
        bytes.insert(bytes.end(), {barwa.r, barwa.g, barwa.b});
    writePlik(a[0], bytes);
}

void makePlansza(const Argumenty& a) {
    writePlik(a[2], BuildBmp(BuildPlansza(parseRysunki(Zrodlo::fromFile(a[0])), readEtap(a[1]))));
}

struct Polecenie {
    std::size_t arguments;
    std::function<void(const Argumenty&)> run;
};
const std::map<std::string, Polecenie> POLECENIA{{"zestaw", {2, makeZestaw}},
                                                 {"etapy", {3, makeEtapy}},
                                                 {"tytul", {2, makeTytul}},
                                                 {"paleta", {1, makePaleta}},
                                                 {"plansza", {3, makePlansza}}};

} // namespace

int main(int argc, char** argv) {
    const auto polecenie = POLECENIA.find(argc > 1 ? argv[1] : "");
    const Argumenty arguments(argv + std::min(argc, 2), argv + argc);
    if (polecenie == POLECENIA.end() || polecenie->second.arguments != arguments.size()) {
        std::cerr << "swiaty zestaw|etapy|tytul|paleta|plansza ...\n";
        return 2;
    }
    try {
        polecenie->second.run(arguments);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
