// Captions. One that is too wide for its box is drawn narrower, so that no word is lost.
#pragma once

#include <QFontMetrics>
#include <QPainter>
#include <QString>

namespace dorva {

// The width that a caption needs at the height of its box: the box's own if it fits, else more. `flags` are those of
// QPainter::drawText.
int widthForCaption(const QFontMetrics&, QSize box, int flags, const QString& caption);

// Draws a caption in the painter's font and colour.
void drawCaption(QPainter&, const QRect& box, int flags, const QString& caption);

// Draws a caption that fits its box as one line, with a black outline around its letters. It is measured once, as it is
// drawn ten times.
void drawOutlined(QPainter&, const QRect& box, int flags, const QString& caption);

} // namespace dorva
