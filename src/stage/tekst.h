// Window text (Windows-1250) and stored text (Atari screen codes).
#pragma once

#include "podstawy.h"

#include <cstddef>
#include <span>
#include <string>

namespace dorva {

inline constexpr std::size_t NAZWA_WIDTH = 32;
inline constexpr std::size_t AUTOR_WIDTH = 64;
inline constexpr std::size_t LINIA_WIDTH = 20; // of a title line
inline constexpr int LINIE_COUNT = 3;

// Text as the window holds it, one byte per character. A type of its own, so that it can't be mixed up with the UTF-8
// of captions and messages.
struct Tekst {
    std::string znaki;

    static Tekst spaces(std::size_t count) { return {std::string(count, ' ')}; }
    static Tekst fromBytes(std::span<const Bajt> bytes) { return {std::string(bytes.begin(), bytes.end())}; }
    [[nodiscard]] std::size_t size() const { return znaki.size(); }
    [[nodiscard]] Bajty bytes() const { return {znaki.begin(), znaki.end()}; }
    bool operator==(const Tekst&) const = default;
};

// Window text to stored text and back. The length stays the same.
Bajty EncodeTekst(const Tekst& tekst);
Tekst DecodeTekst(std::span<const Bajt> bytes);

// Upper case over the whole of Windows-1250.
Tekst upperCase(Tekst tekst);

// Upper case, centred in `width` characters; of an odd number of spaces, one more goes in front.
Tekst FitNazwa(const Tekst& tekst, std::size_t width = NAZWA_WIDTH);

// Upper case, with spaces added at the end up to `width` characters.
Tekst NormalizeBox(const Tekst& tekst, std::size_t width);

// Without the spaces (code 32 only) at both ends.
Tekst trimmed(const Tekst& tekst);

// Windows-1250 to Unicode and back. The five codes that the page leaves open stand for U+0081, U+0083, U+0088, U+0090
// and U+0098. A character that the page lacks becomes '?'.
char16_t toUnicode(Bajt code);
Bajt fromUnicode(char32_t character);

} // namespace dorva
