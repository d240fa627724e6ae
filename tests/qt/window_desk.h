// A desk with a real window: finds widgets by their names, and answers dialogs.
#pragma once

#include "desk.h"
#include "qt/okno_glowne.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

// Lets a failed expectation show a text as text.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

namespace dorva::test {

// A pixel of a strip in which each tile has a pattern of its own, made of dots of 2 x 2 pixels.
inline std::uint32_t patternPixel(int shade, int tile, int x, int y) {
    return 0xFF000000U | static_cast<std::uint32_t>(tile << 16 | (y / 2 * 16 + x / 2) << 8 | shade);
}

inline Bitmapa patternStrip(int shade) {
    Bitmapa strip{PASEK_WIDTH, OBRAZ_SIDE, {}};
    for (int y = 0; y < OBRAZ_SIDE; ++y)
        for (int x = 0; x < PASEK_WIDTH; ++x)
            strip.piksele.push_back(patternPixel(shade, x / OBRAZ_SIDE, x % OBRAZ_SIDE, y));
    return strip;
}

class WindowDesk : public Desk {
protected:
    void SetUp() override {
        Desk::SetUp();
        okno = std::make_unique<OknoGlowne>(e);
        e.haki.loadPicture = [this](const fs::path& path, int, int) -> std::optional<Bitmapa> {
            const auto name = path.filename().string();
            return patternStrip(shadeOf(name[3] - '0'));
        };
    }

    void TearDown() override {
        okno.reset();
        Desk::TearDown();
    }

    void open() {
        start();
        okno->showRecord();
        okno->show();
        okno->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(okno.get()));
    }

    template <typename Widget = QWidget> Widget* find(const QString& name) const {
        auto* widget = okno->findChild<Widget*>(name);
        if (!widget)
            ADD_FAILURE() << "no widget " << name.toStdString();
        return widget;
    }

    void click(const QString& name) { QTest::mouseClick(find(name), Qt::LeftButton); }

    // Types text as a keyboard of any language would.
    static void type(QWidget* widget, const QString& text) {
        for (QChar c : text) {
            QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
            QApplication::sendEvent(widget, &event);
        }
    }

    // Runs `answer` once a modal dialog is open.
    template <typename Dialog, typename Answer> void whenAsked(Answer answer) {
        QTimer::singleShot(0, [this, answer] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog)
                answer(dialog);
            else
                whenAsked<Dialog>(answer);
        });
    }

    // Presses the button with this caption in the next message box, and keeps the box's text in `said`.
    void whenAskedPress(const QString& caption) {
        whenAsked<QMessageBox>([this, caption](QMessageBox* box) {
            said.append(box->windowTitle() + "|" + box->text());
            for (QAbstractButton* button : box->buttons())
                if (button->text().remove('&') == caption)
                    return button->click();
            ADD_FAILURE() << "no button " << caption.toStdString();
            box->reject();
        });
    }

    [[nodiscard]] Znak cellOf(int cell) const { return e.okno.imgPG[cell].znak; }

    [[nodiscard]] static QPoint centreOf(int cell) {
        return {cell % PLANSZA_COLUMNS * 16 + 8, cell / PLANSZA_COLUMNS * 16 + 8};
    }

    [[nodiscard]] int shadeOf(int swiat) const { return shade + 80 * swiat; }

    int shade = 20; // of the strips, in the first world
    std::unique_ptr<OknoGlowne> okno;
    QStringList said;
};

} // namespace dorva::test
