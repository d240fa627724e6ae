// The window's own widgets, used by mouse, keys and wheel.
#include "window_desk.h"

#include <QClipboard>
#include <QDialog>
#include <QInputMethodEvent>
#include <QScrollBar>
#include <QWheelEvent>

namespace dorva::test {
namespace {

class Widgets : public WindowDesk {
protected:
    void SetUp() override {
        WindowDesk::SetUp();
        open();
        nazwa = find<QLineEdit>("txtNazwa");
    }
    void compose(const QString& preedit, const QString& commit) const {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QApplication::sendEvent(nazwa, &event);
    }
    QLineEdit* nazwa = nullptr;
};

TEST_F(Widgets, TheGoalBarGoesTheWayThatAKeyAWheelOrAnArrowPoints) {
    auto* bar = find<QScrollBar>("hscMonet");
    const auto after = [&](auto act) {
        bar->setValue(50);
        act();
        return e.okno.hscMonet - 50;
    };
    const std::map<Qt::Key, int> keys{{Qt::Key_Right, 1}, {Qt::Key_Up, 1},    {Qt::Key_PageUp, 1},
                                      {Qt::Key_Left, -1}, {Qt::Key_Down, -1}, {Qt::Key_PageDown, -1}};
    for (auto [key, way] : keys)
        EXPECT_EQ(after([bar, key = key] { QTest::keyClick(bar, key); }), way) << key;
    for (int way : {1, -1})
        EXPECT_EQ(after([&] {
                      QWheelEvent event(QPointF(9, 9), bar->mapToGlobal(QPointF(9, 9)), {}, QPoint(0, 120 * way),
                                        Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
                      QApplication::sendEvent(bar, &event);
                  }),
                  way);
    for (int x = 1; x < bar->width() - 1; ++x) // no place in between where a thumb could be dragged
        EXPECT_EQ(after([&] {
                      QTest::mousePress(bar, Qt::LeftButton, {}, {x, 8});
                      QTest::mouseMove(bar, {x + 1, 8});
                      QTest::mouseRelease(bar, Qt::LeftButton, {}, {x + 1, 8});
                  }),
                  x <= bar->width() / 2 ? -1 : 1)
            << x;
    for (QWidget* focused : {static_cast<QWidget*>(bar), static_cast<QWidget*>(nazwa)}) {
        focused->setFocus();
        const QColor rim = bar->grab().toImage().pixelColor(0, 0);
        EXPECT_EQ(rim == bar->palette().color(QPalette::Highlight), focused == bar);
    }
}

TEST_F(Widgets, AnArrowOfTheGoalBarCountsWhileThePointerIsOnIt) {
    auto* bar = find<QScrollBar>("hscMonet");
    const auto counts = [&](int ms) {
        return QTest::qWaitFor([&, was = bar->value()] { return bar->value() > was; }, ms);
    };
    QTest::mousePress(bar, Qt::LeftButton, {}, {25, 8});
    EXPECT_EQ(bar->value(), 2);
    QTest::mouseMove(bar, {25, -30});
    EXPECT_FALSE(counts(600));
    QTest::mouseMove(bar, {25, 9});
    EXPECT_TRUE(counts(600));
    QTest::mouseRelease(bar, Qt::RightButton, {}, {25, 9});
    EXPECT_TRUE(counts(600));
    QTest::mouseRelease(bar, Qt::LeftButton, {}, {25, 9});
    QTest::mouseMove(bar, {25, 8});
    EXPECT_FALSE(counts(600));
}

TEST_F(Widgets, ARightClickIntoABoxLeavesTheNextClickAlone) {
    QTest::mousePress(nazwa, Qt::RightButton); // its release goes to the menu
    const QString text = nazwa->text();
    QTest::mouseClick(nazwa, Qt::LeftButton);
    QTest::keyClicks(nazwa, "x");
    EXPECT_EQ(nazwa->text(), text);
}

TEST_F(Widgets, ControlCodesAreNotPastedAndThoseOfAFileSurviveEveryEdit) {
    const std::string& znaki = e.okno.pola[TXT_NAZWA].tekst.znaki;
    const std::string held{'A', '\0', '\n', '\x1F', '\x7F', '\x81', '\xAD', 'B'};
    e.okno.pola[TXT_NAZWA].tekst.znaki = held;
    okno->showRecord();
    EXPECT_EQ(nazwa->text().left(4), QString::fromUtf8("A␀␊␟"));
    nazwa->setFocus();
    nazwa->setSelection(1, 3);
    nazwa->del();
    EXPECT_EQ(znaki, held.substr(0, 1) + held.substr(4));
    nazwa->undo();
    EXPECT_EQ(znaki, held);
    nazwa->setSelection(1, 6);
    nazwa->cut();
    EXPECT_EQ(znaki, "AB");
    nazwa->paste();
    EXPECT_EQ(znaki, held);
    nazwa->end(false);
    QApplication::clipboard()->setText(QString::fromUtf8("\n\x01\x7F😀"));
    nazwa->paste();
    EXPECT_EQ(znaki, held + "   ?");
    EXPECT_EQ(nazwa->cursorPosition(), 12); // the last one counts as one character
}

TEST_F(Widgets, ACompositionInAnEmptiedBoxGoesOn) {
    click("txtNazwa");
    compose(QString::fromUtf8("´"), {});
    EXPECT_EQ(nazwa->text(), "");
    compose({}, QString::fromUtf8("ó"));
    EXPECT_EQ(e.okno.pola[TXT_NAZWA].tekst.znaki, "\xF3");
    nazwa->selectAll();
    compose("x", {});
    compose({}, {}); // given up
    EXPECT_EQ(nazwa->selectedText(), QString(32, ' '));
    QTest::keyClicks(nazwa, "ala");
    nazwa->selectAll();
    compose("x", {});
    okno->close(); // ends it
    EXPECT_EQ(e.okno.pola[TXT_NAZWA].tekst.znaki, std::string(32, ' '));
}

TEST_F(Widgets, ThePaletteTakesTheKeyboardFromABoxAnotherProgramDoesNot) {
    click("txtNazwa");
    QTest::keyClicks(nazwa, "ala");
    for (QEvent::Type type : {QEvent::FocusOut, QEvent::FocusIn}) {
        QFocusEvent event(type, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(nazwa, &event);
    }
    Q_EMIT qApp->focusWindowChanged(okno->windowHandle());
    EXPECT_EQ(nazwa->text(), "ala");
    EXPECT_EQ(nazwa->selectedText(), "");
    click("lblKolor(4)");
    auto* dialog = find<QDialog>("dlgPaleta");
    const auto hasKeyboard = [](QWidget* window) {
        return QTest::qWaitFor([=] { return QGuiApplication::focusWindow() == window->windowHandle(); });
    };
    ASSERT_TRUE(hasKeyboard(dialog));
    EXPECT_EQ(nazwa->text(), QString(15, ' ') + "ALA" + QString(14, ' '));

    dialog->showMinimized();
    click("lblKolor(5)");
    EXPECT_FALSE(dialog->isMinimized());
    dialog->close();
    okno->activateWindow();
    ASSERT_TRUE(hasKeyboard(okno.get()));
    EXPECT_EQ(nazwa->selectedText().size(), 32);
}

TEST_F(Widgets, ArrowKeysGoFromTheSelectedOption) {
    const auto down = [this] { QTest::keyClick(okno->focusWidget(), Qt::Key_Down); };
    QTest::mousePress(find("optEtapNR(4)"), Qt::LeftButton); // and dragged off it
    QTest::mouseRelease(find("optEtapNR(4)"), Qt::LeftButton, {}, {-50, 5});
    down();
    EXPECT_EQ(e.NumerEtapu, 2);
    fs::remove(etap(2));
    fs::create_directory(etap(2));
    whenAskedPress("OK");
    down(); // refused
    EXPECT_TRUE(find<QPushButton>("optEtapNR(1)")->isChecked());
    fs::remove(etap(2));
    okno->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }));
    down();
    EXPECT_EQ(e.NumerEtapu, 3);
}

} // namespace
} // namespace dorva::test
