// Makes stages and title lines from text sources.
#pragma once

#include "rysunki.h"
#include "stage/etap_image.h"

#include <filesystem>
#include <optional>

namespace dorva {

// The colours that a source gives, by slot.
using GivenColours = std::array<std::optional<Bajt>, SLOTY_COUNT>;

// What all stages share: colours, and the codes of the characters that boards are painted with.
struct Legenda {
    GivenColours kolory;
    std::array<int, 128> kody; // by character; negative if it stands for no tile
};

using Swiaty = std::array<Rysunki, SWIATY_COUNT>;

Legenda parseLegenda(Source);

// The stage in its stored form, 931 bytes.
Bajty parseEtap(Source, const Legenda&, const Swiaty&);

// Reads a stage file; fails if it doesn't have 931 bytes.
Bajty readEtap(const std::filesystem::path&);

// The three title lines of the game, 60 bytes.
Bajty parseTytul(Source);

} // namespace dorva
