#include "przeglad/gra.h"

#include <algorithm>
#include <span>
#include <utility>

namespace dorva {
namespace {

// The mark that a stage gives the place where it was read.
Bajt markOf(const EtapImage& image, int place) {
    const Bajt mark = !image.empty() && image[uklad::OSTATNI] <= OSTATNI_MAX ? image[uklad::OSTATNI] : Bajt{0};
    return place == ETAPY_COUNT - 1 && mark == 0 ? Bajt{1} : mark;
}

// Gives each stage that has come to another place the mark of that place.
void stamp(Gra& gra, const Gra& before) {
    for (int i = 0; i < ETAPY_COUNT; ++i)
        if (EtapImage& image = gra.karty[i].image; !image.empty() && gra.karty[i] != before.karty[i])
            image[uklad::OSTATNI] = gra.ostatni[i];
}

template <typename Change> Gra changed(Gra gra, Change change) {
    const Gra before = gra;
    change(gra.karty);
    stamp(gra, before);
    return gra;
}

bool isWall(Znak z) {
    return kod(z) % INV == kod(MUREK_PIONOWY) || kod(z) % INV == kod(MUREK_POZIOMY);
}

} // namespace

void takeOstatni(Gra& gra) {
    for (int i = 0; i < ETAPY_COUNT; ++i)
        gra.ostatni[i] = markOf(gra.karty[i].image, i);
}

std::string refusal(const EtapImage& image) {
    const int cel = image[uklad::CEL_MASEK], ostatni = image[uklad::OSTATNI], swiat = image[uklad::SWIAT];
    if (cel < CEL_MIN || cel > CEL_MAX)
        return "cel etapu to " + std::to_string(cel);
    if (ostatni > OSTATNI_MAX)
        return "znacznik OSTATNI to " + std::to_string(ostatni);
    if (swiat >= SWIATY_COUNT)
        return "świat to " + std::to_string(swiat + 1);
    return {};
}

Tekst nazwaOf(const EtapImage& image) {
    return trimmed(DecodeTekst(std::span(image).subspan(uklad::NAZWA, NAZWA_WIDTH)));
}

bool isEmpty(const Karta& karta) {
    if (karta.image.empty())
        return true;
    for (int cell = 0; cell < PLANSZA_CELLS; ++cell) {
        const Znak z = znak(karta.image[uklad::PLANSZA + cell]);
        if (isEdge(cell) ? !isWall(z) : z != ZIEMIA)
            return false;
    }
    return true;
}

Gra moved(Gra gra, int from, int to) {
    return changed(std::move(gra), [=](auto& karty) {
        const auto first = karty.begin() + std::min(from, to), last = karty.begin() + std::max(from, to) + 1;
        std::rotate(first, from < to ? first + 1 : last - 1, last);
    });
}

Gra exchanged(Gra gra, int one, int other) {
    return changed(std::move(gra), [=](auto& karty) { std::swap(karty[one], karty[other]); });
}

Gra replaced(Gra gra, int place, const EtapImage& image) {
    if (const Karta& old = gra.karty[place]; old.image.empty() && old.numer == place + 1)
        gra.ostatni[place] = markOf(image, place); // it was lost with the stage
    return changed(std::move(gra), [&](auto& karty) { karty[place] = {image, "", karty[place].numer}; });
}

} // namespace dorva
