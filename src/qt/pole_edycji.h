// The text box.
#pragma once

#include <QElapsedTimer>
#include <QLineEdit>

#include <functional>
#include <optional>

namespace dorva {

// A text box that selects its whole text when it is entered, by key or by mouse, and reports when it is entered,
// changed by the user, and left. It isn't left when the user goes to another program.
class PoleEdycji : public QLineEdit {
public:
    explicit PoleEdycji(QWidget* parent);
    std::function<void()> onEnter, onLeave;
    std::function<void(const QString& typed)> onEdit;

    // Sets the text only if it differs, so that typing keeps the cursor. Selects all of it if the number of requests to
    // do so has changed.
    void showText(const QString&, unsigned requests);

    // The focus goes to another window of the program.
    void leave();

    // Accepts what an input method still holds.
    void endComposition();

protected:
    void initStyleOption(QStyleOptionFrame*) const override;
    void focusInEvent(QFocusEvent*) override;
    void focusOutEvent(QFocusEvent*) override;
    void inputMethodEvent(QInputMethodEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;

private:
    void enter();
    void reportEdit();

    bool entered_ = false;
    QElapsedTimer sinceMouseEntry_;
    bool pressEnters_ = false;         // by the press that is going on
    bool composing_ = false;           // an input method holds what was typed
    std::optional<unsigned> requests_; // nothing before the first text is shown
};

} // namespace dorva
