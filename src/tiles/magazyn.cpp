#include "tiles/magazyn.h"

#include <algorithm>

namespace dorva {

ZnakObraz cutTile(const Bitmapa& strip, StripPosition position) {
    ZnakObraz obraz{};
    const int left = position * OBRAZ_SIDE;
    const int width = std::clamp(strip.width - left, 0, OBRAZ_SIDE);
    const int height = std::min(strip.height, OBRAZ_SIDE);
    for (int y = 0; y < height; ++y)
        std::copy_n(strip.piksele.begin() + y * strip.width + (width > 0 ? left : 0), width,
                    obraz.begin() + y * OBRAZ_SIDE);
    return obraz;
}

} // namespace dorva
