// Tables that other programs and people rely on, as a whole: a slip in one entry shows in a sum or in its row.
#include "output/obraz_gry.h"
#include "pulpit.h"
#include "shell/komunikaty.h"
#include "stage/archiwum.h"

namespace dorva::test {
namespace {

// FNV-1a, 64 bits.
std::uint64_t suma(std::span<const Bajt> bytes) {
    std::uint64_t sum = 0xCBF29CE484222325;
    for (Bajt b : bytes)
        sum = (sum ^ b) * 0x100000001B3;
    return sum;
}

TEST(Tablice, SumsOfPaletteColoursNamesPickerAndMessages) {
    Bajty palette, colours, names, messages;
    for (Rgb c : PaletaWbudowana)
        palette.insert(palette.end(), {c.r, c.g, c.b});
    for (std::string_view name : NAZWY_ZNAKOW) {
        names.insert(names.end(), name.begin(), name.end());
        names.push_back('\n');
    }
    for (const auto& swiat : KOLORY_STARTOWE)
        colours.insert(colours.end(), swiat.begin(), swiat.end());
    using namespace komunikaty;
    for (const Komunikat& k : {ZLY_FORMAT, ZASTAPIC, ETAP_ZAPISANY, ARCHIWUM_ZAPISANE, NIE_MOZNA_PLIKU, NIE_MOZNA_GRY,
                               NIE_MOZNA_ETAPU, CZYSZCZENIE, KOLORY_ZABLOKOWANE, GRA_UTWORZONA, TEST_UTWORZONY}) {
        for (std::string_view text : {k.title, k.text})
            messages.insert(messages.end(), text.begin(), text.end());
        messages.push_back(static_cast<Bajt>(k.ikona));
        messages.push_back(static_cast<Bajt>(k.przyciski));
    }
    EXPECT_EQ(suma(palette), 0xFD46F3290A06B174);
    EXPECT_EQ(suma(colours), 0x7772B344A1F5494B);
    EXPECT_EQ(suma(messages), 8035577556655344608U);
    EXPECT_EQ(suma(names), 0x6B242B1432DEE10A);
    EXPECT_EQ(suma(Bajty(WYBOR_ORDER.begin(), WYBOR_ORDER.end())), 0xED32442C13F276FE);
}

TEST(Tablice, PolishLetters) {
    const std::u32string unicode = U"ĄĆĘŁŃÓŚŹŻąćęłńóśźż";
    const std::string page = "\xA5\xC6\xCA\xA3\xD1\xD3\x8C\x8F\xAF\xB9\xE6\xEA\xB3\xF1\xF3\x9C\x9F\xBF";
    const std::string stored = "acelnosxz\xB9\xE6\xEA\xB3\xF1\xF3\x9C\x9F\xBF";
    for (std::size_t i = 0; i < unicode.size(); ++i) {
        const auto code = static_cast<Bajt>(page[i]);
        EXPECT_EQ(fromUnicode(unicode[i]), code) << i;
        EXPECT_EQ(toUnicode(code), unicode[i]) << i;
        EXPECT_EQ(upperCase({page.substr(i, 1)}).znaki, page.substr(i % 9, 1)) << i;
    }
    EXPECT_EQ(EncodeTekst({page}), Bajty(stored.begin(), stored.end()));
    EXPECT_EQ(DecodeTekst(Bajty(stored.begin(), stored.end())).znaki, page);
}

struct Dialog {
    void (*operation)(Edytor&);
    const char* name; // proposed
    const char* filter;
};

class Dialogi : public Pulpit {};

TEST_F(Dialogi, NamesFiltersAndWhereTheNextOneStarts) {
    const Dialog all[]{{cmdSave_Click, "DETAP.7", "Etap gry|DETAP.*|Wszystkie pliki (*.*)|*.*"},
                       {cmdLoad_Click, "", "Etapy gry|DETAP.*|Wszystkie pliki (*.*)|*.*"},
                       {cmdSaveArch_Click, "DPArchiwum.dpa", "Plik archiwum|*.dpa|Wszystkie pliki (*.*)|*.*"},
                       {cmdLoadArch_Click, "", "Pliki archiwum|*.dpa|Wszystkie pliki (*.*)|*.*"},
                       {cmdCreate_Click, "Dorva - wyprawy.xex", "Plik gry|*.xex|Wszystkie pliki (*.*)|*.*"}};
    start();
    SelectEtapNR(e, 6);
    writeFile(root / "archiwum", sampleArchiwum());
    writeFile(root / "etap", sampleEtap(7));
    fs::path last = fs::canonical(root);
    for (const Dialog& d : all) {
        chosen = root / (d.operation == cmdLoadArch_Click ? "archiwum"
                         : d.operation == cmdLoad_Click   ? "etap"
                                                          : d.name);
        d.operation(e);
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
