// The small widgets of the window that Qt does not have just so.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include <functional>

namespace dorva {

// A frame with a thin line and its caption in it; the caption is narrowed where it would not fit.
class Ramka : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

protected:
    void paintEvent(QPaintEvent*) override;
};

// A button that wraps a long caption, and that shows plainly when it is the selected one of its group.
class Przycisk : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent*) override;
};

// A label that can be clicked: pressed and released within itself.
class Etykieta : public QLabel {
public:
    using QLabel::QLabel;
    std::function<void()> onClick;

protected:
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

// A swatch: its figure has a dark outline, so that white is read on light colours too.
class ProbkaKoloru : public EtykietaObramowana {
public:
    using EtykietaObramowana::EtykietaObramowana;

protected:
    void paintEvent(QPaintEvent*) override;
};

// A horizontal scroll bar whose Left key goes left: a bar of its own does the opposite.
class Suwak : public QScrollBar {
public:
    explicit Suwak(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {}

protected:
    void keyPressEvent(QKeyEvent*) override;
};

// A text box that selects its whole text when it is entered, by key or by mouse, and tells when it is
// entered and left. A change of the active window is neither.
class PoleEdycji : public QLineEdit {
public:
    using QLineEdit::QLineEdit;
    std::function<void()> onEnter, onLeave;

    // Writes only another text than the box shows, so that typing keeps the cursor; selects it all where the number of
    // requests to do so has grown.
    void showText(const QString&, unsigned requests);

protected:
    void focusInEvent(QFocusEvent*) override;
    void focusOutEvent(QFocusEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;

private:
    bool enteredByMouse_ = false;
    unsigned requests_ = 0;
};

} // namespace dorva
