#include "qt/obramowanie.h"

#include <QPainter>
#include <QPalette>

namespace dorva {

void drawBorder(QPainter& painter, const QRect& r, const QColor& colour, int thickness) {
    painter.fillRect(r.left(), r.top(), r.width(), thickness, colour);
    painter.fillRect(r.left(), r.bottom() + 1 - thickness, r.width(), thickness, colour);
    painter.fillRect(r.left(), r.top(), thickness, r.height(), colour);
    painter.fillRect(r.right() + 1 - thickness, r.top(), thickness, r.height(), colour);
}

void lightenOutline(QPalette& palette) {
    const QColor text = palette.color(QPalette::WindowText);
    if (palette.color(QPalette::Window).lightness() < text.lightness())
        palette.setColor(QPalette::Window, text);
}

} // namespace dorva
