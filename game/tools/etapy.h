// Stages: text sources in, stage images and title lines out.
#pragma once

#include "rysunki.h"
#include "stage/etap_image.h"

#include <filesystem>
#include <optional>

namespace dorva {

// Colours by slot, where a source gives any.
using WybraneKolory = std::array<std::optional<Bajt>, SLOTY_COUNT>;

// What all stages share: colours, and which tile code a character of a board stands for.
struct Legenda {
    WybraneKolory kolory;
    std::array<int, 128> kody; // by character; below 0 where it stands for nothing
};

using Swiaty = std::array<Rysunki, SWIATY_COUNT>;

Legenda parseLegenda(Zrodlo);

// The stage image, 931 bytes.
Bajty parseEtap(Zrodlo, const Legenda&, const Swiaty&);

// A stage file; fails where there is none of its length.
Bajty readEtap(const std::filesystem::path&);

// The three title lines of the game, 60 bytes.
Bajty parseTytul(Zrodlo);

} // namespace dorva
