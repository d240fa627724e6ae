// Converts values of the logic to Qt's, and back.
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

// What a box shows of a text. A control code, which only a file can bring, is shown by its symbol, so that the box
// holds as many characters as the text.
QString toQString(const Tekst&);

// The text that a box shows. A symbol becomes its control code, wherever it came from, so that undo, cut and paste keep
// what a file held. A control code that was pasted becomes a space.
Tekst fromShown(const QString&);

// Paths as the file system spells them.
QString nameOfPath(const std::filesystem::path&);
std::filesystem::path toPath(const QString&);

QColor toQColor(Rgb);

// Does nothing if the widget has this colour already.
void setColour(QWidget*, QPalette::ColorRole, const QColor&);

} // namespace dorva
