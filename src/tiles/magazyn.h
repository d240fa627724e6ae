// The tile store: every tile picture that was loaded.
#pragma once

#include "podstawy.h"
#include "system/bitmapa.h"
#include "tiles/obraz.h"

#include <array>
#include <memory>

namespace dorva {

// The place of a tile in a strip, which holds the 64 STD tiles and then the 64 INV tiles.
using StripPosition = int;
inline constexpr StripPosition PASEK_TILES = 128;
inline constexpr int PASEK_WIDTH = PASEK_TILES * OBRAZ_SIDE;

// The pictures of one world, by code. Entries of codes that are no tiles stay empty; all are before a strip is loaded.
using Zestaw = std::array<std::shared_ptr<const ZnakObraz>, 192>;

struct Magazyn {
    std::array<Zestaw, SWIATY_COUNT> imgZnak;
    // Counts the loaded strips, so that a window knows when to prepare its pictures again.
    unsigned wersja = 0;

    // The picture behind a reference; null for an empty entry, a code that is no tile, and the default state.
    [[nodiscard]] const ZnakObraz* find(ObrazRef ref) const {
        if (ref.swiat < 0 || ref.swiat >= SWIATY_COUNT || !isTile(ref.znak))
            return nullptr;
        return imgZnak[ref.swiat][kod(ref.znak)].get();
    }
};

// The code of the tile at a position.
constexpr int kodOfPosition(StripPosition position) {
    return position < ZNAKI_COUNT ? position : position + (INV - ZNAKI_COUNT);
}

// The tile at a position of a strip: 32 x 32 pixels, transparent where the strip is too small.
ZnakObraz cutTile(const Bitmapa& strip, StripPosition position);

} // namespace dorva
