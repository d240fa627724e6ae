#include "board/plansza.h"
#include "desk.h"
#include "stage/zbior_etapow.h"

namespace dorva::test {
namespace {

class MouseTools : public Desk {
protected:
    void SetUp() override {
        Desk::SetUp();
        start();
        ClearEtap(e);
    }
};

TEST_F(MouseTools, StrokeEntersEachCellOnce) {
    imgZnak_Click(e, 34);
    imgPG_MouseDown(e, 100, LEWY);
    imgPG_MouseMove(e, 100, LEWY);
    EXPECT_EQ(e.okno.obrys, -1) << "no outline before another cell is entered";
    imgPG_MouseMove(e, 101, LEWY);
    imgPG_MouseMove(e, 102, LEWY + PRAWY);
    imgPG_MouseMove(e, 103, 0);
    EXPECT_EQ(e.okno.imgPG[100].znak, znak(34));
    EXPECT_EQ(e.okno.imgPG[101], e.okno.imgBufor);
    EXPECT_EQ(e.okno.imgPG[102].znak, ZIEMIA);
    EXPECT_EQ(e.okno.imgPG[103].znak, ZIEMIA);
    EXPECT_EQ(e.okno.obrys, 103);
}

TEST_F(MouseTools, RightButtonPicksOrErasesOneCell) {
    cell(5, 5) = cell(5, 6) = BOMBA;
    imgPG_MouseDown(e, 205, PRAWY);
    EXPECT_EQ(e.okno.lblKodBufor[0], "14");
    EXPECT_EQ(e.okno.lblKodBufor[1], "$E");
    e.okno.optPPM = 1;
    imgPG_MouseDown(e, 205, PRAWY);
    imgPG_MouseMove(e, 206, PRAWY);
    EXPECT_EQ(cell(5, 5), ZIEMIA);
    EXPECT_EQ(cell(5, 6), BOMBA);
    SelectNN(e, 1);
    EXPECT_EQ(e.okno.optNN, 1);
    SelectNN(e, 1);
    imgPG_MouseDown(e, 206, PRAWY);
    EXPECT_EQ(kod(cell(5, 6)), 129) << "under INV the eraser writes the INV earth";
}

TEST_F(MouseTools, OtherButtonsOnlyRecount) {
    cell(5, 5) = MASKA; // not counted yet
    imgPG_MouseDown(e, 300, SRODKOWY);
    EXPECT_EQ(e.lastCell, 300);
    EXPECT_EQ(e.okno.imgPG[300].znak, ZIEMIA);
    EXPECT_EQ(e.okno.etapInfo.maski, 1);
}

} // namespace
} // namespace dorva::test
