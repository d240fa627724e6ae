#include "bmp.h"

#include <algorithm>

namespace dorva {
namespace {

constexpr int FILE_HEADER_BYTES = 14, INFO_HEADER_BYTES = 40, COLOUR_BYTES = 4;
constexpr int BITS_PER_PIXEL = 4;

void put(Bajty& bytes, int value, int count) {
    for (int i = 0; i < count; ++i)
        bytes.push_back(static_cast<Bajt>(static_cast<unsigned>(value) >> 8 * i));
}

} // namespace

void ObrazBarwny::fill(int x, int y, int w, int h, Bajt barwa) {
    for (int row = y; row < y + h; ++row)
        std::fill_n(piksele.begin() + row * width + x, w, barwa);
}

Bajty BuildBmp(const ObrazBarwny& obraz) {
    const int colours = static_cast<int>(obraz.barwy.size());
    const int pixelsAt = FILE_HEADER_BYTES + INFO_HEADER_BYTES + COLOUR_BYTES * colours;
    const int rowBytes = (obraz.width * BITS_PER_PIXEL + 31) / 32 * 4;
    const int pixelBytes = rowBytes * obraz.height;

    Bajty bytes{'B', 'M'};
    for (int field : {pixelsAt + pixelBytes, 0, pixelsAt, INFO_HEADER_BYTES, obraz.width, obraz.height})
        put(bytes, field, 4);
    put(bytes, 1, 2); // planes
    put(bytes, BITS_PER_PIXEL, 2);
    for (int field : {0, pixelBytes, 0, 0, colours, colours})
        put(bytes, field, 4);
    for (const Rgb& barwa : obraz.barwy)
        bytes.insert(bytes.end(), {barwa.b, barwa.g, barwa.r, 0});

    bytes.resize(pixelsAt + pixelBytes);
    for (int y = 0; y < obraz.height; ++y) {
        const auto row = pixelsAt + rowBytes * (obraz.height - 1 - y); // bottom up
        for (int x = 0; x < obraz.width; ++x) {
            const Bajt pixel = obraz.piksele[y * obraz.width + x];
            bytes[row + x / 2] |= static_cast<Bajt>(x % 2 ? pixel : pixel << 4);
        }
    }
    return bytes;
}

} // namespace dorva
