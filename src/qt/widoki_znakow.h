// The widgets that show tiles: board, picker, and single pictures.
#pragma once

#include "board/droga.h"
#include "qt/obrazki.h"
#include "shell/okno.h"

#include <QWidget>

#include <array>
#include <functional>
#include <span>

namespace dorva {

// The board. All its cells are one widget, which repaints only those that changed.
class PlanszaWidget : public QWidget {
public:
    explicit PlanszaWidget(QWidget* parent);

    // Report the cell, and the button pressed or the sum of those held. A drag reports each cell that it crosses, even
    // if the pointer skips some.
    std::function<void(int cell, int button)> onPress, onMove;

    void showPlansza(const Plansza&, Obrazki&);
    void showObrys(int cell); // -1 for none

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;

private:
    [[nodiscard]] int cellSide() const; // of the composed image, in its pixels
    void compose(std::span<const int> cells);
    void composeAll();

    std::array<ObrazekPtr, PLANSZA_CELLS> obrazki_;
    int obrys_ = -1;
    QImage image_;      // composed of the pictures when first painted
    Polozenie pointer_; // may be outside the board during a drag
};

// The two visible rows of the tile picker in one widget. The slot under the pointer and the one whose tile is in the
// buffer are framed, each in its own colour, unless they are disabled.
class WyborWidget : public QWidget {
public:
    explicit WyborWidget(QWidget* parent);

    // A click on a slot: pressed and released within it.
    std::function<void(int slot)> onClick;

    void showZnaki(const std::array<ZnakSlot, ZNAKI_COUNT>&, Obrazki&);
    void showBufor(Znak);

    // The rectangle of a visible slot, its border included; empty for a hidden one.
    [[nodiscard]] static QRect slotRect(int slot);

protected:
    bool event(QEvent*) override; // tool tips by slot
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void leaveEvent(QEvent*) override;

private:
    [[nodiscard]] static int slotAt(QPoint); // -1 for none
    [[nodiscard]] QRect linesAround(int slot) const;
    void moveFrame(int& slot, int to);
    void updateFrame(int slot);

    std::array<ObrazekPtr, ZNAKI_COUNT> obrazki_;
    std::array<ZnakSlot, ZNAKI_COUNT> imgZnak_;
    QImage image_;
    int pressed_ = -1, underPointer_ = -1, inBufor_ = -1; // slots
};

// The picture of one tile with a thin border: 32 x 32 in 34 x 34 pixels, or 16 x 16 with the border over its outermost
// pixels.
class ObrazWidget : public QWidget {
public:
    explicit ObrazWidget(QWidget* parent);
    void showObraz(const ObrazekPtr&);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    ObrazekPtr obrazek_;
};

} // namespace dorva
