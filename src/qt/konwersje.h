// Values of the logic as Qt's, and back.
#pragma once

#include "stage/tekst.h"
#include "tiles/obraz.h"

#include <QColor>
#include <QPalette>
#include <QString>

#include <filesystem>
#include <string_view>

class QWidget;

namespace dorva {

// Captions and messages.
QString toQString(std::string_view utf8);

// The window's text for bytes of the code page. A control code, which only a file can hold, is shown by its symbol, so
// that a box always holds as many characters as the text.
QString toQString(const Tekst&);

// The text for what a box shows. A symbol stands for its control code wherever it comes from, so that undo, cut and
// paste keep what a file held; a control code that was pasted as such becomes a space.
Tekst fromShown(const QString&);

// Paths as the file system spells them.
QString nameOfPath(const std::filesystem::path&);
std::filesystem::path toPath(const QString&);

QColor toQColor(Rgb);

// Leaves a widget of this colour alone.
void setColour(QWidget*, QPalette::ColorRole, const QColor&);

} // namespace dorva
