// Small widgets that differ from Qt's own: frame, buttons, check box, labels, goal bar.
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

// A button that wraps a long caption and clearly shows that it is the selected one of its group. The arrow keys start
// from the selected button, even if a click has left the focus on another one.
class Przycisk : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
};

// A check box that can also be seen in a dark palette.
class Znacznik : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

protected:
    void initStyleOption(QStyleOptionButton*) const override;
};

// A label that can be clicked, that is, pressed and released within itself.
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

// A figure of the panel. A red one is bold, on the lightest colour of the palette.
class EtykietaFigury : public EtykietaObramowana {
public:
    using EtykietaObramowana::EtykietaObramowana;
    void showFigura(const QString& text, bool czerwona);

private:
    bool czerwona_ = false;
};

// A swatch in a thin black border. Its figure has a dark outline, so that white can be read on light colours too. The
// one being edited has a light red figure and a frame.
class ProbkaKoloru : public Etykieta {
public:
    using Etykieta::Etykieta;
    void showKolor(int value, const QColor& kolor, bool wybrany);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    bool wybrana_ = false;
};

// A horizontal scroll bar that is too short for a thumb: two arrows side by side. With keys and wheel, up means more. A
// pressed arrow keeps counting while the pointer is on it.
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
