#include "qt/widgety.h"

#include "qt/czcionki.h"
#include "qt/konwersje.h"
#include "qt/napisy.h"
#include "qt/obramowanie.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <utility>

namespace dorva {
namespace {

constexpr QColor WYBRANY_KOLOR(0x8C, 0xB4, 0xE4); // of a button that is selected

// The lightest colour of a palette: in a light one that of text fields, in a dark one that of the text.
QColor lightest(const QPalette& palette) {
    const QColor field = palette.color(QPalette::Base), text = palette.color(QPalette::Text);
    return field.lightness() > text.lightness() ? field : text;
}

} // namespace

void Ramka::paintEvent(QPaintEvent*) {
    constexpr int INDENT = 8, GAP = 2;
    QPainter painter(this);
    const QString caption = title().trimmed();
    const QFontMetrics metrics = fontMetrics();
    const int top = caption.isEmpty() ? 0 : metrics.height() / 2;
    const QRect line = rect().adjusted(0, top, 0, 0);
    drawBorder(painter, line.adjusted(1, 1, 0, 0), palette().color(QPalette::Light));
    drawBorder(painter, line.adjusted(0, 0, -1, -1), palette().color(QPalette::Mid));
    if (caption.isEmpty())
        return;
    const int space = width() - 2 * (INDENT + GAP);
    const QRect box(INDENT + GAP, 0, std::min(metrics.horizontalAdvance(caption), space), metrics.height());
    painter.fillRect(box.adjusted(-GAP, 0, GAP, 0), palette().window());
    painter.setPen(palette().color(QPalette::WindowText));
    drawCaption(painter, box, Qt::AlignCenter, caption);
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
    painter.setPen(option.palette.color(QPalette::ButtonText));
    drawCaption(painter, rect().adjusted(2, 0, -2, 0), Qt::AlignCenter | Qt::TextWordWrap, caption);
}

void Etykieta::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    drawCaption(painter, contentsRect(), int(alignment()) | (wordWrap() ? Qt::TextWordWrap : 0), text());
}

void Przycisk::keyPressEvent(QKeyEvent* event) {
    const bool isArrow = event->key() >= Qt::Key_Left && event->key() <= Qt::Key_Down;
    QAbstractButton* selected = group() ? group()->checkedButton() : nullptr;
    if (!isArrow || !selected || selected == this)
        return QPushButton::keyPressEvent(event);
    selected->setFocus();
    QCoreApplication::sendEvent(selected, event);
}

void Znacznik::initStyleOption(QStyleOptionButton* option) const {
    QCheckBox::initStyleOption(option);
    lightenOutline(option->palette);
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

void EtykietaFigury::showFigura(const QString& text, bool czerwona) {
    setText(text);
    if (std::exchange(czerwona_, czerwona) == czerwona)
        return;
    QPalette colours; // the system's own, unless the figure is red
    if (czerwona) {
        colours.setColor(QPalette::WindowText, QColor(255, 0, 0));
        colours.setColor(QPalette::Window, lightest(palette()));
    }
    setPalette(colours);
    setFont(czerwona ? fontFigury() : fontOkna());
}

void ProbkaKoloru::showKolor(int value, const QColor& kolor, bool wybrany) {
    constexpr QColor WHITE(255, 255, 255), PALE(255, 192, 192);
    setText(QString::number(value));
    setColour(this, QPalette::Window, kolor);
    setColour(this, QPalette::WindowText, wybrany ? PALE : WHITE);
    if (std::exchange(wybrana_, wybrany) != wybrany)
        update();
}

void ProbkaKoloru::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    drawOutlined(painter, contentsRect(), int(alignment()), text());
    drawBorder(painter, rect(), Qt::black);
    if (!wybrana_)
        return;
    drawBorder(painter, rect().adjusted(1, 1, -1, -1), Qt::white);
    drawBorder(painter, rect().adjusted(2, 2, -2, -2), Qt::black);
}

Suwak::Suwak(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {
    setInvertedControls(false);
}

// The two arrows overlap by the line between them.
QRect Suwak::arrowRect(SliderAction action) const {
    const int half = width() / 2;
    return action == SliderSingleStepSub ? QRect(0, 0, half + 1, height()) : QRect(half, 0, width() - half, height());
}

void Suwak::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (SliderAction action : {SliderSingleStepSub, SliderSingleStepAdd}) {
        const bool less = action == SliderSingleStepSub;
        QStyleOptionButton option;
        option.initFrom(this);
        option.rect = arrowRect(action);
        option.state &= ~(QStyle::State_MouseOver | QStyle::State_HasFocus);
        option.state |= repeatAction() == action ? QStyle::State_Sunken : QStyle::State_Raised;
        style()->drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter, this);
        if (value() == (less ? minimum() : maximum()))
            option.state &= ~QStyle::State_Enabled;
        option.rect = option.rect.marginsRemoved({3, 3, 3, 3});
        style()->drawPrimitive(less ? QStyle::PE_IndicatorArrowLeft : QStyle::PE_IndicatorArrowRight, &option, &painter,
                               this);
    }
    if (hasFocus())
        drawBorder(painter, rect(), palette().color(QPalette::Highlight));
}

void Suwak::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    pressed_ = arrowRect(SliderSingleStepSub).contains(event->pos()) ? SliderSingleStepSub : SliderSingleStepAdd;
    triggerAction(pressed_);
    count(pressed_);
}

void Suwak::mouseMoveEvent(QMouseEvent* event) {
    const bool isOn = pressed_ != SliderNoAction && arrowRect(pressed_).contains(event->pos());
    if (const SliderAction wanted = isOn ? pressed_ : SliderNoAction; wanted != repeatAction())
        count(wanted);
}

void Suwak::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    pressed_ = SliderNoAction;
    count(pressed_);
}

void Suwak::count(SliderAction action) {
    setRepeatAction(action);
    update();
}

} // namespace dorva
