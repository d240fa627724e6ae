#include "stage/tekst.h"

#include <gtest/gtest.h>

#include <utility>

namespace dorva {
namespace {

TEST(Texts, CodingMapsScreenCodesAndPolishCapitals) {
    EXPECT_EQ(EncodeTekst({" !0AZ_XZ"}), (Bajty{0, 1, 16, 33, 58, 63, 56, 58}));
    EXPECT_EQ(DecodeTekst(Bajty{65, 67, 69, 76, 78, 79, 83, 88, 90}),
              DecodeTekst(Bajty{97, 99, 101, 108, 110, 111, 115, 120, 122}));
    EXPECT_EQ(EncodeTekst({"\x01"}), Bajty{225}) << "below 32: c - 32 modulo 256";
}

TEST(Texts, DecodeUndoesEncodeForEveryNormalisedByte) {
    for (int c = 32; c < 256; ++c) {
        const Tekst tekst = upperCase({std::string(1, static_cast<char>(c))});
        EXPECT_EQ(DecodeTekst(EncodeTekst(tekst)), tekst) << c;
    }
}

TEST(Texts, UpperCaseCoversTheWholeCodePage) {
    EXPECT_EQ(upperCase({"a z{"}).znaki, "A Z{");
    EXPECT_EQ(upperCase({"\xF7\xFF\xDF\xB5"}).znaki, "\xF7\xFF\xDF\xB5") << "no letters, or no capital in the page";
    EXPECT_EQ(upperCase({"\x9A\x9D\x9E\xBA\xBE\xFE"}).znaki, "\x8A\x8D\x8E\xAA\xBC\xDE");
}

TEST(Texts, FitNazwaCentresByLength) {
    EXPECT_EQ(FitNazwa({"ala"}).znaki, std::string(15, ' ') + "ALA" + std::string(14, ' '));
    for (auto [length, before] : {std::pair{31, 1}, {30, 1}, {29, 2}, {28, 2}, {32, 0}}) {
        const Tekst fitted = FitNazwa({std::string(length, 'A')});
        EXPECT_EQ(fitted.size(), 32U);
        EXPECT_EQ(fitted.znaki.find('A'), before) << length;
    }
    const Tekst indented = FitNazwa({std::string(10, ' ') + "ABCDEFGHIJ"});
    EXPECT_EQ(indented.znaki.find('A'), 16U) << "leading spaces count as text";
    EXPECT_EQ(FitNazwa(indented), indented);
    EXPECT_EQ(FitNazwa({"ala"}, 6).znaki, "  ALA ") << "a narrower box";
}

TEST(Texts, CodePageRoundTripsThroughUnicode) {
    for (int c = 0; c < 256; ++c)
        EXPECT_EQ(fromUnicode(toUnicode(static_cast<Bajt>(c))), c);
    EXPECT_EQ(toUnicode(0x98), u'\x98');
    EXPECT_EQ(fromUnicode(U'語'), '?');
}

} // namespace
} // namespace dorva
