#include "qt/bitmapa_pliku.h"
#include "window_desk.h"

namespace dorva::test {
namespace {

using Pixels = std::vector<std::uint32_t>;
constexpr std::uint32_t BLACK = 0xFF000000, RED = 0xFFFF0000, GREEN = 0xFF00FF00, NONE = 0;
const Pixels PICTURE{RED, GREEN, BLACK, BLACK, BLACK, BLACK}; // 3 x 2

// Offsets in a bitmap file, sizes of headers, compressions.
constexpr std::size_t START = 10, HEADER = 14, WIDTH = 18, HEIGHT = 22, PLANES = 26, DEPTH = 28, COMPRESSION = 30,
                      MASKS = 54;
constexpr std::uint32_t INFO = 40, V4 = 108;
constexpr std::uint32_t PLAIN = 0, RLE8 = 1, FIELDS = 3;

struct Kind {
    const char* name;
    std::uint32_t header, depth, compression;
    std::vector<int> pixels; // the lower row comes first
    Pixels picture = PICTURE;
};

const Kind KINDS[]{
    {"8 bits", INFO, 8, PLAIN, {0, 0, 0, 0, 1, 2, 0, 0}},
    {"4 bits", INFO, 4, PLAIN, {0, 0, 0, 0, 0x12, 0, 0, 0}},
    {"24 bits", INFO, 24, PLAIN, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 255, 0, 255, 0, 0, 0, 0, 0, 0, 0}},
    {"32 bits", INFO, 32, PLAIN, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 255, 0, 0, 255, 0, 0, 0, 0, 0, 0}},
    {"empty alpha", V4, 32, FIELDS, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 255, 0, 0, 255, 0, 0, 0, 0, 0, 0}},
    {"alpha that holds something",
     V4,
     32,
     FIELDS,
     {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 255, 255, 0, 255, 0, 255, 0, 0, 0, 0},
     {RED, GREEN, NONE, NONE, NONE, NONE}},
    {"runs", INFO, 8, RLE8, {3, 0, 0, 0, 1, 1, 1, 2, 1, 0, 0, 1}},
    {"runs that leave pixels out", INFO, 8, RLE8, {0, 2, 0, 1, 1, 1, 0, 1}, {RED, BLACK, BLACK, BLACK, BLACK, BLACK}},
};

Bajty with(Bajty file, std::size_t place, std::uint32_t value, int count = 4) {
    for (int i = 0; i < count; ++i, value >>= 8U)
        file[place + i] = static_cast<Bajt>(value);
    return file;
}

// A file of a kind. The palette, where there is one: black, red, green.
Bajty fileOf(const Kind& kind) {
    const std::uint32_t start = 14 + kind.header + (kind.depth <= 8 ? 4 * 3 : 0);
    Bajty file(start, 0);
    file[0] = 'B', file[1] = 'M';
    for (auto [place, value] :
         {std::pair(START, start), {HEADER, kind.header}, {WIDTH, 3U}, {HEIGHT, 2U}, {PLANES, 1U}})
        file = with(file, place, value);
    file = with(with(file, DEPTH, kind.depth, 2), COMPRESSION, kind.compression);
    if (kind.header == V4)
        for (std::size_t i = 0; i < 4; ++i) // red, green, blue, alpha
            file[MASKS + 4 * i + std::array{2, 1, 0, 3}[i]] = 255;
    if (kind.depth <= 8)
        file[46] = 3, file[start - 6] = file[start - 3] = 255;
    file.insert(file.end(), kind.pixels.begin(), kind.pixels.end());
    return file;
}

class BitmapFile : public WindowDesk {
protected:
    void SetUp() override {
        Desk::SetUp();
        okno = std::make_unique<OknoGlowne>(e); // with its own hook, which reads files
    }
    std::optional<Bitmapa> load(const Bajty& file, int width = 3, int height = 2) {
        writeFile(root / "a.bmp", file);
        return e.haki.loadPicture(root / "a.bmp", width, height);
    }
};

TEST_F(BitmapFile, WholeFilesOfEveryKindAreShownCutOnesAreNot) {
    for (const Kind& kind : KINDS) {
        SCOPED_TRACE(kind.name);
        const Bajty whole = fileOf(kind);
        const auto bitmapa = load(whole);
        ASSERT_TRUE(bitmapa);
        EXPECT_EQ(bitmapa->piksele, kind.picture);
        const std::size_t endMark = kind.compression == RLE8 ? 2 : 0; // may be missing
        for (std::size_t length = 0; length < whole.size() - endMark; ++length)
            EXPECT_FALSE(load(Bajty(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)))) << length;
    }
}

TEST_F(BitmapFile, OnlyThePartThatIsWantedIsKeptAndWhatIsNoPictureIsRefused) {
    const Bajty good = fileOf(KINDS[0]);
    const auto part = load(good, 2, 1), all = load(good, 9, 9), topDown = load(with(good, HEIGHT, std::uint32_t(-2)));
    ASSERT_TRUE(part && all && topDown);
    EXPECT_EQ(part->piksele, Pixels({RED, GREEN}));
    EXPECT_EQ(QSize(all->width, all->height), QSize(3, 2));
    EXPECT_EQ(topDown->piksele[3], RED);

    EXPECT_FALSE(load(with(with(good, WIDTH, 0x7FFFFFFF), HEIGHT, 0x7FFFFFFF)));
    EXPECT_FALSE(load(with(with(with(good, WIDTH, 60000), HEIGHT, 60000), COMPRESSION, RLE8)));
    EXPECT_FALSE(load(with(good, WIDTH, std::uint32_t(-3))));
    EXPECT_FALSE(load(with(good, DEPTH, 7, 2)));
    EXPECT_FALSE(loadBitmapa(root / "nie ma", 3, 2));
    EXPECT_FALSE(fs::exists(root / "nie ma"));
}

} // namespace
} // namespace dorva::test
