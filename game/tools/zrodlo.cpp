#include "zrodlo.h"

#include "system/pliki.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace dorva {
namespace {

constexpr std::string_view BLANKS = " \t\r";

std::string_view withoutTail(std::string_view line) {
    line = line.substr(0, line.find(';'));
    return line.substr(0, line.find_last_not_of(BLANKS) + 1);
}

} // namespace

Zrodlo::Zrodlo(std::string nazwa, std::string_view tekst) : nazwaPliku(std::move(nazwa)) {
    for (int numer = 1; !tekst.empty(); ++numer) {
        const std::size_t end = tekst.find('\n');
        if (const std::string_view line = withoutTail(tekst.substr(0, end)); !line.empty())
            linie.push_back({numer, std::string(line)});
        tekst.remove_prefix(end == std::string_view::npos ? tekst.size() : end + 1);
    }
}

Zrodlo Zrodlo::fromFile(const std::filesystem::path& path) {
    return {path.string(), Tekst::fromBytes(readPlik(path)).znaki};
}

std::string_view Zrodlo::take() {
    if (atEnd())
        fail("the file ends too early");
    return linie[next++].tekst;
}

void Zrodlo::fail(const std::string& text) const {
    const int numer = next == 0 ? 0 : linie[next - 1].numer;
    throw BladZrodla(nazwaPliku + ":" + std::to_string(numer) + ": " + text);
}

Slowa splitSlowo(std::string_view line) {
    const std::size_t end = std::min(line.find_first_of(BLANKS), line.size());
    const std::size_t rest = std::min(line.find_first_not_of(BLANKS, end), line.size());
    return {line.substr(0, end), line.substr(rest)};
}

int parseLiczba(const Zrodlo& z, std::string_view text, int min, int max) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < min || value > max)
        z.fail("a number from " + std::to_string(min) + " to " + std::to_string(max) + " should stand here: \"" +
               std::string(text) + "\"");
    return value;
}

Tekst toTekst(const Zrodlo& z, std::string_view utf8) {
    // Two bytes per character are enough: the Polish letters are below U+0800.
    Tekst tekst;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        char32_t character = static_cast<Bajt>(utf8[i]);
        if (character >= 0x80) {
            if ((character & 0xE0U) != 0xC0 || i + 1 == utf8.size())
                z.fail("a character that the game does not know");
            character = (character & 0x1FU) << 6 | (static_cast<Bajt>(utf8[++i]) & 0x3FU);
        }
        tekst.znaki.push_back(static_cast<char>(fromUnicode(character)));
    }
    return tekst;
}

Bajty readPlik(const std::filesystem::path& path) {
    auto bytes = readWhole(SYSTEM_CALLS, path);
    if (!bytes)
        throw BladZrodla(path.string() + ": cannot be read");
    return std::move(*bytes);
}

void writePlik(const std::filesystem::path& path, const Bajty& bytes) {
    if (path.has_parent_path())
        std::filesystem::create_directories(path.parent_path());
    if (!writeWhole(SYSTEM_CALLS, path, bytes))
        throw BladZrodla(path.string() + ": cannot be written");
}

} // namespace dorva
