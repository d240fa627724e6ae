// Pictures of tiles made ready to be shown: prepared once when a tile set was loaded, not at each paint.
#pragma once

#include "tiles/magazyn.h"

#include <QImage>

#include <array>
#include <vector>

namespace dorva {

inline constexpr int KRATKA_SIDE = 16; // a board cell or an icon, in logical pixels

class Obrazki {
public:
    // Follows the tile store; cheap where no strip was loaded since.
    void prepare(const Magazyn&);

    // A picture of 32 x 32 or, scaled once, of 16 x 16 pixels, premultiplied 0xAARRGGBB row by row.
    // Transparent for a tile that no strip has filled; a placeholder for a code without a picture and
    // for the window's default state.
    [[nodiscard]] const std::uint32_t* large(ObrazRef) const;
    [[nodiscard]] const std::uint32_t* small(ObrazRef) const;

    // Grows with each loaded strip.
    [[nodiscard]] unsigned wersja() const { return wersja_; }

private:
    static constexpr std::size_t SMALL_PIXELS = KRATKA_SIDE * KRATKA_SIDE;
    using Maly = std::array<std::uint32_t, SMALL_PIXELS>;
    struct Obrazek {
        ZnakObraz duzy{};
        Maly maly{};
    };

    void drawPlaceholders();
    static void scale(Obrazek&);
    [[nodiscard]] const Obrazek& find(ObrazRef) const;

    std::array<std::vector<Obrazek>, SWIATY_COUNT> swiaty_;
    std::vector<Obrazek> domyslne_; // by code; 64 of each half
    Obrazek brak_;                  // a code that is no tile
    unsigned wersja_ = 0;
};

// Lays a picture of `side` x `side` pixels over an opaque image, at whole pixels.
void blit(QImage& image, int left, int top, const std::uint32_t* pixels, int side);

} // namespace dorva
