#include "przeglad_qt/rysownik.h"

#include "qt/czcionki.h"
#include "qt/konwersje.h"

#include <QPainter>

#include <algorithm>

namespace dorva {
namespace {

constexpr int NUMER_WIDTH = 30;
constexpr int ODSTEP = 6;

QFont bold(QFont font, int pixels) {
    font.setBold(true);
    font.setPixelSize(pixels);
    return font;
}

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() < 128;
}

// The mark at the right end of the header; returns how wide it is.
int drawOstatni(QPainter& painter, const QRect& naglowek, const QPalette& palette) {
    painter.setFont(bold(painter.font(), 11));
    const QString text = "OSTATNI";
    const int width = painter.fontMetrics().horizontalAdvance(text) + 2 * ODSTEP;
    const QRect place(naglowek.right() - width, naglowek.top() + 4, width, naglowek.height() - 8);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.highlight());
    painter.drawRoundedRect(place, 4, 4);
    painter.setPen(palette.color(QPalette::HighlightedText));
    painter.drawText(place, Qt::AlignCenter, text);
    return width + ODSTEP;
}

void drawNaglowek(QPainter& painter, QRect naglowek, const Gra& gra, int place, const QPalette& palette) {
    const EtapImage& image = gra.karty[place].image;
    const QFont font = painter.font();
    painter.setPen(palette.color(QPalette::Text));
    painter.setFont(bold(font, 16));
    painter.drawText(naglowek, Qt::AlignLeft | Qt::AlignVCenter, QString::number(place + 1));
    if (image.empty() ? gra.ostatni[place] != 0 : image[uklad::OSTATNI] != 0)
        naglowek.setRight(naglowek.right() - drawOstatni(painter, naglowek, palette));
    painter.setFont(font);
    if (image.empty())
        return;
    painter.setPen(palette.color(QPalette::Text));
    naglowek.setLeft(naglowek.left() + NUMER_WIDTH);
    painter.drawText(naglowek, Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(toQString(nazwaOf(image)), Qt::ElideRight, naglowek.width()));
}

} // namespace

Obrazki& Rysownik::obrazkiOf(int side) {
    Obrazki& obrazki = obrazki_.try_emplace(side, frmZestawy_, side).first->second;
    obrazki.followMagazyn();
    return obrazki;
}

QImage Rysownik::plansza(const EtapImage& image, int side) {
    Obrazki& obrazki = obrazkiOf(side);
    QImage board(PLANSZA_COLUMNS * side, PLANSZA_ROWS * side, QImage::Format_RGB32);
    board.fill(SZARY);
    QPainter painter(&board);
    const auto swiat = static_cast<std::int8_t>(std::min<int>(image[uklad::SWIAT], SWIATY_COUNT - 1));
    for (int cell = 0; cell < PLANSZA_CELLS; ++cell)
        painter.drawImage(cell % PLANSZA_COLUMNS * side, cell / PLANSZA_COLUMNS * side,
                          obrazki[{swiat, znak(image[uklad::PLANSZA + cell])}]->maly);
    return board;
}

void Rysownik::karta(QPainter& painter, const QRect& rect, const Gra& gra, int place, const QPalette& palette) {
    const QRect inner = rect.adjusted(KARTA_MARGIN, 0, -KARTA_MARGIN, 0);
    drawNaglowek(painter, {inner.topLeft(), QSize(inner.width(), NAGLOWEK_HEIGHT)}, gra, place, palette);
    const QRect board(inner.left(), inner.top() + NAGLOWEK_HEIGHT, PLANSZA_WIDTH, PLANSZA_HEIGHT);
    const Karta& karta = gra.karty[place];
    if (!karta.image.empty()) {
        // Composed in whole pixels of the screen, so that there are no seams on a fractional scale.
        const qreal scale = painter.device()->devicePixelRatio();
        painter.drawImage(board, plansza(karta.image, qRound(8 * scale)));
        return;
    }
    painter.fillRect(board, palette.color(QPalette::AlternateBase));
    painter.setPen(palette.color(QPalette::Text));
    painter.drawText(board.adjusted(ODSTEP, 0, -ODSTEP, 0), Qt::AlignCenter | Qt::TextWordWrap, toQString(karta.brak));
}

QImage Rysownik::film(const Gra& gra, int side) {
    constexpr int COLUMNS = 8, ROWS = ETAPY_COUNT / COLUMNS;
    const QSize pitch(PLANSZA_COLUMNS * side + side, PLANSZA_ROWS * side + side);
    QImage film(COLUMNS * pitch.width() - side, ROWS * pitch.height() - side, QImage::Format_RGB32);
    film.fill(Qt::white);
    QPainter painter(&film);
    for (int i = 0; i < ETAPY_COUNT; ++i)
        if (const EtapImage& image = gra.karty[i].image; !image.empty())
            painter.drawImage(i % COLUMNS * pitch.width(), i / COLUMNS * pitch.height(), plansza(image, side));
    return film;
}

QImage Rysownik::arkusz(const Gra& gra) {
    constexpr int COLUMNS = 4, ROWS = ETAPY_COUNT / COLUMNS, TITLE_HEIGHT = 24;
    constexpr int TOP = LINIE_COUNT * TITLE_HEIGHT + 2 * KARTA_MARGIN;
    const QPalette palette(Qt::white); // the same on every desktop
    QImage sheet(COLUMNS * KARTA_WIDTH, TOP + ROWS * OBRAZ_KARTY_HEIGHT, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    QFont font = fontStaly();
    font.setPixelSize(18);
    painter.setFont(font);
    for (int i = 0; i < LINIE_COUNT; ++i)
        painter.drawText(QRect(0, KARTA_MARGIN + i * TITLE_HEIGHT, sheet.width(), TITLE_HEIGHT), Qt::AlignCenter,
                         toQString(trimmed(gra.linie[i])));
    font = fontOkna();
    font.setPixelSize(13);
    painter.setFont(font);
    for (int i = 0; i < ETAPY_COUNT; ++i)
        karta(painter,
              {i % COLUMNS * KARTA_WIDTH, TOP + i / COLUMNS * OBRAZ_KARTY_HEIGHT, KARTA_WIDTH, OBRAZ_KARTY_HEIGHT}, gra,
              i, palette);
    return sheet;
}

void drawOstrzezenia(QPainter& painter, const QRect& rect, const QStringList& teksty, const QPalette& palette) {
    painter.setPen(isDark(palette) ? QColor(255, 130, 120) : QColor(190, 0, 0));
    const int count = static_cast<int>(teksty.size()), lines = std::min(count, WIERSZE_COUNT);
    for (int i = 0; i < lines; ++i) {
        QRect line(rect.left(), rect.top() + i * WIERSZ_HEIGHT, rect.width(), WIERSZ_HEIGHT);
        if (i == lines - 1 && count > lines) {
            const QString more = QString("i jeszcze %1").arg(count - lines);
            painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, more);
            line.setRight(line.right() - painter.fontMetrics().horizontalAdvance(more) - ODSTEP);
        }
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                         painter.fontMetrics().elidedText("• " + teksty[i], Qt::ElideRight, line.width()));
    }
}

} // namespace dorva
