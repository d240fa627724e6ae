#include "qt/obrazki.h"

#include <QColor>

#include <algorithm>
#include <cstddef>
#include <string>

namespace dorva {
namespace {

constexpr std::uint32_t OPAQUE = 0xFF000000;

// Digits of 3 x 5 pixels for the placeholders, a row each, bit 2 on the left.
constexpr std::array<std::array<std::uint8_t, 5>, 10> CYFRY{{{7, 5, 5, 5, 7},
                                                             {2, 6, 2, 2, 7},
                                                             {7, 1, 7, 4, 7},
                                                             {7, 1, 7, 1, 7},
                                                             {5, 5, 7, 1, 1},
                                                             {7, 4, 7, 1, 7},
                                                             {7, 4, 7, 5, 7},
                                                             {7, 1, 2, 2, 2},
                                                             {7, 5, 7, 5, 7},
                                                             {7, 5, 7, 1, 7}}};

std::uint32_t& pixel(ZnakObraz& obraz, int x, int y) {
    return obraz[y * OBRAZ_SIDE + x];
}

void fillRect(ZnakObraz& obraz, int left, int top, int width, int height, std::uint32_t colour) {
    for (int y = top; y < top + height; ++y)
        std::fill_n(&pixel(obraz, left, y), width, colour);
}

// A number in the middle, in pixels of 2 x 2, so that it survives the scaling to 16 x 16.
void drawNumber(ZnakObraz& obraz, int number, std::uint32_t colour) {
    constexpr int DOT = 2, PITCH = 4 * DOT, TOP = 11;
    const std::string digits = std::to_string(number);
    const int left = (OBRAZ_SIDE - static_cast<int>(digits.size()) * PITCH + DOT) / 2;
    for (std::size_t k = 0; k < digits.size(); ++k)
        for (int y = 0; y < 5; ++y)
            for (int x = 0; x < 3; ++x)
                if (CYFRY[digits[k] - '0'][y] >> (2 - x) & 1)
                    fillRect(obraz, left + static_cast<int>(k) * PITCH + x * DOT, TOP + y * DOT, DOT, DOT, colour);
}

// A coloured field with the code on it.
ZnakObraz domyslny(Znak z) {
    constexpr int STEPS = 16;
    const int shape = kod(z) % INV;
    const QColor field = QColor::fromHsv(shape % STEPS * 360 / STEPS, 130, 60 + 40 * (shape / STEPS));
    const QColor rim = kod(z) < INV ? field.lighter(150) : QColor(Qt::white);
    ZnakObraz obraz;
    obraz.fill(rim.rgb());
    fillRect(obraz, 2, 2, OBRAZ_SIDE - 4, OBRAZ_SIDE - 4, field.rgb());
    drawNumber(obraz, kod(z), OPAQUE | 0xFFFFFF);
    return obraz;
}

// A grey field with a diagonal cross.
ZnakObraz neutralny() {
    constexpr std::uint32_t FIELD = 0xFF606060, CROSS = 0xFFA0A0A0;
    ZnakObraz obraz;
    obraz.fill(FIELD);
    for (int i = 4; i < OBRAZ_SIDE - 4; i += 2) {
        fillRect(obraz, i, i, 2, 2, CROSS);
        fillRect(obraz, OBRAZ_SIDE - 2 - i, i, 2, 2, CROSS);
    }
    return obraz;
}

// The mean of four premultiplied pixels, channel by channel.
std::uint32_t mean(std::array<std::uint32_t, 4> pixels) {
    std::uint32_t result = 0;
    for (unsigned shift = 0; shift < 32; shift += 8) {
        std::uint32_t sum = 2;
        for (std::uint32_t p : pixels)
            sum += p >> shift & 0xFF;
        result |= sum / 4 << shift;
    }
    return result;
}

ZnakObraz premultiplied(ZnakObraz obraz) {
    std::transform(obraz.begin(), obraz.end(), obraz.begin(), [](std::uint32_t p) { return qPremultiply(p); });
    return obraz;
}

// The pixels behind a reference.
ZnakObraz pixelsOf(const Magazyn& zestawy, ObrazRef ref) {
    if (!isTile(ref.znak))
        return neutralny();
    if (ref.swiat == ObrazRef::DOMYSLNY)
        return domyslny(ref.znak);
    const ZnakObraz* obraz = zestawy.find(ref);
    return obraz ? premultiplied(*obraz) : ZnakObraz{};
}

Obrazek prepared(const ZnakObraz& pixels) {
    Obrazek obrazek{pixels, {}, false};
    for (std::size_t i = 0; i < obrazek.maly.size(); ++i) {
        const std::size_t at = i / KRATKA_SIDE * 2 * OBRAZ_SIDE + i % KRATKA_SIDE * 2;
        obrazek.maly[i] = mean({pixels[at], pixels[at + 1], pixels[at + OBRAZ_SIDE], pixels[at + OBRAZ_SIDE + 1]});
    }
    obrazek.opaque = std::all_of(pixels.begin(), pixels.end(), [](std::uint32_t p) { return p >= OPAQUE; });
    return obrazek;
}

// A premultiplied pixel over an opaque one.
std::uint32_t over(std::uint32_t below, std::uint32_t p) {
    const std::uint32_t rest = 255 - qAlpha(p);
    const auto channel = [&](unsigned shift) {
        return ((p >> shift & 0xFF) + (below >> shift & 0xFF) * rest / 255) << shift;
    };
    return OPAQUE | channel(16) | channel(8) | channel(0);
}

} // namespace

void Obrazki::followMagazyn() {
    if (wersja_ == zestawy_.wersja)
        return;
    wersja_ = zestawy_.wersja;
    gotowe_ = {};
}

ObrazekPtr Obrazki::prepare(ObrazRef ref) const {
    return std::make_shared<const Obrazek>(prepared(pixelsOf(zestawy_, ref)));
}

void blit(QImage& image, int left, int top, const Obrazek& obrazek, int side) {
    const std::uint32_t* pixels = side == KRATKA_SIDE ? obrazek.maly.data() : obrazek.duzy.data();
    for (int y = 0; y < side; ++y, pixels += side) {
        auto* row = reinterpret_cast<std::uint32_t*>(image.scanLine(top + y)) + left;
        if (obrazek.opaque)
            std::copy_n(pixels, side, row);
        else
            std::transform(row, row + side, pixels, row, over);
    }
}

} // namespace dorva
