// Thin lines around things.
#pragma once

class QColor;
class QPainter;
class QPalette;
class QRect;

namespace dorva {

// A line along the inner side of a rectangle. It keeps to the rectangle on fractional scales too, where a pen would
// draw beside it.
void drawBorder(QPainter&, const QRect&, const QColor&, int thickness = 1);

// The style draws outlines darker than the window's ground, which nobody sees where that is dark: there it is given a
// light one to start from. For a control that stands on a ground of its own.
void lightenOutline(QPalette&);

} // namespace dorva
