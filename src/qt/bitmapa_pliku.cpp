#include "qt/bitmapa_pliku.h"

#include "system/pliki.h"

#include <QBuffer>
#include <QImageReader>

#include <cstdint>
#include <cstdlib>

namespace dorva {
namespace {

constexpr qint64 PIXELS_MAX = 16 << 20;

// A file in memory that notes whether the reader wanted more than there is: Qt's reader takes a file that was cut short
// for a whole one.
class PlikWPamieci : public QBuffer {
public:
    using QBuffer::QBuffer;

    bool cutShort = false;

protected:
    qint64 readData(char* bytes, qint64 count) override {
        cutShort |= count > size() - pos();
        return QBuffer::readData(bytes, count);
    }
};

bool isTransparent(const QImage& image) {
    const QImage alpha = image.convertToFormat(QImage::Format_Alpha8);
    QImage none(alpha.size(), alpha.format());
    none.fill(0);
    return alpha == none;
}

} // namespace

std::optional<Bitmapa> loadBitmapa(const std::filesystem::path& path, int width, int height) {
    const auto file = readWhole(SYSTEM_CALLS, path);
    if (!file)
        return std::nullopt;
    QByteArray bytes =
        QByteArray::fromRawData(reinterpret_cast<const char*>(file->data()), static_cast<qsizetype>(file->size()));
    PlikWPamieci buffer(&bytes);
    QImageReader reader(&buffer, "bmp");
    reader.setAutoDetectImageFormat(false);
    const QSize stored = reader.size();
    const QSize size(stored.width(), std::abs(stored.height())); // a negative height: the top row comes first
    if (size.isEmpty() || qint64(size.width()) * size.height() > PIXELS_MAX)
        return std::nullopt;
    QImage image(size, reader.imageFormat());
    image.fill(0); // a compressed file may skip pixels
    if (!reader.read(&image) || buffer.cutShort)
        return std::nullopt;
    if (image.format() == QImage::Format_ARGB32 && isTransparent(image))
        image.reinterpretAsFormat(QImage::Format_RGB32); // the alpha channel was left empty
    const QImage part = image.copy(image.rect() & QRect(0, 0, width, height)).convertToFormat(QImage::Format_ARGB32);
    const auto* pixels = reinterpret_cast<const std::uint32_t*>(part.constBits());
    return Bitmapa{part.width(), part.height(), {pixels, pixels + part.width() * part.height()}};
}

} // namespace dorva
