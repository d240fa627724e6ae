// The window and its own widgets, used by mouse, keys and wheel.
#include "window_desk.h"

#include "qt/ekran.h"

#include <QCheckBox>
#include <QClipboard>
#include <QDialog>
#include <QInputMethodEvent>
#include <QLabel>
#include <QScrollBar>
#include <QWheelEvent>

namespace dorva::test {
namespace {

class MainWindow : public WindowDesk {
protected:
    QRgb colour(const QString& name, QPalette::ColorRole role) { return find(name)->palette().color(role).rgb(); }
};

TEST_F(MainWindow, TextsAreTypedSelectedAndBroughtToTheirForm) {
    open();
    auto *nazwa = find<QLineEdit>("txtNazwa"), *autor = find<QLineEdit>("txtAutor");
    auto* linia = find<QLineEdit>("txtAutorGry(0)");
    EXPECT_FALSE(linia->hasSelectedText()) << "nobody has entered it yet";
    click("txtNazwa");
    EXPECT_EQ(nazwa->selectedText().size(), 32);
    QTest::keyClicks(nazwa, "ala");
    QTest::keyClick(nazwa, Qt::Key_Tab);
    EXPECT_EQ(nazwa->text(), QString(15, ' ') + "ALA" + QString(14, ' '));
    autor->insert(QString::fromUtf8("żółć日"));
    EXPECT_EQ(autor->text(), QString::fromUtf8("żółć?"));
    click("txtAutorGry(0)");
    EXPECT_EQ(autor->text(), QString::fromUtf8("ŻÓŁĆ?") + QString(59, ' '));
    autor->setCursorPosition(2);
    QTest::keyClick(autor, Qt::Key_Delete);
    autor->insert(QString::fromUtf8("日"));
    EXPECT_EQ(autor->text().left(4), QString::fromUtf8("ŻÓ?Ć"));
    EXPECT_EQ(autor->cursorPosition(), 3);

    QTest::keyClick(linia, Qt::Key_Delete);
    EXPECT_EQ(linia->selectedText(), QString(20, ' '));
    QTest::keyClicks(linia, QString(30, 'x'));
    QTest::mousePress(find("imgPG"), Qt::LeftButton, {}, centreOf(200)); // painting does not leave a box
    EXPECT_EQ(linia->text(), QString(20, 'x'));
    okno->close();
    EXPECT_EQ(readFile(base / "PLIKI/DP1.DTA")[0], 'X') << "closing leaves the box";
}

TEST_F(MainWindow, FiguresAndBoxesAnswerClicks) {
    Bajty image = sampleEtap(1);
    image[uklad::OSTATNI] = 2;
    image[uklad::PLANSZA + 100] = image[uklad::PLANSZA + 101] = 12;
    image[uklad::CEL_MASEK] = 99;
    writeFile(etap(1), image);
    open();
    auto* ostatni = find<QCheckBox>("chkOstatni");
    EXPECT_EQ(ostatni->checkState(), Qt::PartiallyChecked);
    ostatni->click();
    EXPECT_EQ(ostatni->checkState(), Qt::Unchecked);
    ostatni->click();
    EXPECT_EQ(e.okno.chkOstatni, 1);
    click("optEtapNR(31)");
    EXPECT_FALSE(ostatni->isEnabled());
    click("optEtapNR(0)");

    EXPECT_EQ(colour("lblInfo(3)", QPalette::WindowText), qRgb(255, 0, 0));
    EXPECT_EQ(colour("lblInfo(3)", QPalette::Window), qRgb(255, 255, 255));
    click("lblInfo(4)");
    QTest::mousePress(find("lblInfo(3)"), Qt::LeftButton);
    QTest::mouseRelease(find("lblInfo(3)"), Qt::LeftButton, {}, {9, -9}); // beside it
    QTest::mouseClick(find("lblInfo(3)"), Qt::RightButton);
    EXPECT_EQ(e.okno.hscMonet, 99);
    click("lblInfo(3)");
    EXPECT_EQ(QString::number(e.okno.hscMonet), find<QLabel>("lblInfo(2)")->text());
    EXPECT_NE(colour("lblInfo(3)", QPalette::WindowText), qRgb(255, 0, 0));
}

TEST_F(MainWindow, ThePaletteWritesIntoTheSlotThatWasPicked) {
    open();
    click("lblKolor(4)");
    auto* dialog = find<QDialog>("dlgPaleta");
    EXPECT_EQ(colour("lblKolor(4)", QPalette::WindowText), qRgb(255, 192, 192));
    click("picPaleta(90)");
    EXPECT_EQ(e.okno.lblKolor[4].value, 180);
    EXPECT_EQ(find<QLabel>("lblWybrany")->text(), "180, $B4");
    for (const char* name : {"lblKolor(4)", "picPaleta(90)", "picWybrany"})
        EXPECT_EQ(find(name)->grab().toImage().pixel(4, 4), qRgb(0x16, 0x92, 0x12)) << name;

    click("lblKolor(11)");
    EXPECT_EQ(colour("lblKolor(4)", QPalette::WindowText), qRgb(255, 255, 255));
    click("cmzZamknij");
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(colour("lblKolor(11)", QPalette::WindowText), qRgb(255, 255, 255));

    const QImage swatch = find("lblKolor(5)")->grab().toImage().convertToFormat(QImage::Format_Indexed8);
    EXPECT_TRUE(swatch.colorTable().contains(qRgb(255, 255, 255))) << "its figure is white";

    find<QCheckBox>("chkZachowajKolory")->click();
    click("cmdResetKolory", {"OK"});
    click("lblKolor(5)", {"OK"});
    find<QCheckBox>("chkZachowajKolory")->click();
    click("lblKolor(0)");
    okno->close();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(readFile(etap(1))[uklad::KOLORY + 4], 180);
}

TEST_F(MainWindow, BoxesAreSeenInADarkPaletteToo) {
    QPalette dark(QColor(49, 54, 59), QColor(49, 54, 59));
    dark.setColor(QPalette::Base, QColor(35, 38, 41));
    okno->setPalette(dark);
    open();
    const QImage shot = okno->grab().toImage();
    for (const char* name : {"chkOstatni", "txtNazwa"}) {
        const QPoint place = find(name)->mapTo(okno.get(), QPoint(6, 0));
        int lightest = 0;
        for (int y = 0; y < find(name)->height(); ++y)
            lightest = std::max(lightest, shot.pixelColor(place + QPoint(0, y)).lightness());
        EXPECT_GT(lightest, 94) << name << ": its outline has no contrast to the window's 54";
    }
}

TEST_F(MainWindow, ItOpensInTheMiddleOfTheScreenAndNeverAboveOrLeftOfIt) {
    const QRect area = okno->screen()->availableGeometry();
    showCentred(*okno);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(okno.get()));
    QTest::qWait(50);
    const QRect frame = okno->frameGeometry();
    EXPECT_EQ(frame.left(), std::max(area.left(), area.center().x() - frame.width() / 2));
    EXPECT_NEAR(frame.center().y(), area.center().y(), 1);
}

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
    for (int way : {1, -1}) {
        QWheelEvent event(QPointF(9, 9), bar->mapToGlobal(QPointF(9, 9)), {}, QPoint(0, 120 * way), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        EXPECT_EQ(after([&] { QApplication::sendEvent(bar, &event); }), way);
    }
    for (int x = 1; x < bar->width() - 1; ++x) { // no place in between for a thumb
        const int way = after([&] { QTest::mouseClick(bar, Qt::LeftButton, {}, {x, 8}); });
        EXPECT_EQ(way, x <= bar->width() / 2 ? -1 : 1) << x;
    }
    bar->setFocus();
    const QImage focused = bar->grab().toImage();
    nazwa->setFocus();
    EXPECT_NE(bar->grab().toImage(), focused);
}

TEST_F(Widgets, AnArrowOfTheGoalBarCountsWhileThePointerIsOnIt) {
    auto* bar = find<QScrollBar>("hscMonet");
    const auto counts = [&] { return QTest::qWaitFor([&, was = bar->value()] { return bar->value() > was; }, 600); };
    QTest::mousePress(bar, Qt::LeftButton, {}, {25, 8});
    EXPECT_EQ(bar->value(), 2);
    QTest::mouseMove(bar, {25, -30});
    EXPECT_FALSE(counts());
    QTest::mouseMove(bar, {25, 9});
    EXPECT_TRUE(counts());
    QTest::mouseRelease(bar, Qt::LeftButton, {}, {25, 9});
    QTest::mouseMove(bar, {25, 8});
    EXPECT_FALSE(counts());
}

TEST_F(Widgets, ControlCodesAreNotPastedAndThoseOfAFileSurviveEveryEdit) {
    const std::string& znaki = e.okno.pola[TXT_NAZWA].tekst.znaki;
    const std::string held{'A', '\0', '\n', '\x1F', '\x7F', '\x81', '\xAD', 'B'};
    e.okno.pola[TXT_NAZWA].tekst.znaki = held;
    okno->showRecord();
    EXPECT_EQ(nazwa->text().left(4), QString::fromUtf8("A␀␊␟"));
    nazwa->setFocus();
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
    EXPECT_EQ(readFile(etap(1))[uklad::NAZWA + 15], 0) << "the emptied box is stored";
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

TEST_F(Widgets, ARefusedOptionIsNotShownAndArrowKeysGoFromTheSelectedOne) {
    fs::remove(etap(1));
    fs::create_directory(etap(1));
    click("optEtapNR(4)", {"OK"});
    EXPECT_TRUE(find<QPushButton>("optEtapNR(0)")->isChecked());
    fs::remove(etap(1));
    okno->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }));
    QTest::keyClick(okno->focusWidget(), Qt::Key_Down);
    EXPECT_EQ(e.NumerEtapu, 2);
}

} // namespace
} // namespace dorva::test
