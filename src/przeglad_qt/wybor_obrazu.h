// A dialog that offers pictures.
#pragma once

#include <QImage>
#include <QString>

#include <optional>
#include <vector>

class QWidget;

namespace dorva {

struct Propozycja {
    QImage obraz; // in pixels of the screen; all of one size
    QString podpis;
};

// Lets the user choose a picture; `accept` is the caption of the button that does it. The index of the picture, or
// nothing if the user cancelled.
std::optional<int> chooseObraz(QWidget* parent, const QString& title, const QString& accept,
                               const std::vector<Propozycja>&);

// "25.11.2026, 18:32" for "2026-11-25 18.32", as it stands in the name of a copy.
QString czasKopii(const std::string& made);

} // namespace dorva
