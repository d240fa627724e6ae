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

using Arguments = std::vector<fs::path>;

fs::path plus(fs::path path, const char* suffix) {
    return path += suffix;
}

void makeZestaw(const Arguments& a) {
    const Rysunki rysunki = parseRysunki(Source::fromFile(a[0]));
    writeFile(a[1], BuildZnaki(rysunki));
    writeFile(plus(a[1], ".TILES.BMP"), BuildBmp(BuildPasek(rysunki)));
    writeFile(plus(a[1], ".KOLORY"), {rysunki.kolory.begin(), rysunki.kolory.end()});
}

void makeEtapy(const Arguments& a) {
    Swiaty swiaty;
    for (std::size_t i = 0; i < swiaty.size(); ++i)
        swiaty[i] = parseRysunki(Source::fromFile(a[0] / ("swiat" + std::to_string(i + 1) + ".txt")));
    const Legenda legenda = parseLegenda(Source::fromFile(a[1] / "legenda.txt"));
    const auto isSource = [](const fs::directory_entry& entry) {
        return entry.path().extension() == ".txt" && entry.path().stem().string().starts_with("etap");
    };
    if (std::ranges::count_if(fs::directory_iterator(a[1]), fs::directory_iterator(), isSource) > ETAPY_COUNT)
        throw SourceError(a[1].string() + ": more stages than the 32 that a game has");
    for (int number = 1; number <= ETAPY_COUNT; ++number) {
        const std::string two = (number < 10 ? "0" : "") + std::to_string(number);
        writeFile(a[2] / sciezki::nazwaEtapu(number),
                  parseEtap(Source::fromFile(a[1] / ("etap" + two + ".txt")), legenda, swiaty));
    }
}

void makeTytul(const Arguments& a) {
    writeFile(a[1], parseTytul(Source::fromFile(a[0])));
}

void makePaleta(const Arguments& a) {
    Bajty bytes;
    for (const Rgb& barwa : PaletaWbudowana)
        bytes.insert(bytes.end(), {barwa.r, barwa.g, barwa.b});
    writeFile(a[0], bytes);
}

void makePlansza(const Arguments& a) {
    writeFile(a[2], BuildBmp(BuildPlansza(parseRysunki(Source::fromFile(a[0])), readEtap(a[1]))));
}

struct Command {
    std::size_t arguments;
    std::function<void(const Arguments&)> run;
};
const std::map<std::string, Command> COMMANDS{{"zestaw", {2, makeZestaw}},
                                              {"etapy", {3, makeEtapy}},
                                              {"tytul", {2, makeTytul}},
                                              {"paleta", {1, makePaleta}},
                                              {"plansza", {3, makePlansza}}};

} // namespace

int main(int argc, char** argv) {
    const auto command = COMMANDS.find(argc > 1 ? argv[1] : "");
    const Arguments arguments(argv + std::min(argc, 2), argv + argc);
    if (command == COMMANDS.end() || command->second.arguments != arguments.size()) {
        std::cerr << "swiaty zestaw|etapy|tytul|paleta|plansza ...\n";
        return 2;
    }
    try {
        command->second.run(arguments);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
