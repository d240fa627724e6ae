#include "qt/obrazki.h"

#include <QColor>

#include <algorithm>

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
    return obraz[static_cast<std::size_t>(y * OBRAZ_SIDE + x)];
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
                if (CYFRY[static_cast<std::size_t>(digits[k] - '0')][static_cast<std::size_t>(y)] >> (2 - x) & 1)
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

} // namespace

void Obrazki::prepare(const Magazyn& zestawy) {
    if (domyslne_.empty())
        drawPlaceholders();
    if (wersja_ == zestawy.wersja)
        return;
    wersja_ = zestawy.wersja;
    for (int swiat = 0; swiat < SWIATY_COUNT; ++swiat)
        for (int position = 0; position < PASEK_TILES; ++position) {
            const ZnakObraz* source = zestawy.find({static_cast<std::int8_t>(swiat), znak(kodOfPosition(position))});
            if (!source)
                continue;
            Obrazek& obrazek = swiaty_[static_cast<std::size_t>(swiat)][static_cast<std::size_t>(position)];
            std::transform(source->begin(), source->end(), obrazek.duzy.begin(),
                           [](std::uint32_t p) { return qPremultiply(p); });
            scale(obrazek);
        }
}

void Obrazki::drawPlaceholders() {
    for (auto& obrazki : swiaty_)
        obrazki.assign(PASEK_TILES, {});
    domyslne_.assign(PASEK_TILES, {});
    for (int position = 0; position < PASEK_TILES; ++position) {
        Obrazek& obrazek = domyslne_[static_cast<std::size_t>(position)];
        obrazek.duzy = domyslny(znak(kodOfPosition(position)));
        scale(obrazek);
    }
    brak_.duzy = neutralny();
    scale(brak_);
}

void Obrazki::scale(Obrazek& obrazek) {
    const ZnakObraz& p = obrazek.duzy;
    for (std::size_t i = 0; i < SMALL_PIXELS; ++i) {
        const std::size_t at = i / KRATKA_SIDE * 2 * OBRAZ_SIDE + i % KRATKA_SIDE * 2;
        obrazek.maly[i] = mean({p[at], p[at + 1], p[at + OBRAZ_SIDE], p[at + OBRAZ_SIDE + 1]});
    }
}

const Obrazki::Obrazek& Obrazki::find(ObrazRef ref) const {
    if (!isTile(ref.znak))
        return brak_;
    const int half = kod(ref.znak) < INV ? 0 : ZNAKI_COUNT;
    const auto position = static_cast<std::size_t>(kod(ref.znak) % INV + half);
    return ref.swiat < 0 ? domyslne_[position] : swiaty_[static_cast<std::size_t>(ref.swiat)][position];
}

const std::uint32_t* Obrazki::large(ObrazRef ref) const {
    return find(ref).duzy.data();
}

const std::uint32_t* Obrazki::small(ObrazRef ref) const {
    return find(ref).maly.data();
}

void blit(QImage& image, int left, int top, const std::uint32_t* pixels, int side) {
    const auto over = [](std::uint32_t below, std::uint32_t p) {
        const std::uint32_t rest = 255 - qAlpha(p);
        const auto channel = [&](unsigned shift) {
            return ((p >> shift & 0xFF) + (below >> shift & 0xFF) * rest / 255) << shift;
        };
        return rest == 0 ? p : OPAQUE | channel(16) | channel(8) | channel(0);
    };
    for (int y = 0; y < side; ++y) {
        auto* row = reinterpret_cast<std::uint32_t*>(image.scanLine(top + y)) + left;
        std::transform(row, row + side, pixels + y * side, row, over);
    }
}

} // namespace dorva
