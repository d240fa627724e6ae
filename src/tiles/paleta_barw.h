// The colour table: what an Atari colour value looks like, and the worlds' default colours.
#pragma once

#include "podstawy.h"
#include "tiles/obraz.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace dorva {

// 256 RGB entries by colour value: high nibble the hue, low nibble the luminance.
using TablicaBarw = std::array<Rgb, 256>;
inline constexpr std::size_t PALETA_SIZE_BYTES = 3 * 256;

// The table that is used if there is no palette file.
extern const TablicaBarw PaletaWbudowana;

// A palette file's RGB triples; nothing if there are fewer than 768 bytes.
std::optional<TablicaBarw> parsePaleta(std::span<const Bajt> bytes);

// Default colours, one row of twelve a world.
using TablicaKolorow = std::array<std::array<Bajt, SLOTY_COUNT>, SWIATY_COUNT>;
inline constexpr TablicaKolorow KOLORY_STARTOWE{{{34, 192, 64, 128, 180, 44, 238, 116, 0, 0, 0, 228},
                                                 {34, 192, 64, 128, 116, 42, 14, 68, 0, 0, 0, 164},
                                                 {34, 192, 64, 128, 246, 250, 222, 116, 0, 0, 0, 4}}};

// The slots that a world's colour file gives, in file order: 4..8.
inline constexpr int KOLORY_FIRST_SLOT = 4;
inline constexpr std::size_t KOLORY_SIZE_BYTES = 5;

// "180, $B4": a colour value as the palette dialog writes it.
std::string kolorText(int value);

} // namespace dorva
