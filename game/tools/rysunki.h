// Makes a world's character set, strip and colours from its drawings.
#pragma once

#include "bmp.h"
#include "source.h"
#include "tiles/paleta_barw.h"

#include <array>

namespace dorva {

inline constexpr int KSZTALT_COLUMNS = 4, KSZTALT_ROWS = 8;
inline constexpr std::size_t ZNAKI_SIZE_BYTES = 1024;

// One tile: 4 x 8 pixels of two bits. 0 is the background, 1 and 2 are the first two colours, 3 is the third, or in the
// INV form the fourth.
using Ksztalt = std::array<std::array<Bajt, KSZTALT_COLUMNS>, KSZTALT_ROWS>;
using Ksztalty = std::array<Ksztalt, ZNAKI_COUNT>;

struct Rysunki {
    Ksztalty ksztalty{};
    Ksztalty drugie{};                            // of tiles that move; any other tile has its first again
    Ksztalt otwarte{};                            // the open exit
    Ksztalt obcy{};                               // for the codes that are no tiles
    std::array<Bajt, KOLORY_SIZE_BYTES> kolory{}; // as the colour file has them
};

Rysunki parseRysunki(Source);

// The character set as the Atari reads it, 1024 bytes: the tiles, the open exit, then the second drawings of
// tiles 1..63.
Bajty BuildZnaki(const Rysunki&);

// The strip of 128 tiles, 4096 x 32 pixels: codes 0..63, then 128..191.
ObrazBarwny BuildPasek(const Rysunki&);

// A picture of a stage's board in its colours, as the Atari shows it, 640 x 320 pixels.
ObrazBarwny BuildPlansza(const Rysunki&, const Bajty& etap);

} // namespace dorva
