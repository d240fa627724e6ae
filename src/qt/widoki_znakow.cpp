#include "qt/widoki_znakow.h"

#include "board/plansza.h"
#include "qt/konwersje.h"
#include "qt/kursory.h"
#include "qt/obramowanie.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace dorva {
namespace {

constexpr QColor SEPARATOR(0, 0, 0); // between slots
constexpr int SLOT_PITCH = OBRAZ_SIDE, SLOT_SIDE = OBRAZ_SIDE + 2;

int buttonsOf(Qt::MouseButtons buttons) {
    int sum = 0;
    if (buttons & Qt::LeftButton)
        sum += LEWY;
    if (buttons & Qt::RightButton)
        sum += PRAWY;
    if (buttons & Qt::MiddleButton)
        sum += SRODKOWY;
    return sum;
}

Polozenie polozenieOf(const QMouseEvent* event) {
    return {event->position().x() / KRATKA_SIDE, event->position().y() / KRATKA_SIDE};
}

bool onBoard(Kratka cell) {
    return cell.column >= 0 && cell.column < PLANSZA_COLUMNS && cell.row >= 0 && cell.row < PLANSZA_ROWS;
}

int indexOf(Kratka cell) {
    return cell.row * PLANSZA_COLUMNS + cell.column;
}

QRect cellRect(int cell, int side) {
    return {cell % PLANSZA_COLUMNS * side, cell / PLANSZA_COLUMNS * side, side, side};
}

// A line that can be seen on light and dark pictures alike.
void drawObrys(QPainter& painter, QRect rect) {
    rect.adjust(0, 0, -1, -1);
    painter.setPen(Qt::black);
    painter.drawRect(rect);
    painter.setPen(QPen(Qt::white, 1, Qt::DotLine));
    painter.drawRect(rect);
}

} // namespace

