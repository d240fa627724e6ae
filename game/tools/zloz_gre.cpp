// Game files to try the game with, made by the builder's own functions:
//   zloz_gre SZABLON WYNIK LINIA LINIA LINIA ETAP...   makes a game with these title lines and, from stage 1 on, these
//                                                      stage files; the game ends after the last of them
#include "etapy.h"
#include "output/szablon.h"
#include "stage/etap_image.h"

#include <exception>
#include <iostream>

using namespace dorva;

namespace {

using Arguments = std::vector<std::string>;

constexpr std::size_t FIRST_LINIA = 2, FIRST_ETAP = FIRST_LINIA + LINIE_COUNT; // arguments

Tekst linia(const Arguments& a, std::size_t index) {
    return toTekst(Source("title line", ""), a[FIRST_LINIA + index]);
}

void makeGra(const Arguments& a) {
    const SzablonGry szablon = readFile(a[0]);
    if (szablon.size() != GRA_SIZE_BYTES || a.size() - FIRST_ETAP > ETAPY_COUNT)
        throw SourceError(a[0] + ": no game template, or too many stages for it");
    std::vector<EtapImage> etapy;
    for (std::size_t i = FIRST_ETAP; i < a.size(); ++i)
        etapy.push_back(readEtap(a[i]));
    etapy.back()[uklad::OSTATNI] = 1;
    writeFile(a[1], buildGra(szablon, etapy, {linia(a, 0), linia(a, 1), linia(a, 2)}));
}

} // namespace

int main(int argc, char** argv) {
    const Arguments arguments(argv + 1, argv + argc);
    try {
        if (arguments.size() <= FIRST_ETAP)
            throw SourceError("usage: zloz_gre SZABLON WYNIK LINIA LINIA LINIA ETAP...");
        makeGra(arguments);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
