// Draws boards, cards and whole sheets.
#pragma once

#include "przeglad/gra.h"
#include "qt/obrazki.h"

#include <QImage>
#include <QPalette>
#include <QRect>
#include <QStringList>

#include <map>

class QPainter;

namespace dorva {

// A card in logical pixels. The board has 8 a cell.
inline constexpr int PLANSZA_WIDTH = 8 * PLANSZA_COLUMNS, PLANSZA_HEIGHT = 8 * PLANSZA_ROWS;
inline constexpr int KARTA_MARGIN = 8, NAGLOWEK_HEIGHT = 26, WIERSZ_HEIGHT = 18, WIERSZE_COUNT = 2;
inline constexpr int KARTA_WIDTH = PLANSZA_WIDTH + 2 * KARTA_MARGIN;
inline constexpr int OBRAZ_KARTY_HEIGHT = NAGLOWEK_HEIGHT + PLANSZA_HEIGHT + KARTA_MARGIN; // without warnings
inline constexpr int KARTA_HEIGHT = OBRAZ_KARTY_HEIGHT + WIERSZE_COUNT * WIERSZ_HEIGHT + KARTA_MARGIN / 2;

class Rysownik {
public:
    explicit Rysownik(const Magazyn& frmZestawy) : frmZestawy_(frmZestawy) {}

    // The board of a stage, with `side` pixels a cell.
    QImage plansza(const EtapImage&, int side);

    // The upper part of a card: number, greeting, mark, board.
    void karta(QPainter&, const QRect&, const Gra&, int place, const QPalette&);

    // All boards of a game, small, in four rows. `side` is that of a cell.
    QImage film(const Gra&, int side);

    // The title lines and all cards, as a picture to show around.
    QImage arkusz(const Gra&);

private:
    Obrazki& obrazkiOf(int side);

    const Magazyn& frmZestawy_;
    std::map<int, Obrazki> obrazki_; // by the side of a cell
};

// The lines below the board: a line a warning, as many as fit.
void drawOstrzezenia(QPainter&, const QRect&, const QStringList& teksty, const QPalette&);

} // namespace dorva
