#include "qt/ekran.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace dorva {
namespace {

void centre(QWindow& window) {
    const QRect area = window.screen()->availableGeometry();
    QRect frame = window.frameGeometry();
    frame.moveCenter(area.center());
    window.setFramePosition({std::max(frame.left(), area.left()), std::max(frame.top(), area.top())});
}

// Centres a window again when it is first exposed: by then the desktop has given it its frame.
class Centrowanie : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* window, QEvent* event) override {
        if (event->type() == QEvent::Expose) {
            window->removeEventFilter(this);
            centre(static_cast<QWindow&>(*window));
        }
        return false;
    }
};

} // namespace

void showCentred(QWidget& window) {
    window.winId(); // makes the QWindow
    QWindow& handle = *window.windowHandle();
    centre(handle); // roughly, so that it hardly moves once its frame is known
    handle.installEventFilter(new Centrowanie(&handle));
    window.show();
}

} // namespace dorva
