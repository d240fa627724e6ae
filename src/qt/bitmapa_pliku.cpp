#include "qt/bitmapa_pliku.h"

#include "system/pliki.h"

#include <QBuffer>
#include <QImageReader>

#include <cstdint>
#include <cstdlib>

namespace dorva {
namespace {

constexpr qint64 PIXELS_MAX = 16 << 20;

// Offsets and values of the bitmap file header and of the info header behind it.
constexpr int PIXELS_OFFSET = 10, DEPTH_OFFSET = 28, COMPRESSION_OFFSET = 30, HEADERS_SIZE_BYTES = 54;
constexpr int UNCOMPRESSED = 0;

std::uint32_t little(const QByteArray& bytes, int offset, int count) {
    std::uint32_t value = 0;
    for (int i = count; i-- > 0;)
        value = value << 8U | static_cast<std::uint8_t>(bytes[offset + i]);
    return value;
}

// The reader would fill up a file that was cut short.
bool isWhole(const QByteArray& bytes, QSize size) {
    if (bytes.size() < HEADERS_SIZE_BYTES)
        return false;
    if (little(bytes, COMPRESSION_OFFSET, 4) != UNCOMPRESSED)
        return true;
    const qint64 rowBytes = (qint64(size.width()) * little(bytes, DEPTH_OFFSET, 2) + 31) / 32 * 4;
    return little(bytes, PIXELS_OFFSET, 4) + rowBytes * size.height() <= bytes.size();
}

} // namespace

std::optional<Bitmapa> loadBitmapa(const std::filesystem::path& path, int width, int height) {
    const auto file = readWhole(SYSTEM_CALLS, path);
    if (!file)
        return std::nullopt;
    QByteArray bytes =
        QByteArray::fromRawData(reinterpret_cast<const char*>(file->data()), static_cast<qsizetype>(file->size()));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "bmp");
    reader.setAutoDetectImageFormat(false);
    const QSize told = reader.size();
    const QSize size(told.width(), std::abs(told.height())); // a height below 0: the rows run from the top down
    if (size.isEmpty() || qint64(size.width()) * size.height() > PIXELS_MAX || !isWhole(bytes, size))
        return std::nullopt;
    const QImage image = reader.read();
    if (image.isNull())
        return std::nullopt;

    const QImage part = image.copy(image.rect() & QRect(0, 0, width, height)).convertToFormat(QImage::Format_ARGB32);
    const auto* pixels = reinterpret_cast<const std::uint32_t*>(part.constBits());
    return Bitmapa{part.width(), part.height(), {pixels, pixels + part.width() * part.height()}};
}

} // namespace dorva
