#include "pulpit.h"
#include "qt/bitmapa_pliku.h"

#include <tuple>
#include <utility>

namespace dorva::test {
namespace {

void put(Bajty& bytes, std::uint32_t value, int count) {
    for (; count-- > 0; value >>= 8U)
        bytes.push_back(static_cast<Bajt>(value));
}

// A bitmap file: headers, colour table of black, red, green and blue where the depth has one, then `pixels`.
Bajty bitmapFile(int width, int height, int depth, int compression, const Bajty& pixels) {
    constexpr std::uint32_t COLOURS[]{0x000000, 0xFF0000, 0x00FF00, 0x0000FF};
    const int colours = depth > 8 ? 0 : depth == 1 ? 2 : 4;
    Bajty file{'B', 'M'};
    put(file, static_cast<std::uint32_t>(54 + 4 * colours + static_cast<int>(pixels.size())), 4);
    put(file, 0, 4);
    put(file, static_cast<std::uint32_t>(54 + 4 * colours), 4);
    put(file, 40, 4);
    put(file, static_cast<std::uint32_t>(width), 4);
    put(file, static_cast<std::uint32_t>(height), 4);
    put(file, 1, 2);
    put(file, static_cast<std::uint32_t>(depth), 2);
    put(file, static_cast<std::uint32_t>(compression), 4);
    put(file, static_cast<std::uint32_t>(pixels.size()), 4);
    put(file, 0, 8);
    put(file, static_cast<std::uint32_t>(colours), 4);
    put(file, 0, 4);
    for (int i = 0; i < colours; ++i)
        put(file, COLOURS[i], 4);
    file.insert(file.end(), pixels.begin(), pixels.end());
    return file;
}

class BitmapaPliku : public Pulpit {
protected:
    std::optional<Bitmapa> load(const Bajty& file) {
        writeFile(root / "a.bmp", file);
        return loadBitmapa(root / "a.bmp", 3, 2);
    }
};

TEST_F(BitmapaPliku, EveryDepthAndOrderIsRead) {
    constexpr std::uint32_t BLACK = 0xFF000000, RED = 0xFFFF0000, GREEN = 0xFF00FF00;
    // red in the upper left corner, the rest black; rows run from the bottom up
    const Bajty one{0, 0, 0, 0, 0x80, 0, 0, 0}, four{0, 0, 0, 0, 0x10, 0, 0, 0}, eight{0, 0, 0, 0, 1, 0, 0, 0};
    const Bajty rgb16{0, 0, 0, 0, 0, 0, 0, 0, 0, 0x7C, 0, 0, 0, 0, 0, 0};
    Bajty rgb24(24, 0), rgb32(24, 0);
    rgb24[12 + 2] = rgb32[12 + 2] = 255;
    const Bajty runs8{3, 0, 0, 0, 1, 1, 2, 0, 0, 1}, runs4{3, 0, 0, 0, 1, 0x10, 2, 0, 0, 1};
    const std::vector<std::tuple<int, int, Bajty>> files{{1, 0, one},    {4, 0, four},   {8, 0, eight}, {16, 0, rgb16},
                                                         {24, 0, rgb24}, {32, 0, rgb32}, {8, 1, runs8}, {4, 2, runs4}};
    for (const auto& [depth, compression, pixels] : files) {
        SCOPED_TRACE(testing::Message() << depth << " bits, compression " << compression);
        auto bitmapa = load(bitmapFile(3, 2, depth, compression, pixels));
        ASSERT_TRUE(bitmapa);
        bitmapa->piksele[0] |= 0xFF070000; // five bits of a colour can mean 248 or 255
        EXPECT_EQ(bitmapa->piksele, (std::vector<std::uint32_t>{RED, BLACK, BLACK, BLACK, BLACK, BLACK}));
    }
    const auto topDown = load(bitmapFile(3, -2, 8, 0, {1, 2, 0, 0, 0, 0, 0, 0}));
    ASSERT_TRUE(topDown);
    EXPECT_EQ(topDown->piksele, (std::vector<std::uint32_t>{RED, GREEN, BLACK, BLACK, BLACK, BLACK}));
}

TEST_F(BitmapaPliku, OnlyThePartThatIsWantedIsKept) {
    Bajty pixels(8 * 5, 0);
    pixels[8 * 4 + 1] = 2;
    const auto wider = load(bitmapFile(7, 5, 8, 0, pixels));
    ASSERT_TRUE(wider);
    EXPECT_EQ(std::pair(wider->width, wider->height), std::pair(3, 2));
    EXPECT_EQ(wider->piksele[1], 0xFF00FF00U);
    const auto smaller = load(bitmapFile(1, 1, 8, 0, {1, 0, 0, 0}));
    ASSERT_TRUE(smaller);
    EXPECT_EQ(std::pair(smaller->width, smaller->height), std::pair(1, 1));
}

TEST_F(BitmapaPliku, WhatIsNoPictureIsRefused) {
    const Bajty good = bitmapFile(3, 2, 8, 0, Bajty(8, 1));
    for (std::size_t length = 0; length < good.size(); ++length)
        EXPECT_FALSE(load(Bajty(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(length)))) << length;
    EXPECT_FALSE(load(Bajty(5000, 'x')));
    EXPECT_FALSE(load(bitmapFile(0x7FFFFFFF, 0x7FFFFFFF, 8, 0, Bajty(8, 1))));
    EXPECT_FALSE(load(bitmapFile(60000, 60000, 8, 1, Bajty(8, 1))));
    EXPECT_FALSE(load(bitmapFile(-3, 2, 8, 0, Bajty(8, 1))));
    EXPECT_FALSE(load(bitmapFile(3, 2, 7, 0, Bajty(8, 1))));
    EXPECT_FALSE(loadBitmapa(root, 3, 2));
    EXPECT_FALSE(loadBitmapa(root / "nie ma", 3, 2));
    EXPECT_FALSE(fs::exists(root / "nie ma"));
}

} // namespace
} // namespace dorva::test
