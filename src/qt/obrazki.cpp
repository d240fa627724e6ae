#include "qt/obrazki.h"

#include "qt/czcionki.h"

#include <QColor>
#include <QPainter>

namespace dorva {
namespace {

constexpr QImage::Format FORMAT = QImage::Format_ARGB32_Premultiplied;

QImage filled(const QColor& colour) {
    QImage image(OBRAZ_SIDE, OBRAZ_SIDE, FORMAT);
    image.fill(colour);
    return image;
}

// A coloured field with the code on it.
QImage domyslny(Znak z) {
    constexpr int STEPS = 16;
    const int shape = kod(z) % INV;
    const QColor field = QColor::fromHsv(shape % STEPS * 360 / STEPS, 130, 60 + 40 * (shape / STEPS));
    QImage image = filled(kod(z) < INV ? field.lighter(150) : Qt::white);
    QPainter painter(&image);
    painter.fillRect(image.rect().adjusted(2, 2, -2, -2), field);
    QFont font = fontFigury();
    font.setPixelSize(OBRAZ_SIDE / 2); // large enough to be read at half the size
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(image.rect(), Qt::AlignCenter, QString::number(kod(z)));
    return image;
}

// A grey field with a diagonal cross.
QImage neutralny() {
    QImage image = filled(QColor(0x60, 0x60, 0x60));
    QPainter painter(&image);
    painter.setPen(QPen(QColor(0xA0, 0xA0, 0xA0), 2));
    painter.drawLine(5, 5, OBRAZ_SIDE - 5, OBRAZ_SIDE - 5);
    painter.drawLine(5, OBRAZ_SIDE - 5, OBRAZ_SIDE - 5, 5);
    return image;
}

QImage imageOf(const Magazyn& frmZestawy, ObrazRef ref) {
    if (!isTile(ref.znak))
        return neutralny();
    if (ref.swiat == ObrazRef::DOMYSLNY)
        return domyslny(ref.znak);
    const ZnakObraz* obraz = frmZestawy.find(ref);
    if (!obraz)
        return filled(Qt::transparent);
    return QImage(reinterpret_cast<const uchar*>(obraz->data()), OBRAZ_SIDE, OBRAZ_SIDE, QImage::Format_ARGB32)
        .convertToFormat(FORMAT);
}

} // namespace

void Obrazki::followMagazyn() {
    if (wersja_ == frmZestawy_.wersja)
        return;
    wersja_ = frmZestawy_.wersja;
    gotowe_ = {};
}

ObrazekPtr Obrazki::prepare(ObrazRef ref) const {
    const QImage image = imageOf(frmZestawy_, ref);
    return std::make_shared<const Obrazek>(
        Obrazek{image, image.scaled(maly_, maly_, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)});
}

} // namespace dorva
