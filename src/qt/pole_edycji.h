// The text box.
#pragma once

#include <QElapsedTimer>
#include <QLineEdit>

#include <functional>
#include <optional>

namespace dorva {

// A text box that selects its whole text when it is entered, by key or by mouse, and tells when it is entered, changed
// by the user, and left. Another program's window is no place to leave it for.
class PoleEdycji : public QLineEdit {
public:
    explicit PoleEdycji(QWidget* parent);
    std::function<void()> onEnter, onLeave;
    std::function<void(const QString& typed)> onEdit;

    // Writes only another text than the box shows, so that typing keeps the cursor; selects it all where the number of
    // requests to do so has grown.
    void showText(const QString&, unsigned requests);

    // Where the focus goes to another window of the program.
    void leave();

    // Takes what an input method still holds as typed.
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
    bool pressEnters_ = false;         // the press that is going on
    bool composing_ = false;           // an input method holds what is typed
    std::optional<unsigned> requests_; // none before it has shown a text
};

} // namespace dorva
