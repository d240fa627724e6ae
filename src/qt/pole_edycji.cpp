#include "qt/pole_edycji.h"

#include "qt/obramowanie.h"

#include <QFocusEvent>
#include <QGuiApplication>
#include <QInputMethod>
#include <QMouseEvent>
#include <QStyleOption>

#include <utility>

namespace dorva {
namespace {

bool isWindowChange(const QFocusEvent* event) {
    return event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
}

} // namespace

PoleEdycji::PoleEdycji(QWidget* parent) : QLineEdit(parent) {
    connect(this, &QLineEdit::textEdited, this, &PoleEdycji::reportEdit);
}

void PoleEdycji::showText(const QString& wanted, unsigned requests) {
    if (composing_)
        return;
    if (wanted != text()) {
        // a character of two code units is shown as one
        const auto before = text().left(cursorPosition()).toUcs4().size();
        setText(wanted);
        setCursorPosition(static_cast<int>(before));
    }
    const auto before = std::exchange(requests_, requests);
    if (before && *before != requests)
        selectAll();
}

void PoleEdycji::reportEdit() {
    if (!composing_ && onEdit)
        onEdit(text());
}

void PoleEdycji::enter() {
    entered_ = true;
    if (onEnter)
        onEnter();
}

void PoleEdycji::leave() {
    endComposition();
    if (std::exchange(entered_, false) && onLeave)
        onLeave();
}

void PoleEdycji::endComposition() {
    QGuiApplication::inputMethod()->commit();
    if (std::exchange(composing_, false))
        reportEdit(); // the input method added nothing, so it reported nothing either
}

void PoleEdycji::initStyleOption(QStyleOptionFrame* option) const {
    QLineEdit::initStyleOption(option);
    lightenOutline(option->palette);
}

void PoleEdycji::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (isWindowChange(event) && entered_)
        return;
    enter();
    if (event->reason() == Qt::MouseFocusReason || event->reason() == Qt::ActiveWindowFocusReason)
        sinceMouseEntry_.start(); // last, so that the time for entering isn't counted
}

void PoleEdycji::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    endComposition();
    if (!isWindowChange(event))
        leave();
}

// During a composition the text is incomplete, so a box that it has emptied must not be refilled yet.
void PoleEdycji::inputMethodEvent(QInputMethodEvent* event) {
    const bool ends = std::exchange(composing_, !event->preeditString().isEmpty()) && !composing_;
    QLineEdit::inputMethodEvent(event);
    if (ends)
        reportEdit();
}

// The press that enters the box would set the cursor and so undo the selection. It comes together with the focus, or
// just before or after it if it also activates the window.
void PoleEdycji::mousePressEvent(QMouseEvent* event) {
    constexpr int SAME_PRESS_MS = 100;
    const bool enters = !entered_ || (sinceMouseEntry_.isValid() && sinceMouseEntry_.elapsed() < SAME_PRESS_MS);
    sinceMouseEntry_.invalidate();
    pressEnters_ = enters && event->button() != Qt::RightButton;
    if (!pressEnters_)
        QLineEdit::mousePressEvent(event);
}

void PoleEdycji::mouseMoveEvent(QMouseEvent* event) {
    if (!pressEnters_)
        QLineEdit::mouseMoveEvent(event);
}

void PoleEdycji::mouseReleaseEvent(QMouseEvent* event) {
    if (!std::exchange(pressEnters_, false))
        QLineEdit::mouseReleaseEvent(event);
}

} // namespace dorva
