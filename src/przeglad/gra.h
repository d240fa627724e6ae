// A whole game as a value, and how its stages are arranged.
#pragma once

#include "stage/etap_image.h"
#include "stage/tekst.h"

#include <array>
#include <string>

namespace dorva {

// A stage on the sheet: 931 bytes, or none and the reason.
struct Karta {
    EtapImage image;
    std::string brak;
    int numer = 0; // under which it was read, 1..32: its earlier versions are those of this number
    bool operator==(const Karta&) const = default;
};

struct Gra {
    std::array<Tekst, LINIE_COUNT> linie; // LINIA_WIDTH each
    std::array<Karta, ETAPY_COUNT> karty;
    // The last-stage mark of each place. It stays there while stages move.
    std::array<Bajt, ETAPY_COUNT> ostatni{};
    bool operator==(const Gra&) const = default;
};

// Fills in the marks of the places. One that the editor refuses counts as none; place 32 is always marked.
void takeOstatni(Gra&);

// What the stage can't be read for, in words; empty if the editor reads it.
std::string refusal(const EtapImage&);

Tekst nazwaOf(const EtapImage&); // the greeting, trimmed

// True for a board of earth within walls, as "Wyczyść" leaves it, and for a stage that is missing.
bool isEmpty(const Karta&);

// The card at `from` goes to place `to`, and those between make room. Places count from 0.
Gra moved(Gra, int from, int to);
Gra exchanged(Gra, int one, int other);
Gra replaced(Gra, int place, const EtapImage&);

} // namespace dorva
