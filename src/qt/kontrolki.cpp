#include "qt/kontrolki.h"

#include <QFocusEvent>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <utility>

namespace dorva {
namespace {

constexpr QColor WYBRANY_KOLOR(0x8C, 0xB4, 0xE4); // of a button that is selected

// A line one pixel wide along the inner side of a rectangle: filling is what the painter does fastest.
void drawBorder(QPainter& painter, const QRect& r, const QColor& colour) {
    painter.fillRect(r.left(), r.top(), r.width(), 1, colour);
    painter.fillRect(r.left(), r.bottom(), r.width(), 1, colour);
    painter.fillRect(r.left(), r.top(), 1, r.height(), colour);
    painter.fillRect(r.right(), r.top(), 1, r.height(), colour);
}

bool isWindowChange(const QFocusEvent* event) {
    return event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
}

} // namespace

void Ramka::paintEvent(QPaintEvent*) {
    constexpr int INDENT = 8, GAP = 2;
    QPainter painter(this);
    QFont captionFont = font();
    const QString caption = title().trimmed();
    const int space = width() - 2 * (INDENT + GAP);
    const int wanted = QFontMetrics(captionFont).horizontalAdvance(caption);
    if (wanted > space)
        captionFont.setStretch(100 * space / wanted);
    painter.setFont(captionFont);

    const QFontMetrics metrics(captionFont);
    const int top = caption.isEmpty() ? 0 : metrics.height() / 2;
    const QRect line = rect().adjusted(0, top, 0, 0);
    drawBorder(painter, line.adjusted(1, 1, 0, 0), palette().color(QPalette::Light));
    drawBorder(painter, line.adjusted(0, 0, -1, -1), palette().color(QPalette::Mid));
    if (caption.isEmpty())
        return;
    const QRect box(INDENT, 0, std::min(wanted, space) + 2 * GAP, metrics.height());
    painter.fillRect(box, palette().window());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(box, Qt::AlignCenter, caption);
}

void Przycisk::paintEvent(QPaintEvent*) {
    QStyleOptionButton option;
    initStyleOption(&option);
    const QString caption = std::exchange(option.text, QString());
    QPainter painter(this);
    if (isChecked()) {
        option.palette.setColor(QPalette::Button, WYBRANY_KOLOR);
        option.palette.setColor(QPalette::ButtonText, Qt::black);
        QFont bold = font();
        bold.setBold(true);
        painter.setFont(bold);
    }
    style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
    style()->drawItemText(&painter, rect().adjusted(2, 0, -2, 0), Qt::AlignCenter | Qt::TextWordWrap, option.palette,
                          isEnabled(), caption, QPalette::ButtonText);
}

void Etykieta::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
}

void Etykieta::mouseReleaseEvent(QMouseEvent* event) {
    const bool clicked = pressed_ && event->button() == Qt::LeftButton && rect().contains(event->pos());
    pressed_ = false;
    if (clicked && onClick)
        onClick();
}

void EtykietaObramowana::paintEvent(QPaintEvent* event) {
    Etykieta::paintEvent(event);
    QPainter painter(this);
    drawBorder(painter, rect(), Qt::black);
}

void ProbkaKoloru::paintEvent(QPaintEvent* event) {
    constexpr QColor OUTLINE(0, 0, 0, 140);
    const QPoint AROUND[]{{-1, 0}, {1, 0}, {0, -1}, {0, 1}};
    QPainter painter(this);
    painter.setPen(OUTLINE);
    for (QPoint offset : AROUND)
        painter.drawText(contentsRect().translated(offset), Qt::AlignCenter, text());
    painter.end();
    EtykietaObramowana::paintEvent(event);
}

void Suwak::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Left)
        triggerAction(SliderSingleStepSub);
    else if (event->key() == Qt::Key_Right)
        triggerAction(SliderSingleStepAdd);
    else
        QScrollBar::keyPressEvent(event);
}

void PoleEdycji::showText(const QString& wanted, unsigned requests) {
    if (wanted != text()) {
        const int cursor = cursorPosition();
        setText(wanted);
        setCursorPosition(cursor);
    }
    if (std::exchange(requests_, requests) != requests)
        selectAll();
}

void PoleEdycji::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (isWindowChange(event))
        return;
    enteredByMouse_ = event->reason() == Qt::MouseFocusReason;
    if (onEnter)
        onEnter();
}

void PoleEdycji::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (!isWindowChange(event) && onLeave)
        onLeave();
}

// The press that enters the box would put the cursor in its place and so undo the selection.
void PoleEdycji::mousePressEvent(QMouseEvent* event) {
    if (!enteredByMouse_)
        QLineEdit::mousePressEvent(event);
}

void PoleEdycji::mouseMoveEvent(QMouseEvent* event) {
    if (!enteredByMouse_)
        QLineEdit::mouseMoveEvent(event);
}

void PoleEdycji::mouseReleaseEvent(QMouseEvent* event) {
    if (!enteredByMouse_)
        QLineEdit::mouseReleaseEvent(event);
    enteredByMouse_ = false;
}

} // namespace dorva
