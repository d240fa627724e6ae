// A picture file as it was loaded.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace dorva {

// Pixels 0xAARRGGBB, row by row. Only the top left part of the file may have been kept.
struct Bitmapa {
    int width = 0, height = 0;
    std::vector<std::uint32_t> piksele;

    [[nodiscard]] bool isWhole() const {
        return width >= 0 && height >= 0 && piksele.size() >= static_cast<std::size_t>(width) * height;
    }
};

} // namespace dorva
