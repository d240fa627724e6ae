#include "window_desk.h"

#include "stage/zbior_etapow.h"
#include "tiles/zestaw.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>

#include <set>

namespace dorva::test {
namespace {

constexpr QRgb IN_BUFOR = qRgb(255, 224, 64), UNDER_POINTER = qRgb(255, 255, 255);

// Sends a pointer event as a desktop would: it may be far from the one before.
void pointer(QWidget* widget, QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held) {
    QMouseEvent event(type, at, widget->mapToGlobal(QPointF(at)), button, held, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

class Painting : public WindowDesk {
protected:
    void SetUp() override {
        WindowDesk::SetUp();
        open();
        board = find("imgPG");
    }
    QImage shot(const QString& name) { return find(name)->grab().toImage(); }
    void press(int cell, Qt::MouseButton button = Qt::LeftButton) {
        pointer(board, QEvent::MouseButtonPress, centreOf(cell), button, button);
    }
    void moveTo(QPoint at, Qt::MouseButtons held) { pointer(board, QEvent::MouseMove, at, Qt::NoButton, held); }
    static QRect rectOf(int slot) {
        const int place = int(std::ranges::find(WYBOR_ORDER, slot) - WYBOR_ORDER.begin());
        return {place % 22 * 32, place / 22 * 32, 34, 34};
    }
    void clickSlot(int slot) { QTest::mouseClick(find("imgZnak"), Qt::LeftButton, {}, rectOf(slot).center()); }
    void moveOver(int slot) {
        pointer(find("imgZnak"), QEvent::MouseMove, rectOf(slot).center(), Qt::NoButton, Qt::NoButton);
    }
    QWidget* board = nullptr;
};

// Positions are in pixels. The board is earth otherwise.
TEST_F(Painting, ADragPaintsTheCellsThatItsStraightWayCuts) {
    const struct {
        std::vector<QPoint> way;
        std::set<std::pair<int, int>> painted; // column, row
    } rows[] = {
        {{{49, 95}, {111, 98}}, {{3, 5}, {4, 5}, {4, 6}, {5, 6}, {6, 6}}},
        {{{63, 80}, {48, 112}}, {{3, 5}, {3, 6}, {3, 7}}},
        {{{56, 88}, {72, 104}}, {{3, 5}, {4, 6}}}, // through a corner
        {{{72, 88}, {56, 104}}, {{4, 5}, {3, 6}}},
        {{{64, 96}, {32, 64}}, {{4, 6}, {3, 5}, {2, 4}}},
        {{{632, 248}, {739, 248}, {739, 8}, {584, 8}},
         {{39, 15}, {39, 0}, {38, 0}, {37, 0}, {36, 0}}}, // out over the edge and in again
    };
    for (auto row : rows)
        for (bool back : {false, true}) {
            ClearEtap(e);
            clickSlot(14);
            pointer(board, QEvent::MouseButtonPress, row.way[0], Qt::LeftButton, Qt::LeftButton);
            for (QPoint at : row.way)
                moveTo(at, Qt::LeftButton);
            std::set<std::pair<int, int>> painted;
            for (int cell = 0; cell < PLANSZA_CELLS; ++cell)
                if (cellOf(cell) == BOMBA)
                    painted.insert({cell % PLANSZA_COLUMNS, cell / PLANSZA_COLUMNS});
            EXPECT_EQ(painted, row.painted) << row.way[0].x() << "," << row.way[0].y() << (back ? " back" : "");
            std::ranges::reverse(row.way);
        }
}

TEST_F(Painting, ButtonsAndTools) {
    clickSlot(13);
    press(85);
    pointer(board, QEvent::MouseButtonDblClick, centreOf(87), Qt::LeftButton, Qt::LeftButton);
    EXPECT_EQ(cellOf(85), KLUCZ);
    EXPECT_EQ(cellOf(87), KLUCZ); // the second press of a double click is a press
    clickSlot(10);
    press(85, Qt::RightButton);
    EXPECT_EQ(e.okno.imgBufor.znak, KLUCZ);
    click("optPPM(1)");
    press(85, Qt::RightButton);
    EXPECT_EQ(cellOf(85), ZIEMIA);
    press(90, Qt::MiddleButton);
    EXPECT_EQ(e.lastCell, 90);
    EXPECT_TRUE(e.ostatniaKopia) << "each operation looks after the copies";
    moveTo(centreOf(92), Qt::LeftButton | Qt::RightButton);
    EXPECT_NE(cellOf(92), KLUCZ);
    EXPECT_EQ(e.okno.obrys, 92);
    for (QPoint beside : {QPoint(-8, 24), {24, -8}, {648, 24}, {24, 328}}) // the board
        moveTo(beside, Qt::NoButton);
    EXPECT_EQ(e.okno.obrys, 92);
    const QRgb corner = shot("imgPG").pixel(centreOf(92) - QPoint(8, 8));
    EXPECT_TRUE(corner == qRgb(255, 255, 255) || corner == qRgb(0, 0, 0)); // its line is there
}

TEST_F(Painting, OnlyWhatChangedIsRepainted) {
    struct Counter : QObject {
        QRegion region;
        explicit Counter(QWidget* widget) { widget->installEventFilter(this); }
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::Paint)
                region += static_cast<QPaintEvent*>(event)->region();
            return false;
        }
        QRegion painted() {
            QTest::qWait(50);
            return std::exchange(region, {});
        }
    } ofBoard(board), ofPicker(find("imgZnak")), ofBufor(find("imgBufor"));
    (void)ofBoard.painted();
    ofBufor.region = {};
    clickSlot(7);
    press(10 * 40 + 10);
    EXPECT_EQ(ofBoard.painted(), QRegion(160, 160, 16, 16));
    EXPECT_FALSE(ofBufor.painted().isEmpty());
    moveOver(56);
    (void)ofPicker.painted();
    e.okno.imgZnak[56].enabled = !e.okno.imgZnak[56].enabled; // while the pointer rests on it
    okno->showRecord();
    EXPECT_EQ(ofPicker.painted(), QRegion(rectOf(56).adjusted(-1, -1, 1, 1)) & find("imgZnak")->rect());
    moveOver(16);
    const QRegion both = ofPicker.painted();
    EXPECT_TRUE(both.contains(rectOf(16)) && both.contains(rectOf(56)));
}

TEST_F(Painting, FramesTellTheSlotUnderThePointerAndTheOneInTheBuffer) {
    QWidget* picker = find("imgZnak");
    const auto frameOf = [&](int slot) { return shot("imgZnak").pixel(rectOf(slot).topLeft()); };
    const QRgb none = frameOf(16);
    e.okno.imgZnak[9].enabled = false;
    clickSlot(14);
    clickSlot(9); // disabled
    moveOver(9);
    EXPECT_EQ(frameOf(9), none);
    moveOver(16);
    QHelpEvent help(QEvent::ToolTip, rectOf(16).center(), {});
    QApplication::sendEvent(picker, &help);
    EXPECT_EQ(QToolTip::text(), "FIOLKA Z ELIKSIREM");
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(picker, &leave);
    EXPECT_EQ(frameOf(16), none);
    QTest::mousePress(picker, Qt::LeftButton, {}, rectOf(16).center());
    QTest::mouseRelease(picker, Qt::LeftButton, {}, rectOf(17).center()); // no click
    EXPECT_EQ(frameOf(14), IN_BUFOR);
    QTest::mouseClick(picker, Qt::LeftButton, {}, picker->rect().bottomRight());
    EXPECT_EQ(frameOf(WYBOR_ORDER.back()), IN_BUFOR);
}

TEST_F(Painting, AFrameLiesOnTheBlackLinesAroundATile) {
    e.okno.imgBufor.znak = znak(62); // a hidden tile
    okno->showRecord();
    const QImage before = shot("imgZnak");
    const auto framed = [&](QRect frame, QRgb colour) {
        QImage image = before;
        QPainter painter(&image);
        painter.setPen(QColor(colour));
        painter.drawRect(frame.adjusted(0, 0, -1, -1));
        return image;
    };
    const std::map<int, QSize> rows{{0, {33, 33}}, {14, {33, 33}}, {22, {34, 33}}, {12, {33, 34}}, {57, {33, 34}}};
    for (auto [slot, size] : rows) {
        const QRect frame(rectOf(slot).topLeft(), size);
        EXPECT_EQ(framed(frame, qRgb(0, 0, 0)), before) << slot;
        moveOver(slot);
        EXPECT_EQ(shot("imgZnak"), framed(frame, UNDER_POINTER)) << slot;
        clickSlot(slot);
        EXPECT_EQ(shot("imgZnak"), framed(frame, IN_BUFOR)) << slot;
        e.okno.imgBufor.znak = znak(62);
        okno->showRecord();
    }
}

// CTest runs this one again at a fractional scale.
TEST_F(Painting, TheOutlineLeavesNoTrail) {
    moveTo(centreOf(45), Qt::NoButton);
    QTest::qWait(30);
    const QImage before = okno->screen()->grabWindow(okno->winId()).toImage();
    for (int cell : {46, 87, 128, 169, 210, 251, 211, 171, 45}) {
        moveTo(centreOf(cell), Qt::NoButton);
        QTest::qWait(10);
    }
    EXPECT_FALSE(before.isNull());
    EXPECT_EQ(okno->screen()->grabWindow(okno->winId()).toImage(), before);
}

// In each world, and after the strips were loaded again.
TEST_F(Painting, PicturesAreTheStripsPixels) {
    for (int swiat : {0, 1, 2, 2}) {
        click(QString("optObiektyNR(%1)").arg(swiat));
        shade += 10;
        cmdReload_Click(e);
        e.okno.imgPG[50].znak = znak(133);
        e.okno.imgPG[51].znak = znak(70); // no tile
        optObiektyNR_Click(e, swiat);
        okno->showRecord();
        int wrong = 0;
        const auto compare = [&](QRgb pixel, Znak z, int x, int y) {
            wrong += pixel != QRgb(patternPixel(shadeOf(swiat), kod(z) < 64 ? kod(z) : kod(z) - 64, x, y));
        };
        const QImage cells = shot("imgPG"), picker = shot("imgZnak");
        for (int y = 0; y < cells.height(); ++y)
            for (int x = 0; x < cells.width(); ++x)
                if (const Znak z = cellOf(y / 16 * 40 + x / 16); isTile(z))
                    compare(cells.pixel(x, y), z, x % 16 * 2, y % 16 * 2);
        for (int slot : WYBOR_ORDER)
            compare(picker.pixel(rectOf(slot).topLeft() + QPoint(11, 21)), znak(slot), 10, 20);
        for (auto [icon, slot] : {std::pair(0, 63), {1, 9}, {2, 12}, {4, 13}, {5, 10}, {6, 14}, {7, 2}, {8, 55}})
            compare(shot(QString("imgInfo(%1)").arg(icon)).pixel(5, 6), znak(slot), 10, 12);
        compare(shot("imgBufor").pixel(7, 8), NIC, 6, 7);
        EXPECT_EQ(wrong, 0) << "world " << swiat;
    }
}

} // namespace
} // namespace dorva::test
