#include "przeglad/ostrzezenia.h"

#include "board/spis.h"

#include <algorithm>
#include <set>
#include <span>

namespace dorva {
namespace {

using Teksty = std::vector<std::string>;

// What the panel of the editor shows in red.
void addPanel(Teksty& teksty, const Spis& spis, int celMasek) {
    if (spis.dorvy == 0)
        teksty.emplace_back("nie ma Dorvy");
    if (spis.wyjscia == 0)
        teksty.emplace_back("nie ma wyjścia");
    if (tooFewMaski(spis.maski, celMasek))
        teksty.push_back("za mało masek: " + std::to_string(spis.maski) + ", a cel to " + std::to_string(celMasek));
    if (tooFewKlucze(spis.klucze, spis.drzwi))
        teksty.push_back("za mało kluczy: " + std::to_string(spis.klucze) + ", a drzwi jest " +
                         std::to_string(spis.drzwi));
    if (unpaired(spis.przedmioty))
        teksty.push_back("magiczny przedmiot bez pary (jest ich " + std::to_string(spis.przedmioty) + ")");
}

void addTooMany(Teksty& teksty, const Spis& spis) {
    if (spis.dorvy > 1)
        teksty.push_back("więcej niż jedna Dorva: " + std::to_string(spis.dorvy));
    if (spis.wyjscia > 1)
        teksty.push_back("więcej niż jedno wyjście: " + std::to_string(spis.wyjscia));
}

void addObce(Teksty& teksty, std::span<const Bajt> plansza) {
    std::set<int> kody;
    for (const Bajt code : plansza)
        if (!isTile(znak(code)))
            kody.insert(code);
    if (!kody.empty())
        teksty.push_back("znaki bez obrazka, o kodach: " + listed(kody));
}

void addKrawedz(Teksty& teksty, std::span<const Bajt> plansza) {
    int count = 0;
    for (int cell = 0; cell < PLANSZA_CELLS; ++cell)
        count += isEdge(cell) && !mayBeOnEdge(znak(plansza[cell]));
    if (count > 0)
        teksty.push_back("obce znaki na brzegu, kratek: " + std::to_string(count));
}

Teksty ownOf(const Karta& karta) {
    if (karta.image.empty())
        return {karta.brak};
    Teksty teksty;
    if (const std::string why = refusal(karta.image); !why.empty())
        teksty.push_back("edytor nie odczyta całego etapu: " + why);
    const auto plansza = std::span(karta.image).subspan(uklad::PLANSZA, PLANSZA_CELLS);
    const Spis spis = countZnaki(plansza, [](Bajt code) { return znak(code); });
    addPanel(teksty, spis, karta.image[uklad::CEL_MASEK]);
    addTooMany(teksty, spis);
    addObce(teksty, plansza);
    addKrawedz(teksty, plansza);
    if (nazwaOf(karta.image).znaki.empty())
        teksty.emplace_back("puste powitanie");
    return teksty;
}

// The stage but for its mark, which belongs to the place.
EtapImage unmarked(EtapImage image) {
    image[uklad::OSTATNI] = 0;
    return image;
}

// The number of an earlier place with the same stage, or 0.
int equalBefore(const Gra& gra, int place) {
    const EtapImage image = unmarked(gra.karty[place].image);
    for (int i = 0; i < place; ++i)
        if (!gra.karty[i].image.empty() && unmarked(gra.karty[i].image) == image)
            return i + 1;
    return 0;
}

} // namespace

std::string listed(const std::set<int>& numbers) {
    std::string list;
    for (const int number : numbers)
        list += (list.empty() ? "" : ", ") + std::to_string(number);
    return list;
}

std::array<Teksty, ETAPY_COUNT> listOstrzezenia(const Gra& gra) {
    std::array<Teksty, ETAPY_COUNT> all;
    bool isBehindLast = false;
    for (int i = 0; i < ETAPY_COUNT; ++i) {
        const Karta& karta = gra.karty[i];
        if (isBehindLast && !karta.image.empty() && isEmpty(karta))
            continue;
        all[i] = ownOf(karta);
        if (karta.image.empty())
            continue;
        if (const int same = isEmpty(karta) ? 0 : equalBefore(gra, i); same > 0)
            all[i].push_back("taki sam jak etap " + std::to_string(same));
        if (karta.image[uklad::OSTATNI] == 0)
            continue;
        isBehindLast = true;
        const auto more = std::count_if(gra.karty.begin() + i + 1, gra.karty.end(),
                                        [](const Karta& later) { return !isEmpty(later); });
        if (more > 0)
            all[i].push_back("OSTATNI, a po nim niepustych etapów: " + std::to_string(static_cast<int>(more)));
    }
    return all;
}

} // namespace dorva
