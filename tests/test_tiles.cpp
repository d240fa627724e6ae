#include "desk.h"
#include "stage/etap.h"
#include "tiles/kolory.h"
#include "tiles/paleta.h"
#include "tiles/zestaw.h"

namespace dorva::test {
namespace {

// A strip in which every pixel names its world and tile.
Bitmapa sampleStrip(std::uint32_t swiat, int width = 4096, int height = 32) {
    Bitmapa strip{width, height, std::vector<std::uint32_t>(width * height)};
    for (std::size_t i = 0; i < strip.piksele.size(); ++i)
        strip.piksele[i] = 0xFF000000U | swiat << 16U | static_cast<std::uint32_t>(i % width / 32);
    return strip;
}

class Tiles : public Desk {
protected:
    void SetUp() override {
        Desk::SetUp();
        folder = base / "OBIEKTY/ORN_EXPORT";
        std::uint32_t swiat = 0;
        for (const std::string name : {"FNT01.ORN.ND", "FNT11.ORN.ND", "FNT21.ORN.ND"}) {
            writeFile(folder / (name + ".KOLORY"), Bajty(7, static_cast<Bajt>(10 * ++swiat)));
            strips[name + ".TILES.BMP"] = sampleStrip(swiat);
        }
    }
    fs::path folder;
    std::uint32_t pixel(ObrazRef ref, std::size_t i = 0) {
        const ZnakObraz* obraz = e.frmZestawy.find(ref);
        return obraz ? (*obraz)[i] : 1;
    }
};

TEST_F(Tiles, EveryCodeShowsItsPartOfTheStrip) {
    start();
    for (std::int8_t swiat = 0; swiat < 3; ++swiat)
        for (int code : {0, 1, 63, 128, 191}) {
            const int position = code < 128 ? code : code - 64;
            EXPECT_EQ(pixel({swiat, znak(code)}, 1023),
                      0xFF000000U | static_cast<std::uint32_t>((swiat + 1) << 16 | position));
        }
    for (ObrazRef none : {ObrazRef{0, znak(64)}, {0, znak(255)}, {ObrazRef::DOMYSLNY, DORVA}, {3, DORVA}})
        EXPECT_EQ(e.frmZestawy.find(none), nullptr);
}

TEST_F(Tiles, ChangeOfWorldChangesPicturesOnly) {
    start();
    cell(3, 3) = znak(133);
    cell(3, 4) = znak(100);
    const Okno before = e.okno;
    ASSERT_TRUE(SelectObiektyNR(e, 2));
    for (std::size_t i = 0; i < PLANSZA_CELLS; ++i) {
        ASSERT_EQ(e.okno.imgPG[i].znak, before.imgPG[i].znak);
        ASSERT_EQ(e.okno.imgPG[i].obraz, (ObrazRef{2, before.imgPG[i].znak}));
    }
    EXPECT_EQ(e.okno.imgInfo[0], (ObrazRef{2, DORVA}));
    EXPECT_EQ(e.okno.imgInfo[2], e.okno.imgInfo[3]);
    EXPECT_EQ(e.okno.lblKolor, before.lblKolor);
    e.okno.optNN = 1;
    ASSERT_TRUE(SelectObiektyNR(e, 0));
    EXPECT_EQ(kod(e.okno.imgZnak[5].znak), 133) << "the picker's tiles are INV";
    ASSERT_TRUE(SelectObiektyNR(e, 2));
    EXPECT_FALSE(SelectObiektyNR(e, 3));
    EXPECT_FALSE(SelectObiektyNR(e, -1) || SetOstatni(e, -1));
    PackEtap(e);
    EXPECT_EQ(e.image[uklad::SWIAT], 2);
}

TEST_F(Tiles, StripsOfOtherSizes) {
    strips["FNT01.ORN.ND.TILES.BMP"] = sampleStrip(9, 5000, 40);
    strips["FNT11.ORN.ND.TILES.BMP"] = sampleStrip(8, 70, 10);
    strips.erase("FNT21.ORN.ND.TILES.BMP");
    start();
    EXPECT_EQ(pixel({0, DORVA_INV}), 0xFF090000U + 127);
    EXPECT_EQ(pixel({1, znak(2)}, 5), 0xFF080002U);
    EXPECT_EQ(pixel({1, znak(2)}, 6), 0U) << "beyond the strip's width";
    EXPECT_EQ(pixel({1, znak(0)}, 10 * 32), 0U) << "below the strip";
    EXPECT_EQ(pixel({1, DORVA}), 0U);
    EXPECT_EQ(e.frmZestawy.find({2, DORVA}), nullptr);
    EXPECT_EQ(e.okno.optObiektyNR, 1) << "start-up goes on";
    strips.clear();
    cmdReload_Click(e);
    fs::remove_all(folder);
    cmdReload_Click(e);
    EXPECT_EQ(pixel({1, znak(2)}, 5), 0xFF080002U) << "without a strip the pictures stay";
}

TEST_F(Tiles, OnlyVisibleFilesTakeAWorldsTurn) {
    fs::create_directory(folder / "AAA.ND");
    for (const char* name : {".AAA.ND", "._FNT01.ORN.ND", "fnt02.orn.nd"})
        writeFile(folder / name, {});
    strips["fnt02.orn.nd.TILES.BMP"] = sampleStrip(9);
    if (POSIX) {
        fs::create_symlink("brak", folder / "BBB.ND");
        fs::rename(folder / "FNT11.ORN.ND", base / "inny");
        fs::create_symlink(base / "inny", folder / "FNT11.ORN.ND");
    }
    start();
    EXPECT_EQ(pixel({0, NIC}), 0xFF010000U);
    EXPECT_EQ(pixel({1, NIC}), POSIX ? 0xFF020000U : 0xFF090000U) << "on Windows the case doesn't count";
    EXPECT_EQ(pixel({2, NIC}), POSIX ? 0xFF030000U : 0xFF020000U);
}

TEST_F(Tiles, ReloadTakesNewColoursOfTheWorldOnShow) {
    start(); // stage 1 is in world 1
    e.okno.chkZachowajKolory = true;
    writeFile(folder / "FNT01.ORN.ND.KOLORY", {6, 7, 8, 9, 10});
    writeFile(folder / "FNT11.ORN.ND.KOLORY", {1, 2, 3, 4, 5});
    const Bajt slot3 = e.okno.lblKolor[3].value;
    cmdReload_Click(e);
    for (std::size_t k = 0; k < 5; ++k)
        EXPECT_EQ(e.okno.lblKolor[4 + k].value, k + 1);
    EXPECT_EQ(e.okno.lblKolor[3].value, slot3);
    EXPECT_EQ(e.KoloryDomyslne[0][8], 10);
    e.okno.chkZachowajKolory = false;
    ASSERT_TRUE(SelectObiektyNR(e, 2));
    cmdResetKolory_Click(e);
    EXPECT_EQ(e.okno.lblKolor[4].value, 30);
    EXPECT_EQ(e.okno.lblKolor[11].value, 4);
}

TEST_F(Tiles, PaletteFileOrBuiltInTable) {
    for (const char* name : {"FNT01.ORN.ND", "FNT11.ORN.ND", "FNT21.ORN.ND"})
        fs::remove(folder / name);
    start();
    EXPECT_EQ(e.okno.lblKolor[4].value, 10) << "a world's colours don't wait for its tile set";
    EXPECT_EQ(e.Paleta[180], (Rgb{0x16, 0x92, 0x12}));
    fs::create_directory(base / "PLIKI/PALETY");
    writeFile(base / "PLIKI/PALETY/Bitwor.act", Bajty(767, 3));
    LoadPaleta(e);
    EXPECT_EQ(e.Paleta, PaletaWbudowana);
    writeFile(base / "PLIKI/PALETY/Bitwor.act", Bajty(800, 3));
    LoadPaleta(e);
    for (Rgb colour : e.Paleta)
        EXPECT_EQ(colour, (Rgb{3, 3, 3}));
    writeFile(folder / "FNT01.ORN.ND.KOLORY", Bajty(4, 99));
    LoadKolory(e, 0);
    EXPECT_EQ(e.KoloryDomyslne[0][4], 10);
    const auto third = folder / "FNT21.ORN.ND.KOLORY";
    fs::remove(third);
    LoadKolory(e, 2);
    EXPECT_FALSE(fs::exists(third)) << "a missing colour file stays missing";
    LoadZestaw(e, folder / "FNT21.ORN.ND", 2);
    EXPECT_EQ(fs::file_size(third), 0U) << "with a tile set it is created";
    EXPECT_EQ(e.KoloryDomyslne[2][4], 30);
}

TEST_F(Tiles, PaletteDialogWritesTheChosenSlot) {
    start();
    PickKolor(e, 5);
    EXPECT_TRUE(e.okno.dlgPaleta.otwarte);
    EXPECT_EQ(e.okno.dlgPaleta.picPaleta[90], PaletaWbudowana[180]);
    ShowKolor(e, 5, 181);
    OpenPaleta(e);
    EXPECT_EQ(e.okno.dlgPaleta.lblWybrany, "181, $B5");
    picPaleta_Click(e, 14 * 8 + 1);
    EXPECT_EQ(e.okno.lblKolor[5].value, 226);
    PickKolor(e, 11);
    EXPECT_FALSE(e.okno.lblKolor[5].wybrany);
    picPaleta_Click(e, 14 * 8 + 7);
    EXPECT_EQ(e.okno.lblKolor[11].value, 228);
    EXPECT_EQ(e.okno.dlgPaleta.lblWybrany, "228, $E4");
    EXPECT_EQ(e.okno.dlgPaleta.picWybrany, PaletaWbudowana[228]);

    e.okno.chkZachowajKolory = true;
    PickKolor(e, 0);
    cmdResetKolory_Click(e);
    const std::string blocked = "Nie można zmienić kolorów ponieważ\nustawiony jest znacznik \"Blokuj kolory\".";
    EXPECT_EQ(messages(), blocked + "|" + blocked);
    EXPECT_EQ(e.WybranySlot, 11);
    Form_Unload(e);
    EXPECT_FALSE(e.okno.lblKolor[11].wybrany || e.okno.dlgPaleta.otwarte);
    closePaleta(e);
    EXPECT_FALSE(parsePaleta(Bajty(767, 3)));
    EXPECT_EQ(kolorText(5), "5, $5");
}

} // namespace
} // namespace dorva::test
