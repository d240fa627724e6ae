// The tile store: the pictures of all three worlds.
#pragma once

#include "podstawy.h"
#include "system/bitmapa.h"
#include "tiles/obraz.h"

#include <array>
#include <memory>

namespace dorva {

// Entries stand at `swiat` * 192 + code, so that a code needs no translation; codes without a picture
// leave gaps.
inline constexpr int MAGAZYN_STRIDE = 192;
inline constexpr int PASEK_TILES = 128;
inline constexpr int PASEK_WIDTH = PASEK_TILES * OBRAZ_SIDE;

struct Magazyn {
    // Empty where no strip has filled the entry.
    std::array<std::shared_ptr<const ZnakObraz>, SWIATY_COUNT * MAGAZYN_STRIDE> obrazy;
    // Counts the loaded strips, so that a window knows when to prepare its pictures anew.
    unsigned wersja = 0;

    // The picture behind a reference; null for an empty entry, a code without a picture and the default
    // state.
    [[nodiscard]] const ZnakObraz* find(ObrazRef ref) const {
        if (ref.swiat < 0 || ref.swiat >= SWIATY_COUNT || !isTile(ref.znak))
            return nullptr;
        return obrazy[ref.swiat * MAGAZYN_STRIDE + kod(ref.znak)].get();
    }
};

// The code of a strip's tile: positions 0..63 are the STD half, 64..127 the INV half.
constexpr int kodOfPosition(int position) {
    return position < ZNAKI_COUNT ? position : position + (INV - ZNAKI_COUNT);
}

// The tile at a position of a strip: 32 x 32 pixels, transparent where the strip is too small.
ZnakObraz cutTile(const Bitmapa& strip, int position);

} // namespace dorva
