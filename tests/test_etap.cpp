#include "desk.h"
#include "stage/etap.h"
#include "stage/zbior_etapow.h"

#include <utility>

namespace dorva::test {
namespace {

class Packing : public Desk {};

TEST_F(Packing, EdgeRuleKeepsOnlyPlainWallsAndNothing) {
    start();
    for (auto [before, after] :
         {std::pair{0, 0}, {5, 5}, {6, 6}, {7, 5}, {63, 5}, {133, 5}, {134, 5}, {191, 5}, {128, 5}}) {
        cell(0, 0) = cell(19, 39) = cell(7, 0) = cell(12, 39) = znak(before);
        PackEtap(e);
        for (Znak z : {cell(0, 0), cell(19, 39), cell(7, 0), cell(12, 39)})
            EXPECT_EQ(kod(z), after) << before;
    }
    e.okno.optNN = 1;
    cell(0, 3) = znak(134);
    cell(0, 4) = znak(6);
    PackEtap(e);
    EXPECT_EQ(kod(cell(0, 3)), 133);
    EXPECT_EQ(kod(cell(0, 4)), 6);
}

TEST_F(Packing, HeroineIsStoredPlainInsideTheEdge) {
    start();
    cell(3, 7) = DORVA_INV;
    PackEtap(e);
    EXPECT_EQ(e.image[159], 63);
    EXPECT_EQ(cell(3, 7), DORVA);
    EXPECT_EQ(e.okno.imgPG[127].obraz.znak, DORVA_INV) << "the picture follows at the next redraw";
    const Bajty once = e.image;
    PackEtap(e);
    EXPECT_EQ(e.image, once);
}

TEST_F(Packing, RefusedFieldsLeaveTheRestAsItWas) {
    start();
    const Okno before = e.okno;
    e.image.assign(ETAP_SIZE_BYTES, 0);
    EXPECT_FALSE(UnpackEtap(e));
    EXPECT_EQ(e.okno.lblKolor[4].value, 0);
    EXPECT_EQ(cell(5, 5), NIC);
    EXPECT_EQ(e.okno.imgPG[205].obraz, before.imgPG[205].obraz);
    EXPECT_EQ(e.okno.hscMonet, before.hscMonet);
    EXPECT_EQ(e.okno.pola[TXT_NAZWA].tekst, before.pola[TXT_NAZWA].tekst);

    e.image = sampleEtap(9);
    e.image[uklad::OSTATNI] = 3;
    EXPECT_FALSE(UnpackEtap(e));
    EXPECT_EQ(e.okno.hscMonet, 9);
    EXPECT_EQ(e.okno.chkOstatni, before.chkOstatni);

    e.image[uklad::OSTATNI] = 2;
    e.image[uklad::SWIAT] = 3;
    EXPECT_FALSE(UnpackEtap(e));
    EXPECT_EQ(e.okno.chkOstatni, 2);
    EXPECT_EQ(e.okno.optObiektyNR, before.optObiektyNR);
    EXPECT_EQ(e.okno.pola[TXT_NAZWA].tekst, before.pola[TXT_NAZWA].tekst);
}

TEST_F(Packing, BlockedColoursStayAndTravelAlong) {
    start();
    e.okno.chkZachowajKolory = true;
    const auto colours = e.okno.lblKolor;
    SelectEtapNR(e, 4);
    EXPECT_EQ(e.okno.lblKolor, colours);
    EXPECT_EQ(e.okno.hscMonet, 5);
    SelectEtapNR(e, 0);
    const Bajty stored = readFile(etap(5));
    for (std::size_t i = 0; i < SLOTY_COUNT; ++i)
        EXPECT_EQ(stored[uklad::KOLORY + i], colours[i].value);
}

} // namespace
} // namespace dorva::test
