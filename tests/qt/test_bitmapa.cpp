// What Qt's reader of bitmap files leaves to the program.
#include "window_desk.h"

namespace dorva::test {
namespace {

using Words = std::vector<std::uint32_t>;
constexpr std::uint32_t BLACK = 0xFF000000, RED = 0xFFFF0000, GREEN = 0xFF00FF00;

// Files of 3 x 2 pixels, in words of 32 bits behind the letters BM; the lower row comes first.
constexpr std::size_t WIDTH = 4, HEIGHT = 5;
constexpr std::uint32_t BITS_8 = 8 << 16 | 1, BITS_32 = 32 << 16 | 1, RUNS = 1, MASKS = 3;
const Words PLAIN{0, 0, 54, 40, 3, 2, BITS_32, 0, 0, 0, 0, 0, 0, 0, 0, 0, RED, GREEN, 0};
// A palette, "up by a row", "one of colour 1", "end".
const Words PACKED{0, 0, 66, 40, 3, 2, BITS_8, RUNS, 0, 0, 0, 3, 0, BLACK, RED, GREEN, 0x01000200, 0x01000101};

Words withAlpha(const Words& pixels) {
    Words file{0, 0, 122, 108, 3, 2, BITS_32, MASKS, 0, 0, 0, 0, 0, 0xFF0000, 0xFF00, 0xFF, 0xFF000000};
    file.resize(30);
    file.insert(file.end(), pixels.begin(), pixels.end());
    return file;
}

Words with(Words file, std::size_t place, int value) {
    file[place] = static_cast<std::uint32_t>(value);
    return file;
}

class BitmapFile : public WindowDesk {
protected:
    void SetUp() override {
        Desk::SetUp();
        okno = std::make_unique<OknoGlowne>(e); // with its own hook, which reads files
    }
    // The pixels of a file of which the last bytes are missing; none if it is refused.
    Words load(const Words& words, int width = 3, int height = 2, std::size_t missing = 0) {
        Bajty file{'B', 'M'};
        for (std::uint32_t word : words)
            for (int shift : {0, 8, 16, 24})
                file.push_back(static_cast<Bajt>(word >> shift));
        file.resize(file.size() - missing);
        writeFile(root / "a.bmp", file);
        const auto bitmapa = e.haki.loadPicture(root / "a.bmp", width, height);
        return bitmapa ? bitmapa->piksele : Words();
    }
};

TEST_F(BitmapFile, WholeOnesAreShownCutOnesAreNot) {
    const struct {
        const char* name;
        Words file, picture;
        std::size_t end = 0; // bytes that may be missing
    } rows[]{
        {"plain", PLAIN, {RED, GREEN, BLACK, BLACK, BLACK, BLACK}},
        {"empty alpha", withAlpha({0, 0, 0, 0xFF0000, 0xFF00, 0}), {RED, GREEN, BLACK, BLACK, BLACK, BLACK}},
        {"alpha that holds something", withAlpha({0, 0, 0, RED, 0, 0}), {RED, 0, 0, 0, 0, 0}},
        {"runs that leave pixels out", PACKED, {RED, BLACK, BLACK, BLACK, BLACK, BLACK}, 2},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(load(row.file), row.picture) << row.name;
        for (std::size_t missing = row.end + 1; missing <= 4 * row.file.size(); ++missing)
            EXPECT_EQ(load(row.file, 3, 2, missing), Words()) << row.name << ", without the last " << missing;
    }
}

TEST_F(BitmapFile, OnlyThePartThatIsWantedIsKeptAndWhatIsNoPictureIsRefused) {
    EXPECT_EQ(load(PLAIN, 2, 1), Words({RED, GREEN}));
    EXPECT_EQ(load(PLAIN, 9, 9), load(PLAIN));
    EXPECT_EQ(load(with(PLAIN, HEIGHT, -2)), Words({BLACK, BLACK, BLACK, RED, GREEN, BLACK}));
    EXPECT_EQ(load(with(PLAIN, WIDTH, -3)), Words());
    EXPECT_EQ(load(with(with(PACKED, WIDTH, 5000), HEIGHT, 5000)), Words()) << "a few bytes would become 100 MB";
    EXPECT_FALSE(e.haki.loadPicture(root / "nie ma", 3, 2));
}

} // namespace
} // namespace dorva::test
