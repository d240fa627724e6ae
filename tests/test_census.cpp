#include "board/census.h"
#include "board/plansza.h"
#include "desk.h"
#include "stage/etap.h"
#include "stage/zbior_etapow.h"

#include <utility>

namespace dorva::test {
namespace {

class Census : public Desk {
protected:
    void SetUp() override {
        Desk::SetUp();
        start();
        ClearEtap(e);
    }
    void place(Znak z, int count) {
        for (int i = 0; i < count; ++i)
            cell(2 + i / 30, 2 + i % 30) = z;
        RefreshInfo(e);
    }
    bool red(std::size_t label) { return e.okno.lblInfo[label].czerwona; }
    std::string text(std::size_t label) { return e.okno.lblInfo[label].caption; }
    bool enabled(Znak z) { return e.okno.imgZnak[static_cast<std::size_t>(z)].enabled; }
};

TEST_F(Census, ClearedBoard) {
    EXPECT_EQ(text(0) + text(1), "!!");
    for (std::size_t label : {0, 1, 2, 3})
        EXPECT_TRUE(red(label)) << label;
    for (std::size_t label : {4, 5, 6, 7, 8})
        EXPECT_FALSE(red(label)) << label;
    for (Znak z : {DORVA, WYJSCIE, MASZYNA, POCHODNIA})
        EXPECT_TRUE(enabled(z));
}

TEST_F(Census, BothFormsCountAndTheEdgeToo) {
    struct {
        Znak z;
        std::size_t label;
    } rows[] = {{MASKA, 2}, {KLUCZ, 4}, {DRZWI, 5}, {BOMBA, 6}, {PULAPKA, 7}, {PRZEDMIOT, 8}, {MASZYNA, 9}};
    for (auto [z, label] : rows) {
        ClearEtap(e);
        cell(0, 3) = z;
        cell(4, 4) = znak(kod(z) + INV);
        RefreshInfo(e);
        EXPECT_EQ(text(label), "2") << kod(z);
    }
    cell(6, 6) = znak(61);
    RefreshInfo(e);
    EXPECT_EQ(text(0), "!") << "a walking Dorva doesn't count";
}

TEST_F(Census, RulesAndGoal) {
    place(MASKA, 3);
    ASSERT_TRUE(SetMonet(e, 3));
    EXPECT_FALSE(red(2) || red(3));
    ASSERT_TRUE(SetMonet(e, 4));
    EXPECT_TRUE(red(2) && red(3));
    EXPECT_EQ(text(3), "4");
    EXPECT_FALSE(SetMonet(e, 0) || SetMonet(e, 100));

    cell(9, 9) = cell(9, 10) = DRZWI;
    cell(9, 11) = KLUCZ;
    cell(10, 9) = PRZEDMIOT;
    RefreshInfo(e);
    EXPECT_TRUE(red(4) && red(5) && red(8));
    cell(9, 10) = KLUCZ;
    cell(10, 10) = PRZEDMIOT;
    RefreshInfo(e);
    EXPECT_FALSE(red(4) || red(5) || red(8));
}

TEST_F(Census, ClickOnAMaskFigureSetsTheGoal) {
    lblInfo_Click(e, 2);
    EXPECT_EQ(e.okno.hscMonet, 1);
    EXPECT_TRUE(red(2));
    for (auto [masks, goal] : {std::pair{7, 7}, {150, 99}}) {
        place(MASKA, masks);
        lblInfo_Click(e, 4);
        lblInfo_Click(e, 3);
        EXPECT_EQ(e.okno.hscMonet, goal);
        EXPECT_EQ(text(3), std::to_string(goal));
        EXPECT_FALSE(red(3));
    }
}

TEST_F(Census, UniqueTilesCantBePlacedTwice) {
    for (Znak z : {DORVA, WYJSCIE, MASZYNA, POCHODNIA}) {
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

TEST_F(Census, PackFreesATorchPaintedOnTheEdge) {
    imgZnak_Click(e, kod(POCHODNIA));
    imgPG_MouseDown(e, 3, LEWY);
    EXPECT_FALSE(enabled(POCHODNIA));
    PackEtap(e);
    EXPECT_TRUE(enabled(POCHODNIA));
}

} // namespace
} // namespace dorva::test
