// The catalogue of the main window: every control, its place and its texts, in one table.
#pragma once

#include "qt/kontrolka.h"

#include <string_view>
#include <vector>

namespace dorva {

inline constexpr int TWIPS_PER_PIXEL = 15;
constexpr int pixels(int twips) {
    return twips / TWIPS_PER_PIXEL;
}

inline constexpr int OKNO_WIDTH = pixels(13455), OKNO_HEIGHT = pixels(9255);
static_assert(OKNO_WIDTH == 897 && OKNO_HEIGHT == 617);

// All controls. A container comes before what it holds, a covered control before the one that covers it.
std::vector<Kontrolka> katalogOkna();

// The controls that the Tab key visits, in order. The name of an array means all its controls.
std::vector<std::string_view> kolejnoscTab();

} // namespace dorva
