// The window of the overview.
#include "window_desk.h"

#include "przeglad_qt/arkusz.h"
#include "przeglad_qt/okno.h"
#include "przeglad_qt/rysownik.h"
#include "stage/archiwum.h"
#include "system/kopie.h"

#include <QAction>
#include <QDropEvent>
#include <QMimeData>
#include <QStatusBar>

namespace dorva::test {
namespace {

class OverviewWindow : public DialogDesk {
protected:
    void SetUp() override {
        Desk::SetUp();
        QImage strip(PASEK_WIDTH, OBRAZ_SIDE, QImage::Format_RGB32);
        strip.fill(Qt::magenta);
        strip.save(name(base / "OBIEKTY/ORN_EXPORT/FNT21.ORN.ND.TILES.BMP"));
        przeglad = std::make_unique<OknoPrzegladu>(base, "1.0.2");
        przeglad->resize(1100, 700); // for three cards in a row
        przeglad->show();
        przeglad->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(przeglad.get()));
        arkusz = dynamic_cast<Arkusz*>(przeglad->findChild<QListView*>());
    }

    const Gra& gra() { return static_cast<KartyModel*>(arkusz->model())->gra(); }
    // The numbers under which the first stages were read.
    std::string order(int count = 5) {
        std::string numbers;
        for (int i = 0; i < count; ++i)
            numbers += std::to_string(gra().karty[i].numer) + " ";
        return numbers;
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(arkusz, key, modifiers); }
    void run(const QString& caption, const QStringList& replies = {}) {
        for (QAction* action : przeglad->findChildren<QAction*>())
            if (action->text().remove('&').startsWith(caption))
                return answering(replies, [=] { action->trigger(); });
        ADD_FAILURE() << "no action " << caption.toStdString();
    }
    // Drops the selected card at `part` of another one's width.
    void dropCard(int from, int onto, double part) {
        arkusz->select(from);
        const QRect card = arkusz->visualRect(arkusz->model()->index(onto, 0));
        const std::unique_ptr<QMimeData> data(arkusz->model()->mimeData({arkusz->currentIndex()}));
        QDropEvent event(QPointF(card.left() + part * card.width(), card.center().y()), Qt::MoveAction, data.get(),
                         Qt::LeftButton, {});
        struct Otwarty : Arkusz { // Qt delivers a drop only after a drag of its own
            using Arkusz::dropEvent;
        };
        (arkusz->*&Otwarty::dropEvent)(&event);
    }
    void dropFile(const fs::path& path) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(name(path))});
        QDragEnterEvent enter(QPoint(400, 400), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(arkusz->viewport(), &enter);
        QDropEvent event(QPointF(400, 400), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(arkusz->viewport(), &event);
    }

    std::unique_ptr<OknoPrzegladu> przeglad;
    Arkusz* arkusz = nullptr;
};

