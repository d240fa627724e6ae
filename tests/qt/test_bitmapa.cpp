#include "qt/bitmapa_pliku.h"
#include "window_desk.h"

#include <QBuffer>

namespace dorva::test {
namespace {

// Offsets in the headers of a bitmap file.
constexpr std::size_t WIDTH = 18, HEIGHT = 22, DEPTH = 28, COMPRESSION = 30;

constexpr std::uint32_t BLACK = 0xFF000000, RED = 0xFFFF0000, GREEN = 0xFF00FF00, NONE = 0;
const std::vector<std::uint32_t> PICTURE{RED, GREEN, BLACK, BLACK, BLACK, BLACK}; // 3 x 2

void append(Bajty& file, const std::vector<std::uint32_t>& numbers, int size) {
    for (std::uint32_t number : numbers)
        for (int i = 0; i < size; ++i)
            file.push_back(static_cast<Bajt>(number >> 8 * i));
}

struct Kind {
    const char* name;
    std::uint32_t header, depth, compression;
    std::vector<std::uint32_t> masks;
    std::vector<int> pixels; // the lower row comes first
    std::uint32_t alphaMask = 0;
};

// The picture as a file of a kind. Colours: black, red, green.
Bajty fileOf(const Kind& r) {
    constexpr std::uint32_t FILE_HEADER = 14, OLD = 12, V4 = 108;
    const std::uint32_t colours = r.depth <= 8 ? 3 : 0;
    const auto masks = r.header == V4 ? 0 : static_cast<std::uint32_t>(4 * r.masks.size());
    const std::uint32_t table = colours == 0 ? 0 : r.header == OLD ? 3 * (1U << r.depth) : 4 * colours;
    const std::uint32_t start = FILE_HEADER + r.header + masks + table;
    Bajty file{'B', 'M'};
    append(file, {start + static_cast<std::uint32_t>(r.pixels.size()), 0, start, r.header}, 4);
    if (r.header == OLD) {
        append(file, {3, 2, 1, r.depth}, 2);
    } else {
        append(file, {3, 2}, 4);
        append(file, {1, r.depth}, 2);
        append(file, {r.compression, 0, 0, 0, colours, 0}, 4);
        append(file, r.masks, 4);
        if (r.header == V4)
            append(file, {r.alphaMask}, 4);
        file.resize(FILE_HEADER + r.header + masks);
    }
    const std::vector<std::vector<Bajt>> bgr{{0, 0, 0}, {0, 0, 255}, {0, 255, 0}};
    for (std::uint32_t i = 0; i < colours; ++i) {
        const auto& colour = bgr[i];
        file.insert(file.end(), colour.begin(), colour.end());
        if (r.header != OLD)
            file.push_back(0);
    }
    file.resize(start);
    for (int byte : r.pixels)
        file.push_back(static_cast<Bajt>(byte));
    return file;
}

constexpr std::uint32_t INFO = 40, PLAIN = 0, RLE8 = 1, RLE4 = 2, FIELDS = 3;
const Kind KINDS[]{
    {"8 bits", INFO, 8, PLAIN, {}, {0, 0, 0, 0, 1, 2, 0, 0}},
    {"4 bits", INFO, 4, PLAIN, {}, {0, 0, 0, 0, 0x12, 0, 0, 0}},
    {"24 bits", INFO, 24, PLAIN, {}, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 255, 0, 255, 0, 0, 0, 0, 0, 0, 0}},
    {"32 bits", INFO, 32, PLAIN, {}, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 255, 0, 0, 255, 0, 0, 0, 0, 0, 0}},
    {"16 bits, fields",
     INFO,
     16,
     FIELDS,
     {0xF800, 0x07E0, 0x1F},
     {0, 0, 0, 0, 0, 0, 0, 0, 0, 0xF8, 0xE0, 7, 0, 0, 0, 0}},
    {"32 bits, fields, an empty alpha channel",
     108,
     32,
     FIELDS,
     {0xFF0000, 0xFF00, 0xFF},
     {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 255, 0, 0, 255, 0, 0, 0, 0, 0, 0},
     0xFF000000},
    {"runs of 8 bits", INFO, 8, RLE8, {}, {3, 0, 0, 0, 1, 1, 1, 2, 1, 0, 0, 1}},
    {"runs of 4 bits", INFO, 4, RLE4, {}, {3, 0, 0, 0, 2, 0x12, 1, 0, 0, 1}},
    {"old header, 8 bits", 12, 8, PLAIN, {}, {0, 0, 0, 0, 1, 2, 0, 0}},
    {"old header, 24 bits", 12, 24, PLAIN, {}, {0, 0, 0,   0, 0,   0, 0, 0, 0, 0, 0, 0,
                                                0, 0, 255, 0, 255, 0, 0, 0, 0, 0, 0, 0}},
};

