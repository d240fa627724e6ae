// Borders and outlines.
#pragma once

class QColor;
class QPainter;
class QPalette;
class QRect;

namespace dorva {

// Draws a line along the inner side of a rectangle. It stays within the rectangle on fractional scales too, where a pen
// would draw outside.
void drawBorder(QPainter&, const QRect&, const QColor&, int thickness = 1);

// The style draws outlines in a darker shade of the window's background. In a dark palette that can't be seen, so this
// gives it a light colour to start from. For controls that have a background of their own.
void lightenOutline(QPalette&);

} // namespace dorva
