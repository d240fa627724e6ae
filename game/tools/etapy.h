// Stages: text sources in, stage images and title lines out.
#pragma once

#include "rysunki.h"

namespace dorva {

// Which tile code a character of a stage's board stands for.
struct Legenda {
    std::array<int, 128> kody; // by character; below 0 where it stands for nothing
};

using Swiaty = std::array<Rysunki, SWIATY_COUNT>;

Legenda parseLegenda(Zrodlo);

// The stage image, 931 bytes. A stage's colours are its world's; single ones can be given.
Bajty parseEtap(Zrodlo, const Legenda&, const Swiaty&);

// The three title lines of the game, 60 bytes.
Bajty parseTytul(Zrodlo);

} // namespace dorva
