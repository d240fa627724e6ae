// The sheet: the cards in rows, and where a card may be dropped.
#pragma once

#include "przeglad_qt/karty_model.h"
#include "przeglad_qt/rysownik.h"

#include <QListView>

#include <functional>
#include <optional>

namespace dorva {

class Arkusz : public QListView {
public:
    Arkusz(KartyModel&, Rysownik&, QWidget* parent);

    std::function<void(int from, int to)> onMove;       // the card goes to that place
    std::function<void(int one, int other)> onExchange; // the cards change places
    std::function<void(const QString& text)> onHint;    // what a drop would do; empty at its end

    [[nodiscard]] int place() const { return currentIndex().row(); } // of the selected card, or -1
    void select(int place);
    [[nodiscard]] int columns() const;

protected:
    void startDrag(Qt::DropActions) override;
    void dragEnterEvent(QDragEnterEvent*) override;
    void dragMoveEvent(QDragMoveEvent*) override;
    void dragLeaveEvent(QDragLeaveEvent*) override;
    void dropEvent(QDropEvent*) override;
    void paintEvent(QPaintEvent*) override;

private:
    // Onto the card at `place`, or into the gap at its left or right side.
    struct Cel {
        int place;
        enum { Left, Onto, Right } side;
    };
    [[nodiscard]] std::optional<Cel> celAt(QPoint) const;
    [[nodiscard]] int newPlace(const Cel&) const; // of the card that is dragged
    void showCel(const std::optional<Cel>&);

    std::optional<Cel> cel_;
};

} // namespace dorva
