#include "source.h"

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

Source::Source(std::string name, std::string_view text) : fileName(std::move(name)) {
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = text.find('\n');
        if (const std::string_view line = withoutTail(text.substr(0, end)); !line.empty())
            lines.push_back({number, std::string(line)});
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
}

Source Source::fromFile(const std::filesystem::path& path) {
    return {path.string(), Tekst::fromBytes(readFile(path)).znaki};
}

std::string_view Source::take() {
    if (atEnd())
        fail("the file ends too early");
    return lines[next++].text;
}

void Source::fail(const std::string& text) const {
    const int number = next == 0 ? 0 : lines[next - 1].number;
    throw SourceError(fileName + ":" + std::to_string(number) + ": " + text);
}

Words splitWord(std::string_view line) {
    const std::size_t end = std::min(line.find_first_of(BLANKS), line.size());
    const std::size_t rest = std::min(line.find_first_not_of(BLANKS, end), line.size());
    return {line.substr(0, end), line.substr(rest)};
}

int parseNumber(const Source& source, std::string_view text, int min, int max) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < min || value > max)
        source.fail("a number from " + std::to_string(min) + " to " + std::to_string(max) + " should stand here: \"" +
                    std::string(text) + "\"");
    return value;
}

Tekst toTekst(const Source& source, std::string_view utf8) {
    // Two bytes per character are enough: the Polish letters are below U+0800.
    Tekst text;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        char32_t character = static_cast<Bajt>(utf8[i]);
        if (character >= 0x80) {
            if ((character & 0xE0U) != 0xC0 || i + 1 == utf8.size())
                source.fail("a character that the game does not know");
            character = (character & 0x1FU) << 6 | (static_cast<Bajt>(utf8[++i]) & 0x3FU);
        }
        text.znaki.push_back(static_cast<char>(fromUnicode(character)));
    }
    return text;
}

Bajty readFile(const std::filesystem::path& path) {
    auto bytes = readWhole(SYSTEM_CALLS, path);
    if (!bytes)
        throw SourceError(path.string() + ": cannot be read");
    return std::move(*bytes);
}

void writeFile(const std::filesystem::path& path, const Bajty& bytes) {
    if (path.has_parent_path())
        std::filesystem::create_directories(path.parent_path());
    if (!writeWhole(SYSTEM_CALLS, path, bytes))
        throw SourceError(path.string() + ": cannot be written");
}

} // namespace dorva
