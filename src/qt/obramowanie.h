// Thin lines around things.
#pragma once

class QColor;
class QPainter;
class QRect;

namespace dorva {

// A line along the inner side of a rectangle. It keeps to the rectangle on fractional scales too, where a pen would
// draw beside it.
void drawBorder(QPainter&, const QRect&, const QColor&, int thickness = 1);

} // namespace dorva
