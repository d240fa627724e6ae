// Desks with real windows: dialogs are answered, widgets found by their names.
#pragma once

#include "desk.h"
#include "qt/okno_glowne.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
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

class DialogDesk : public Desk {
protected:
    // Does something, and answers the dialogs that it opens, no more and no fewer.
    void answering(QStringList replies, const std::function<void()>& what) {
        const QObject whileItRuns;
        const std::function<void()> answerNext = [&] {
            QTimer::singleShot(1, &whileItRuns, [&] {
                auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                if (!dialog)
                    return answerNext();
                look(dialog);
                answerNext(); // before this answer, which may make the dialog open another one
                EXPECT_FALSE(replies.isEmpty()) << dialog->windowTitle().toStdString();
                answer(dialog, replies.isEmpty() ? "" : replies.takeFirst());
            });
        };
        answerNext();
        what();
        QApplication::processEvents();
        EXPECT_TRUE(replies.isEmpty()) << replies.join(' ').toStdString();
    }

    static QString name(const fs::path& path) { return QString::fromStdString(path.string()); }

    std::function<void(QDialog*)> look = [](QDialog*) {}; // before a dialog is answered
    QStringList said;                                     // texts of the message boxes

private:
    // Presses the button of that caption, types that name, or takes the picture of that row. No text cancels.
    void answer(QDialog* dialog, const QString& with) {
        if (with.isEmpty())
            return dialog->reject();
        if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
            said += box->text();
            for (QAbstractButton* button : box->buttons())
                if (button->text().remove('&') == with)
                    return button->click();
        } else if (qobject_cast<QFileDialog*>(dialog)) {
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(with);
            return dialog->accept();
        } else if (auto* list = dialog->findChild<QListWidget*>()) {
            list->setCurrentRow(with.toInt());
            return dialog->accept();
        }
        ADD_FAILURE() << "no " << with.toStdString();
        dialog->reject();
    }
};

class WindowDesk : public DialogDesk {
protected:
    void SetUp() override {
        Desk::SetUp();
        okno = std::make_unique<OknoGlowne>(e);
        e.haki.loadPicture = [this](const fs::path& path, int, int) -> std::optional<Bitmapa> {
            return patternStrip(shadeOf(path.filename().string()[3] - '0'));
        };
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

    void click(const QString& widget, const QStringList& replies = {}) {
        answering(replies, [&] { QTest::mouseClick(find(widget), Qt::LeftButton); });
    }

    [[nodiscard]] Znak cellOf(int cell) const { return e.okno.imgPG[cell].znak; }

    [[nodiscard]] static QPoint centreOf(int cell) {
        return {cell % PLANSZA_COLUMNS * 16 + 8, cell / PLANSZA_COLUMNS * 16 + 8};
    }

    [[nodiscard]] int shadeOf(int swiat) const { return shade + 80 * swiat; }

    int shade = 20; // of the strips, in the first world
    std::unique_ptr<OknoGlowne> okno;
};

} // namespace dorva::test
