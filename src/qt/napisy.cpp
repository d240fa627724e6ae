#include "qt/napisy.h"

#include <QPen>
#include <QPoint>
#include <QStaticText>
#include <QStyle>

#include <algorithm>

namespace dorva {
namespace {

// Where the caption stands as one line.
QRect placeOfLine(const QFontMetrics& metrics, const QRect& box, int flags, const QString& caption) {
    return QStyle::alignedRect(Qt::LeftToRight,
                               Qt::Alignment(flags & (Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask)),
                               QSize(metrics.horizontalAdvance(caption), metrics.height()), box);
}

} // namespace

int widthForCaption(const QFontMetrics& metrics, QSize box, int flags, const QString& caption) {
    const int oneLine = metrics.horizontalAdvance(caption);
    if (oneLine <= box.width() || !(flags & Qt::TextWordWrap))
        return std::max(oneLine, box.width());
    const int height = box.height() + metrics.descent(); // letters leave room above and below
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
    const QFontMetrics metrics = painter.fontMetrics();
    if (const QRect line = placeOfLine(metrics, box, flags, caption); line.width() <= box.width()) {
        painter.drawText(line.left(), line.top() + metrics.ascent(), caption);
        return;
    }
    const int width = widthForCaption(metrics, box.size(), flags, caption);
    painter.save();
    painter.translate(box.topLeft());
    painter.scale(double(box.width()) / width, 1);
    painter.drawText(QRect(0, 0, width, box.height()), flags, caption);
    painter.restore();
}

void drawOutlined(QPainter& painter, const QRect& box, int flags, const QString& caption) {
    const QPoint begin = placeOfLine(painter.fontMetrics(), box, flags, caption).topLeft();
    QStaticText text(caption);
    text.setTextFormat(Qt::PlainText);
    const QPen pen = painter.pen();
    painter.setPen(Qt::black);
    for (int x : {-1, 0, 1})
        for (int y : {-1, 0, 1})
            painter.drawStaticText(begin + QPoint(x, y), text);
    painter.setPen(pen);
    painter.drawStaticText(begin, text);
}

} // namespace dorva