TEST_F(OverviewWindow, CardsAreArrangedByMouseAndKeysAndTakenBack) {
    EXPECT_EQ(przeglad->windowTitle(), "Przegląd etapów [wersja 1.0.2][*]");
    dropCard(0, 2, 0.5);
    EXPECT_EQ(order(), "3 2 1 4 5 ");
    dropCard(0, 2, 0.95);
    EXPECT_EQ(order(), "2 1 3 4 5 ");
    EXPECT_EQ(arkusz->place(), 2) << "the card stays selected";
    dropCard(4, 1, 0.05);
    EXPECT_EQ(order(), "2 5 1 3 4 ");
    for (const auto& [onto, part] : {std::pair{1, 0.5}, {0, 0.95}, {2, 0.05}})
        dropCard(1, onto, part);
    EXPECT_EQ(order(), "2 5 1 3 4 ") << "that is its own place";

    arkusz->select(0);
    press(Qt::Key_Left, Qt::ControlModifier);
    press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(order(), "5 2 1 3 4 ");
    press(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(arkusz->place(), 4);
    press(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(order(), "5 2 1 3 4 ");
    EXPECT_TRUE(przeglad->isWindowModified());
    for (int i = 0; i < 6; ++i)
        run("Cofnij");
    EXPECT_EQ(order(), "1 2 3 4 5 ");
    EXPECT_FALSE(przeglad->isWindowModified());
}

TEST_F(OverviewWindow, TheNextWarningIsAKeyAway) {
    fs::remove(etap(9));
    run("Odśwież");
    arkusz->select(7);
    press(Qt::Key_F8);
    EXPECT_EQ(arkusz->place(), 7) << "the sample stages have no Dorva, and its warning wasn't shown yet";
    press(Qt::Key_F8);
    EXPECT_EQ(przeglad->statusBar()->currentMessage(), "Etap 9: brak pliku DETAP.9");
    EXPECT_EQ(arkusz->currentIndex().data(Qt::ToolTipRole).toString(), "brak pliku DETAP.9");
    arkusz->select(31);
    EXPECT_EQ(przeglad->statusBar()->currentMessage(), "") << "it was another card's";
    press(Qt::Key_F8);
    press(Qt::Key_F8);
    EXPECT_EQ(arkusz->place(), 0);
    EXPECT_FALSE(fs::exists(etap(9)));
}

TEST_F(OverviewWindow, AnEarlierVersionComesBackAndTheEditorLoadsIt) {
    for (int i : {0, 1})
        ASSERT_TRUE(keepCopy(SYSTEM_CALLS, etap(2), sampleEtap(20 + i), Time(std::chrono::minutes(29000000 + i))));
    dropCard(0, 1, 0.5);
    arkusz->select(0);
    answering({"1"}, [&] { press(Qt::Key_Return); });
    EXPECT_EQ(gra().karty[0].image, sampleEtap(20)) << "those of the number under which the card was read";
    arkusz->setStyleSheet("QListView { activate-on-singleclick: 1 }"); // as some desktops have it
    const QPoint third = arkusz->visualRect(arkusz->model()->index(2, 0)).center();
    answering({}, [&] { QTest::mouseClick(arkusz->viewport(), Qt::LeftButton, {}, third); });
    answering({"OK"}, [&] { QTest::mouseDClick(arkusz->viewport(), Qt::LeftButton, {}, third); });

    fs::remove(etap(3));
    run("Odśwież", {"Anuluj"});
    EXPECT_EQ(gra().karty[0].image, sampleEtap(20));
    run("Zapisz archiwum", {"Nie"});
    run("Zapisz archiwum", {"Tak", name(root / "gra"), "OK"});
    EXPECT_FALSE(przeglad->isWindowModified());
    start();
    Desk::run(cmdLoadArch_Click, "gra.dpa");
    EXPECT_EQ(readFile(etap(1)), sampleEtap(20));
    EXPECT_EQ(readFile(etap(2)), sampleEtap(1));
    EXPECT_EQ(readFile(etap(3)), sampleEtap(3)) << "read when the window opened";
    run("Zapisz archiwum", {name(root / "gra"), "Anuluj"}); // what it says once isn't said again

    answering({}, [&] { przeglad->open(root / "gra.dpa"); });
    run("Cofnij"); // nothing: that was of another game
    dropCard(0, 1, 0.5);
    run("Odśwież", {"Zapisz archiwum...", name(root / "gra.dpa"), "OK", "OK"});
    EXPECT_EQ(gra().karty[1].image, sampleEtap(20)) << "what was saved right before is read";
}

TEST_F(OverviewWindow, AWrongArchiveIsTakenBack) {
    start();
    writeFile(root / "obca.dpa", sampleArchiwum());
    for (int i = 0; i < 2; ++i) // the second one keeps what the first one loaded
        Desk::run(cmdLoadArch_Click, "obca.dpa");
    run("Odśwież");
    EXPECT_EQ(gra().karty[0].image, sampleEtap(32));
    run("Otwórz wcześniejszą grę", {"1"});
    EXPECT_EQ(gra().karty[0].image, sampleEtap(1));
    run("Otwórz etapy edytora");
    run("Otwórz...", {name(root / "obca.dpa")});
    EXPECT_EQ(gra().karty[0].image, sampleEtap(32));
}

TEST_F(OverviewWindow, AFileIsDroppedAndTheWorkingSetIsNeverWrittenTo) {
    writeFile(root / "obca.dpa", sampleArchiwum());
    writeFile(root / "zla.dpa", Bajty(5));
    answering({}, [&] { dropFile(root / "obca.dpa"); });
    EXPECT_EQ(gra().karty[0].image, sampleEtap(32));
    answering({"OK"}, [&] { dropFile(root / "zla.dpa"); });
    EXPECT_EQ(gra().karty[0].image, sampleEtap(32));

    for (const fs::path& path : {etap(1), base / "PLIKI/nowy.dpa", root / "brak folderu/gra.dpa"})
        run("Zapisz archiwum", {name(path), "OK"}); // OK to why it isn't written
    run("Zapisz obraz", {name(etap(1)), "OK"});
    EXPECT_EQ(readFile(etap(1)), sampleEtap(1));
    EXPECT_FALSE(fs::exists(base / "PLIKI/nowy.dpa"));
    run("Zapisz obraz", {name(root / "etapy")});
    const QImage sheet(name(root / "etapy.png"));
    EXPECT_EQ(sheet.pixelColor(KARTA_WIDTH / 2, OBRAZ_KARTY_HEIGHT), Qt::magenta) << "a tile of the first board";
}

TEST_F(OverviewWindow, ClosingAsksAboutWhatIsNotSaved) {
    dropCard(0, 1, 0.5);
    run("Zakończ", {"Anuluj"});
    EXPECT_TRUE(przeglad->isVisible());
    run("Zakończ", {"Zapisz archiwum...", "Nie"});
    EXPECT_TRUE(przeglad->isVisible());
    run("Zakończ", {"Zapisz archiwum...", "Tak", name(root / "gra.dpa"), "OK"});
    EXPECT_FALSE(przeglad->isVisible());
    przeglad->show();
    dropCard(0, 1, 0.5);
    run("Zakończ", {"Nie zapisuj"});
    EXPECT_FALSE(przeglad->isVisible());
}

} // namespace
} // namespace dorva::test
