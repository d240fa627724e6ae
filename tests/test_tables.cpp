// Whole tables that other programs and people rely on.
#include "desk.h"
#include "output/obraz_gry.h"
#include "rows.h"
#include "shell/komunikaty.h"
#include "stage/archiwum.h"
#include "stage/zbior_etapow.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace dorva::test {
namespace {

std::string hex(Rgb c) {
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "%02x%02x%02x", c.r, c.g, c.b);
    return text.data();
}

// A message as one row: a bar stands for a line feed.
std::string rowOf(const Komunikat& k) {
    constexpr std::array ICONS{"critical", "warning", "information"};
    constexpr std::array BUTTONS{"OK", "OK, Cancel", "Yes, No"};
    std::string text(k.text);
    std::ranges::replace(text, '\n', '|');
    return std::string(k.title) + " / " + text + " / " + ICONS[static_cast<int>(k.ikona)] + " / " +
           BUTTONS[static_cast<int>(k.przyciski)];
}

TEST(Tables, PaletteColoursNamesPickerAndMessages) {
    std::vector<std::string> rows;
    for (std::size_t value = 0; value < PaletaWbudowana.size(); ++value)
        rows.push_back("colour " + std::to_string(value) + " " + hex(PaletaWbudowana[value]));
    for (const auto& swiat : KOLORY_STARTOWE) {
        rows.emplace_back("colours of a world:");
        for (const Bajt value : swiat)
            rows.back() += " " + std::to_string(value);
    }
    for (std::size_t code = 0; code < NAZWY_ZNAKOW.size(); ++code)
        rows.push_back("tile " + std::to_string(code) + " " + std::string(NAZWY_ZNAKOW[code]));
    rows.emplace_back("picker:");
    for (const int code : WYBOR_ORDER)
        rows.back() += " " + std::to_string(code);
    using namespace komunikaty;
    for (const Komunikat& k : {ZLY_FORMAT, ZASTAPIC, ETAP_ZAPISANY, ARCHIWUM_ZAPISANE, NIE_MOZNA_PLIKU, NIE_MOZNA_GRY,
                               NIE_MOZNA_ETAPU, CZYSZCZENIE, KOLORY_ZABLOKOWANE, GRA_UTWORZONA, TEST_UTWORZONY})
        rows.push_back(rowOf(k));
    expectRows("tables.txt", rows);
}

class Dialogs : public Desk {};

TEST_F(Dialogs, NamesFiltersAndWhereTheNextOneStarts) {
    const struct {
        void (*operation)(Edytor&);
        const char *name, *filter; // proposed
    } all[]{{cmdSave_Click, "DETAP.7", "Etap gry|DETAP.*|Wszystkie pliki (*.*)|*.*"},
            {cmdLoad_Click, "", "Etapy gry|DETAP.*|Wszystkie pliki (*.*)|*.*"},
            {cmdSaveArch_Click, "DPArchiwum.dpa", "Plik archiwum|*.dpa|Wszystkie pliki (*.*)|*.*"},
            {cmdLoadArch_Click, "", "Pliki archiwum|*.dpa|Wszystkie pliki (*.*)|*.*"},
            {cmdCreate_Click, "Dorva - wyprawy.xex", "Plik gry|*.xex|Wszystkie pliki (*.*)|*.*"}};
    start();
    SelectEtapNR(e, 6);
    writeFile(root / "archiwum", sampleArchiwum());
    writeFile(root / "etap", sampleEtap(7));
    fs::path last = fs::canonical(root);
    for (const auto& d : all) {
        run(d.operation, d.operation == cmdLoadArch_Click ? "archiwum"
                         : d.operation == cmdLoad_Click   ? "etap"
                                                          : d.name);
        EXPECT_EQ(dialogs.back().name, d.name);
        EXPECT_EQ(dialogs.back().filter, d.filter);
        EXPECT_EQ(dialogs.back().start, last) << d.name;
        EXPECT_EQ(e.OstatniaSciezka, *chosen) << d.name;
        last = *chosen;
        chosen.reset();
        d.operation(e);
        EXPECT_EQ(e.OstatniaSciezka, last) << "a cancel changes nothing";
    }
    EXPECT_EQ(dialogs.size(), 10U);
}

} // namespace
} // namespace dorva::test
