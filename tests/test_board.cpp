// The mouse tools, and the figures that count what they paint.
#include "board/census.h"
#include "board/plansza.h"
#include "desk.h"
#include "stage/zbior_etapow.h"

namespace dorva::test {
namespace {

class Board : public Desk {
protected:
    void SetUp() override {
        Desk::SetUp();
        start();
        ClearEtap(e);
    }
    // Puts tiles on the board, from the edge on, in both forms by turns.
    void place(Znak z, int count) {
        for (int i = 0; i < count; ++i)
            e.okno.imgPG[placed++].znak = znak(kod(z) + (i % 2) * INV);
        RefreshInfo(e);
    }
    // All figures of the panel; a star stands behind a red one.
    [[nodiscard]] std::string figures() const {
        std::string text;
        for (const InfoFigura& figura : e.okno.lblInfo)
            text += figura.caption + (figura.czerwona ? "* " : " ");
        return text;
    }
    bool enabled(Znak z) { return e.okno.imgZnak[kod(z)].enabled; }
    int placed = 3;
};

TEST_F(Board, FiguresCountBothFormsAndTurnRed) {
    const struct {
        std::vector<std::pair<Znak, int>> tiles;
        int goal;
        const char* figures;
    } rows[]{
        {{}, 1, "!* !* 0* 1* 0 0 0 0 0 0 0 "},
        {{{DORVA, 1}, {WYJSCIE, 2}, {MASKA, 3}, {KLUCZ, 4}, {DRZWI, 4}}, 3, "ok ok 3 3 4 4 0 0 0 0 0 "},
        {{{znak(61), 1}, {MASKA, 3}, {KLUCZ, 1}, {DRZWI, 2}, {PRZEDMIOT, 3}}, 4, "!* !* 3* 4* 1* 2* 0 0 3* 0 0 "},
        {{{DORVA_INV, 1}, {BOMBA, 5}, {PULAPKA, 6}, {PRZEDMIOT, 2}, {MASZYNA, 7}, {POCHODNIA, 8}},
         1,
         "ok !* 0* 1* 0 0 5 6 2 7 1 "},
    };
    for (const auto& row : rows) {
        ClearEtap(e);
        for (auto [z, count] : row.tiles)
            place(z, count);
        ASSERT_TRUE(SetMonet(e, row.goal));
        EXPECT_EQ(figures(), row.figures);
    }
    EXPECT_FALSE(SetMonet(e, 0) || SetMonet(e, 100));
}

TEST_F(Board, AClickOnAMaskFigureSetsTheGoal) {
    lblInfo_Click(e, 2);
    EXPECT_EQ(figures().substr(6, 5), "0* 1*");
    for (auto [masks, goal] : {std::pair(7, "7 7 "), {143, "150 99 "}}) {
        place(MASKA, masks);
        lblInfo_Click(e, 4);
        lblInfo_Click(e, 3);
        EXPECT_EQ(figures().substr(6, std::string(goal).size()), goal);
    }
    EXPECT_EQ(e.okno.hscMonet, 99);
}

TEST_F(Board, UniqueTilesCantBePlacedTwice) {
    EXPECT_FALSE(enabled(znak(62))) << "a hidden tile";
    for (Znak z : {DORVA, WYJSCIE, MASZYNA, POCHODNIA}) {
        EXPECT_TRUE(enabled(z));
        imgZnak_Click(e, kod(z));
        ASSERT_EQ(e.okno.imgBufor.znak, z);
        imgPG_MouseDown(e, 205, LEWY);
        imgPG_MouseMove(e, 206, LEWY);
        EXPECT_EQ(cell(5, 5), z);
        EXPECT_EQ(cell(5, 6), ZIEMIA);
        EXPECT_FALSE(enabled(z));
        imgZnak_Click(e, kod(z));
        EXPECT_EQ(e.okno.imgBufor.znak, ZIEMIA) << "a disabled slot gives nothing";
        imgPG_MouseDown(e, 205, PRAWY);
        EXPECT_EQ(e.okno.imgBufor.znak, ZIEMIA) << "nor does the pipette";
        imgPG_MouseDown(e, 205, LEWY);
        EXPECT_TRUE(enabled(z));
    }
    cell(5, 5) = DORVA_INV;
    imgPG_MouseDown(e, 205, PRAWY);
    EXPECT_EQ(e.okno.imgBufor.znak, DORVA_INV) << "the INV form stays in the buffer";
}

TEST_F(Board, AStrokeEntersEachCellOnceAndOtherButtonsOnlyRecount) {
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

    cell(5, 5) = MASKA; // not counted yet
    imgPG_MouseDown(e, 300, SRODKOWY);
    EXPECT_EQ(e.lastCell, 300);
    EXPECT_EQ(e.okno.imgPG[300].znak, ZIEMIA);
    EXPECT_EQ(e.okno.etapInfo.maski, 1);
}

TEST_F(Board, TheRightButtonPicksOrErasesOneCell) {
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

} // namespace
} // namespace dorva::test
