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

// The window's text for bytes of the code page. A control code is shown by its symbol, so that a box
// always holds as many characters as the text. What a user types or pastes has none: they become spaces.
QString toQString(const Tekst&);
Tekst fromQString(const QString&);

// Paths as the file system spells them.
QString nameOfPath(const std::filesystem::path&);
std::filesystem::path toPath(const QString&);

QColor toQColor(Rgb);

// Leaves a widget of this colour alone.
void setColour(QWidget*, QPalette::ColorRole, const QColor&);

} // namespace dorva
