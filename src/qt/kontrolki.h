// The small widgets of the window that Qt does not have just so: frame, buttons, labels, goal bar.
#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include <functional>

namespace dorva {

// A frame with a thin line and its caption in it.
class Ramka : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

protected:
    void paintEvent(QPaintEvent*) override;
};

// A button that wraps a long caption, and that shows plainly when it is the selected one of its group. The arrow keys
// of a group go from the selected one, wherever a press has left the focus.
class Przycisk : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
};

// A check box that is seen in a dark palette, too.
class Znacznik : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

protected:
    void initStyleOption(QStyleOptionButton*) const override;
};

// A label with plain text that can be clicked: pressed and released within itself.
class Etykieta : public QLabel {
public:
    using QLabel::QLabel;
    std::function<void()> onClick;

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;

private:
    bool pressed_ = false;
};

// A label in a thin black border, whatever the colour of its text.
class EtykietaObramowana : public Etykieta {
public:
    using Etykieta::Etykieta;

protected:
    void paintEvent(QPaintEvent*) override;
};

// A figure of the panel. A red one is bold and stands on the lightest ground of the palette.
class EtykietaFigury : public EtykietaObramowana {
public:
    using EtykietaObramowana::EtykietaObramowana;
    void showFigura(const QString& text, bool czerwona);

private:
    bool czerwona_ = false;
};

// A swatch in a thin black border: its figure has a dark outline, so that white is read on light colours too. The one
// being edited has a pale figure and a frame.
class ProbkaKoloru : public Etykieta {
public:
    using Etykieta::Etykieta;
    void showKolor(int value, const QColor& kolor, bool wybrany);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    bool wybrana_ = false;
};

// A horizontal scroll bar too short for a thumb: two arrows side by side. A key or a turn of the wheel goes the way it
// points; up is more. A pressed arrow goes on counting while the pointer is on it.
class Suwak : public QScrollBar {
public:
    explicit Suwak(QWidget* parent);

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void contextMenuEvent(QContextMenuEvent*) override {}

private:
    [[nodiscard]] QRect arrowRect(SliderAction) const;
    void count(SliderAction);

    SliderAction pressed_ = SliderNoAction;
};

} // namespace dorva