PlanszaWidget::PlanszaWidget(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PlanszaWidget::showPlansza(const Plansza& plansza, Obrazki& obrazki) {
    std::vector<int> changed;
    for (int cell = 0; cell < PLANSZA_CELLS; ++cell) {
        const ObrazekPtr& obrazek = obrazki[plansza[cell].obraz];
        if (obrazki_[cell] == obrazek)
            continue;
        obrazki_[cell] = obrazek;
        changed.push_back(cell);
        update(cellRect(cell, KRATKA_SIDE));
    }
    if (!image_.isNull())
        compose(changed);
}

void PlanszaWidget::showObrys(int cell) {
    // On a fractional scale the line may reach into the neighbouring cells.
    const int before = std::exchange(obrys_, cell);
    if (before == cell)
        return;
    for (int changed : {before, cell})
        if (changed >= 0)
            update(cellRect(changed, KRATKA_SIDE).adjusted(-1, -1, 1, 1));
}

int PlanszaWidget::cellSide() const {
    return devicePixelRatioF() > 1 ? OBRAZ_SIDE : KRATKA_SIDE;
}

void PlanszaWidget::compose(std::span<const int> cells) {
    const int side = image_.width() / PLANSZA_COLUMNS;
    QPainter painter(&image_);
    for (int cell : cells) {
        const QRect rect = cellRect(cell, side);
        painter.fillRect(rect, QColor::fromRgb(SZARY));
        painter.drawImage(rect.topLeft(), side == KRATKA_SIDE ? obrazki_[cell]->maly : obrazki_[cell]->duzy);
    }
}

void PlanszaWidget::composeAll() {
    image_ = QImage(PLANSZA_COLUMNS * cellSide(), PLANSZA_ROWS * cellSide(), QImage::Format_RGB32);
    std::array<int, PLANSZA_CELLS> cells;
    std::iota(cells.begin(), cells.end(), 0);
    compose(cells);
}

void PlanszaWidget::paintEvent(QPaintEvent* event) {
    if (!obrazki_.front())
        return;
    if (image_.width() != PLANSZA_COLUMNS * cellSide())
        composeAll(); // for the first time, or after the window was moved to a screen of another scale
    QPainter painter(this);
    if (image_.width() == width()) {
        for (const QRect& part : event->region())
            painter.drawImage(part, image_, part);
    } else {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(rect(), image_);
    }
    if (obrys_ >= 0)
        drawObrys(painter, cellRect(obrys_, KRATKA_SIDE));
}

void PlanszaWidget::mousePressEvent(QMouseEvent* event) {
    pointer_ = polozenieOf(event);
    const int button = buttonsOf(event->button());
    if (const Kratka cell = kratkaAt(pointer_); onBoard(cell) && button != 0 && onPress)
        onPress(indexOf(cell), button);
}

void PlanszaWidget::mouseMoveEvent(QMouseEvent* event) {
    const Polozenie from = std::exchange(pointer_, polozenieOf(event));
    const int buttons = buttonsOf(event->buttons());
    for (Kratka cell : cutKratki(from, pointer_))
        if (onBoard(cell) && onMove && (buttons != 0 || cell == kratkaAt(pointer_)))
            onMove(indexOf(cell), buttons);
}

WyborWidget::WyborWidget(QWidget* parent) : QWidget(parent) {
    setCursor(kursorWyboru());
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void WyborWidget::showZnaki(const std::array<ZnakSlot, ZNAKI_COUNT>& imgZnak, Obrazki& obrazki) {
    bool changed = false;
    for (int slot : WYBOR_ORDER) {
        const ObrazekPtr& obrazek = obrazki[imgZnak[slot].obraz];
        changed |= obrazki_[slot] != obrazek;
        obrazki_[slot] = obrazek;
        if (imgZnak_[slot].enabled != imgZnak[slot].enabled)
            updateFrame(slot);
    }
    imgZnak_ = imgZnak;
    if (!changed)
        return;
    image_ = QImage(size(), QImage::Format_RGB32);
    image_.fill(SZARY);
    QPainter painter(&image_);
    for (int slot : WYBOR_ORDER) {
        const QRect rect = slotRect(slot);
        painter.drawImage(rect.topLeft() + QPoint(1, 1), obrazki_[slot]->duzy);
        drawBorder(painter, rect, SEPARATOR);
    }
    update();
}

void WyborWidget::showBufor(Znak znak) {
    const auto* found = std::find_if(WYBOR_ORDER.begin(), WYBOR_ORDER.end(),
                                     [&](int slot) { return imgZnak_[slot].enabled && imgZnak_[slot].znak == znak; });
    moveFrame(inBufor_, found == WYBOR_ORDER.end() ? -1 : *found);
}

void WyborWidget::moveFrame(int& slot, int to) {
    const int before = std::exchange(slot, to);
    if (before == to)
        return;
    updateFrame(before);
    updateFrame(to);
}

// On a fractional scale a line may reach into the neighbouring slots.
void WyborWidget::updateFrame(int slot) {
    update(slotRect(slot).adjusted(-1, -1, 1, 1));
}

QRect WyborWidget::slotRect(int slot) {
    const auto found = std::find(WYBOR_ORDER.begin(), WYBOR_ORDER.end(), slot);
    if (found == WYBOR_ORDER.end())
        return {};
    const int place = static_cast<int>(found - WYBOR_ORDER.begin());
    return {place % WYBOR_COLUMNS * SLOT_PITCH, place / WYBOR_COLUMNS * SLOT_PITCH, SLOT_SIDE, SLOT_SIDE};
}

// The lines that can be seen around a slot: at its left and top its own, at its right and bottom those of its
// neighbours, if it has any.
QRect WyborWidget::linesAround(int slot) const {
    QRect lines = slotRect(slot);
    if (lines.right() < rect().right())
        lines.setRight(lines.right() - 1);
    if (lines.bottom() < rect().bottom())
        lines.setBottom(lines.bottom() - 1);
    return lines;
}

// Where two slots overlap, the later one is on top.
int WyborWidget::slotAt(QPoint position) {
    if (position.x() < 0 || position.y() < 0)
        return -1;
    const int column = std::min(position.x() / SLOT_PITCH, WYBOR_COLUMNS - 1);
    const int row = std::min(position.y() / SLOT_PITCH, 1);
    const int slot = WYBOR_ORDER[row * WYBOR_COLUMNS + column];
    return slotRect(slot).contains(position) ? slot : -1;
}

bool WyborWidget::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const int slot = slotAt(help->pos());
    if (slot < 0)
        QToolTip::hideText();
    else {
        QToolTip::showText(help->globalPos(), toQString(NAZWY_ZNAKOW[slot]), this, slotRect(slot));
    }
    return true;
}

void WyborWidget::paintEvent(QPaintEvent*) {
    constexpr QColor IN_BUFOR(255, 224, 64), UNDER_POINTER(255, 255, 255);
    QPainter painter(this);
    painter.drawImage(rect(), image_);
    if (underPointer_ >= 0 && imgZnak_[underPointer_].enabled)
        drawBorder(painter, linesAround(underPointer_), UNDER_POINTER);
    if (inBufor_ >= 0)
        drawBorder(painter, linesAround(inBufor_), IN_BUFOR); // on top, so that a click shows at once
}

void WyborWidget::mouseMoveEvent(QMouseEvent* event) {
    moveFrame(underPointer_, slotAt(event->pos()));
}

void WyborWidget::leaveEvent(QEvent*) {
    moveFrame(underPointer_, -1);
}

void WyborWidget::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton ? slotAt(event->pos()) : -1;
}

void WyborWidget::mouseReleaseEvent(QMouseEvent* event) {
    const int slot = pressed_;
    pressed_ = -1;
    if (slot >= 0 && event->button() == Qt::LeftButton && slotAt(event->pos()) == slot && onClick)
        onClick(slot);
}

ObrazWidget::ObrazWidget(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void ObrazWidget::showObraz(const ObrazekPtr& obrazek) {
    if (obrazek_ == obrazek)
        return;
    obrazek_ = obrazek;
    update();
}

void ObrazWidget::paintEvent(QPaintEvent*) {
    if (!obrazek_)
        return;
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(SZARY));
    if (width() >= SLOT_SIDE)
        painter.drawImage(QPoint(1, 1), obrazek_->duzy);
    else if (devicePixelRatioF() > 1) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(rect(), obrazek_->duzy);
    } else
        painter.drawImage(QPoint(0, 0), obrazek_->maly);
    drawBorder(painter, rect(), Qt::black);
}

} // namespace dorva
