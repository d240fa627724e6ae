#include "stage/tekst.h"

#include <algorithm>
#include <array>

namespace dorva {
namespace {

// The Polish capitals, in Windows-1250, and the codes of lower-case letters under which they are stored.
struct PolskaLitera {
    Bajt wielka;
    Bajt zapis;
};
constexpr std::array<PolskaLitera, 9> POLSKIE{{{0xA5, 'a'},
                                               {0xC6, 'c'},
                                               {0xCA, 'e'},
                                               {0xA3, 'l'},
                                               {0xD1, 'n'},
                                               {0xD3, 'o'},
                                               {0x8C, 's'},
                                               {0x8F, 'x'},
                                               {0xAF, 'z'}}};

// Codes from here up stand for themselves; those below are shifted by 32 (Atari internal codes).
constexpr Bajt PRZESUNIETE = 96;

constexpr std::array<char16_t, 128> CP1250{
    0x20AC, 0x0081, 0x201A, 0x0083, 0x201E, 0x2026, 0x2020, 0x2021, 0x0088, 0x2030, 0x0160, 0x2039, 0x015A,
    0x0164, 0x017D, 0x0179, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x0098, 0x2122,
    0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6,
    0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B, 0x00B0, 0x00B1, 0x02DB, 0x0142,
    0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C, 0x0154,
    0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7, 0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD,
    0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA,
    0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF, 0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4,
    0x0151, 0x00F6, 0x00F7, 0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9};

// Lower-case letters outside the two regular ranges (a..z, E0..FE), and their capitals.
constexpr std::array<std::array<Bajt, 2>, 9> MALE_OSOBNO{{{0x9A, 0x8A},
                                                          {0x9C, 0x8C},
                                                          {0x9D, 0x8D},
                                                          {0x9E, 0x8E},
                                                          {0x9F, 0x8F},
                                                          {0xB3, 0xA3},
                                                          {0xB9, 0xA5},
                                                          {0xBA, 0xAA},
                                                          {0xBE, 0xBC}}};

constexpr Bajt upper(Bajt c) {
    if (c >= 'a' && c <= 'z')
        return static_cast<Bajt>(c - 32);
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7)
        return static_cast<Bajt>(c - 32);
    if (c == 0xBF)
        return 0xAF;
    for (auto [mala, wielka] : MALE_OSOBNO)
        if (c == mala)
            return wielka;
    return c;
}

} // namespace

Bajty EncodeTekst(const Tekst& tekst) {
    Bajty stored = tekst.bytes();
    for (Bajt& c : stored) {
        for (auto [wielka, zapis] : POLSKIE)
            if (c == wielka) {
                c = zapis;
                break;
            }
        if (c < PRZESUNIETE)
            c = static_cast<Bajt>(c - 32);
    }
    return stored;
}

Tekst DecodeTekst(std::span<const Bajt> bytes) {
    Tekst tekst;
    tekst.znaki.reserve(bytes.size());
    for (Bajt c : bytes) {
        if (c < PRZESUNIETE)
            c = static_cast<Bajt>(c + 32);
        for (auto [wielka, zapis] : POLSKIE)
            if (c == zapis) {
                c = wielka;
                break;
            }
        tekst.znaki.push_back(static_cast<char>(c));
    }
    return tekst;
}

Tekst upperCase(Tekst tekst) {
    for (char& c : tekst.znaki)
        c = static_cast<char>(upper(static_cast<Bajt>(c)));
    return tekst;
}

Tekst FitNazwa(const Tekst& tekst, std::size_t width) {
    const std::size_t length = tekst.size();
    const std::size_t before = length < width ? (width + 1 - length) / 2 : 0;
    return NormalizeBox({std::string(before, ' ') + tekst.znaki}, width);
}

Tekst NormalizeBox(const Tekst& tekst, std::size_t width) {
    Tekst fitted = upperCase(tekst);
    if (fitted.size() < width)
        fitted.znaki.resize(width, ' ');
    return fitted;
}

Tekst trimmed(const Tekst& tekst) {
    const std::size_t first = tekst.znaki.find_first_not_of(' ');
    if (first == std::string::npos)
        return {};
    return {tekst.znaki.substr(first, tekst.znaki.find_last_not_of(' ') - first + 1)};
}

char16_t toUnicode(Bajt code) {
    return code < 0x80 ? static_cast<char16_t>(code) : CP1250[code - 0x80U];
}

Bajt fromUnicode(char32_t character) {
    if (character < 0x80)
        return static_cast<Bajt>(character);
    const auto found = std::find(CP1250.begin(), CP1250.end(), character);
    return found == CP1250.end() ? Bajt{'?'} : static_cast<Bajt>(0x80 + (found - CP1250.begin()));
}

} // namespace dorva
