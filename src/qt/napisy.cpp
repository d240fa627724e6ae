#include "qt/napisy.h"

#include <algorithm>

namespace dorva {

int widthForCaption(const QFontMetrics& metrics, QSize box, int flags, const QString& caption) {
    const int oneLine = metrics.horizontalAdvance(caption);
    if (oneLine <= box.width() || !(flags & Qt::TextWordWrap))
        return std::max(oneLine, box.width());
    const int height = box.height() + metrics.descent(); // half of it above and below, where letters leave room
    const auto fits = [&](int width) {
        const QSize text = metrics.boundingRect(QRect(0, 0, width, height), flags, caption).size();
        return text.width() <= width && text.height() <= height;
    };
    int width = box.width();
    while (width < oneLine && !fits(width))
        ++width;
    return width;
}

void drawCaption(QPainter& painter, const QRect& box, int flags, const QString& caption) {
    const int width = widthForCaption(painter.fontMetrics(), box.size(), flags, caption);
    if (width == box.width()) {
        painter.drawText(box, flags, caption);
        return;
    }
    painter.save();
    painter.translate(box.topLeft());
    painter.scale(double(box.width()) / width, 1);
    painter.drawText(QRect(0, 0, width, box.height()), flags, caption);
    painter.restore();
}

} // namespace dorva