class BitmapFile : public WindowDesk {
protected:
    void SetUp() override {
        Desk::SetUp();
        okno = std::make_unique<OknoGlowne>(e); // with its own hook, which reads files
    }
    std::optional<Bitmapa> load(const Bajty& file) {
        writeFile(root / "a.bmp", file);
        return e.haki.loadPicture(root / "a.bmp", 3, 2);
    }
    // A file with the picture in its upper left corner, and black elsewhere.
    static Bajty bitmapFile(QSize size, QImage::Format format) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::black);
        image.setPixelColor(0, 0, Qt::red);
        image.setPixelColor(1, 0, Qt::green);
        QBuffer file;
        image.convertToFormat(format).save(&file, "BMP");
        return {file.data().begin(), file.data().end()};
    }
    static Bajty with(Bajty file, std::size_t place, std::uint32_t value, int count = 4) {
        for (int i = 0; i < count; ++i, value >>= 8U)
            file[place + i] = static_cast<Bajt>(value);
        return file;
    }
};

TEST_F(BitmapFile, WholeFilesOfEveryKindAreShownCutOnesAreNot) {
    for (const Kind& kind : KINDS) {
        const Bajty whole = fileOf(kind);
        const auto bitmapa = load(whole);
        ASSERT_TRUE(bitmapa) << kind.name;
        for (std::size_t i = 0; i < PICTURE.size(); ++i) // five bits hold no 255
            EXPECT_EQ(bitmapa->piksele[i] | 0x070707, PICTURE[i] | 0x070707) << kind.name << " at " << i;
        const bool endMark = kind.compression == RLE8 || kind.compression == RLE4;
        for (std::size_t length = 0; length < whole.size() - (endMark ? 2 : 0); ++length)
            EXPECT_FALSE(load(Bajty(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length))))
                << kind.name << " cut to " << length << " of " << whole.size();
    }
}

TEST_F(BitmapFile, WhatRunsLeaveOutHasTheFirstColour) {
    const auto bitmapa = load(fileOf({"", INFO, 8, RLE8, {}, {0, 2, 0, 1, 1, 1, 0, 1}}));
    ASSERT_TRUE(bitmapa);
    EXPECT_EQ(bitmapa->piksele, (std::vector{RED, BLACK, BLACK, BLACK, BLACK, BLACK}));
}

TEST_F(BitmapFile, AnAlphaChannelThatHoldsSomethingCounts) {
    const auto bitmapa = load(fileOf({"",
                                      108,
                                      32,
                                      FIELDS,
                                      {0xFF0000, 0xFF00, 0xFF},
                                      {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 255, 255, 0, 255, 0, 255, 0, 0, 0, 0},
                                      0xFF000000}));
    ASSERT_TRUE(bitmapa);
    EXPECT_EQ(bitmapa->piksele, (std::vector{RED, GREEN, NONE, NONE, NONE, NONE}));
}

TEST_F(BitmapFile, OnlyThePartThatIsWantedIsKept) {
    for (QImage::Format format : {QImage::Format_Indexed8, QImage::Format_RGB32}) {
        const auto larger = load(bitmapFile({7, 5}, format));
        ASSERT_TRUE(larger);
        EXPECT_EQ(QSize(larger->width, larger->height), QSize(3, 2));
        EXPECT_EQ(larger->piksele, PICTURE);
    }
    const auto smaller = load(bitmapFile({2, 1}, QImage::Format_Indexed8));
    ASSERT_TRUE(smaller);
    EXPECT_EQ(QSize(smaller->width, smaller->height), QSize(2, 1));
    const auto topDown = load(with(bitmapFile({3, 2}, QImage::Format_Indexed8), HEIGHT, std::uint32_t(-2)));
    ASSERT_TRUE(topDown);
    EXPECT_EQ(topDown->piksele[3], RED);
}

TEST_F(BitmapFile, WhatIsNoPictureIsRefused) {
    const Bajty good = bitmapFile({3, 2}, QImage::Format_Indexed8);
    EXPECT_FALSE(load(with(with(good, WIDTH, 0x7FFFFFFF), HEIGHT, 0x7FFFFFFF)));
    EXPECT_FALSE(load(with(with(with(good, WIDTH, 60000), HEIGHT, 60000), COMPRESSION, RLE8)));
    EXPECT_FALSE(load(with(good, WIDTH, std::uint32_t(-3))));
    EXPECT_FALSE(load(with(good, DEPTH, 7, 2)));
    EXPECT_FALSE(loadBitmapa(root / "nie ma", 3, 2));
    EXPECT_FALSE(fs::exists(root / "nie ma"));
}

} // namespace
} // namespace dorva::test
