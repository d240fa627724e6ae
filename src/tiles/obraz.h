// Pictures of tiles and references to them.
#pragma once

#include "board/znak.h"

#include <array>
#include <cstdint>

namespace dorva {

struct Rgb {
    std::uint8_t r = 0, g = 0, b = 0;
    bool operator==(const Rgb&) const = default;
};

inline constexpr int OBRAZ_SIDE = 32;

// The picture of a tile: 32 x 32 pixels, 0xAARRGGBB, row by row.
using ZnakObraz = std::array<std::uint32_t, OBRAZ_SIDE * OBRAZ_SIDE>;

// Which picture a control shows: the tile's code and the world; DOMYSLNY before a tile set is shown.
struct ObrazRef {
    static constexpr std::int8_t DOMYSLNY = -1;
    std::int8_t swiat = DOMYSLNY;
    Znak znak = NIC;
    bool operator==(const ObrazRef&) const = default;
};

} // namespace dorva
