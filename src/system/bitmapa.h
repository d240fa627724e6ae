// A picture file as it was loaded.
#pragma once

#include <cstdint>
#include <vector>

namespace dorva {

// Pixels 0xAARRGGBB, row by row, width x height of them. Only the top left part of the file may have been kept.
struct Bitmapa {
    int width = 0, height = 0;
    std::vector<std::uint32_t> piksele;
};

} // namespace dorva
