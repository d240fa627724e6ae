#include "qt/bitmapa_pliku.h"
#include "stanowisko.h"

#include <QBuffer>

namespace dorva::test {
namespace {

// Places in the file's two headers.
constexpr std::size_t WIDTH = 18, HEIGHT = 22, DEPTH = 28, COMPRESSION = 30;

class BitmapaPliku : public Stanowisko {
protected:
    void SetUp() override {
        Pulpit::SetUp();
        okno = std::make_unique<OknoGlowne>(e); // with the hook of its own
    }
    std::optional<Bitmapa> load(const Bajty& file) {
        writeFile(root / "a.bmp", file);
        return e.haki.loadPicture(root / "a.bmp", 3, 2);
    }
    // Red in the upper left corner, green beside it, the rest black.
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
    static constexpr std::uint32_t BLACK = 0xFF000000, RED = 0xFFFF0000, GREEN = 0xFF00FF00;
};

TEST_F(BitmapaPliku, OnlyThePartThatIsWantedIsKept) {
    for (QImage::Format format : {QImage::Format_Indexed8, QImage::Format_RGB32})
        for (QSize size : {QSize(3, 2), QSize(7, 5)}) {
            const auto bitmapa = load(bitmapFile(size, format));
            ASSERT_TRUE(bitmapa);
            EXPECT_EQ(QSize(bitmapa->width, bitmapa->height), QSize(3, 2));
            EXPECT_EQ(bitmapa->piksele, (std::vector<std::uint32_t>{RED, GREEN, BLACK, BLACK, BLACK, BLACK}));
        }
    const auto smaller = load(bitmapFile({2, 1}, QImage::Format_Indexed8));
    ASSERT_TRUE(smaller);
    EXPECT_EQ(QSize(smaller->width, smaller->height), QSize(2, 1));
    const auto topDown = load(with(bitmapFile({3, 2}, QImage::Format_Indexed8), HEIGHT, std::uint32_t(-2)));
    ASSERT_TRUE(topDown);
    EXPECT_EQ(topDown->piksele[3], RED);
    Bajty runs = with(bitmapFile({3, 2}, QImage::Format_Indexed8), COMPRESSION, 2);
    runs.resize(runs.size() - 8); // in place of the pixels, two runs of three and the end
    for (Bajt b : {3, 0, 0, 0, 3, 0, 0, 1})
        runs.push_back(b);
    EXPECT_TRUE(load(runs));
}

TEST_F(BitmapaPliku, WhatIsNoPictureIsRefused) {
    const Bajty good = bitmapFile({3, 2}, QImage::Format_Indexed8);
    for (std::size_t length = 0; length < good.size(); ++length)
        EXPECT_FALSE(load(Bajty(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(length)))) << length;
    EXPECT_FALSE(load(with(with(good, WIDTH, 0x7FFFFFFF), HEIGHT, 0x7FFFFFFF)));
    EXPECT_FALSE(load(with(with(with(good, WIDTH, 60000), HEIGHT, 60000), COMPRESSION, 1)));
    EXPECT_FALSE(load(with(good, WIDTH, std::uint32_t(-3))));
    EXPECT_FALSE(load(with(good, DEPTH, 7, 2)));
    EXPECT_FALSE(loadBitmapa(root / "nie ma", 3, 2));
    EXPECT_FALSE(fs::exists(root / "nie ma"));
}

} // namespace
} // namespace dorva::test
