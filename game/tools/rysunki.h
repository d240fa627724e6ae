// The drawings of a world: text art in, character set, strip and colours out.
#pragma once

#include "bmp.h"
#include "tiles/paleta_barw.h"
#include "zrodlo.h"

#include <array>

namespace dorva {

inline constexpr int KSZTALT_COLUMNS = 4, KSZTALT_ROWS = 8;
inline constexpr std::size_t ZNAKI_SIZE_BYTES = 1024;

// One tile: 4 x 8 pixels of two bits. 0 is the background, 1 and 2 the first two colours, 3 the third, or
// the fourth where the tile's code is its INV form.
using Ksztalt = std::array<std::array<Bajt, KSZTALT_COLUMNS>, KSZTALT_ROWS>;

struct Rysunki {
    std::array<Ksztalt, ZNAKI_COUNT> ksztalty{};
    Ksztalt otwarte{};                            // the exit when it is open
    Ksztalt obcy{};                               // what the codes 64..127, which are no tiles, look like
    std::array<Bajt, KOLORY_SIZE_BYTES> kolory{}; // in the order of the colour file
};

Rysunki parseRysunki(Zrodlo);

// The character set as the Atari reads it, 1024 bytes.
Bajty BuildZnaki(const Rysunki&);

// The strip of 128 tiles, 4096 x 32 pixels: codes 0..63, then 128..191.
ObrazBarwny BuildPasek(const Rysunki&);

// A board as the Atari shows it, 640 x 320 pixels; codes and colours are those of the stage image.
ObrazBarwny BuildPlansza(const Rysunki&, const Bajty& etap);

} // namespace dorva
