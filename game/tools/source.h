// Text sources: lines of UTF-8, with their numbers for messages about mistakes.
#pragma once

#include "stage/tekst.h"

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace dorva {

// What is wrong with a source, as "file:line: text".
struct SourceError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Gives the lines of a source one by one, without comments (from ";" on), trailing blanks and empty lines.
class Source {
public:
    Source(std::string name, std::string_view text);
    static Source fromFile(const std::filesystem::path& path);

    [[nodiscard]] bool atEnd() const { return next == lines.size(); }
    // The next line, which stays the next one; empty at the end.
    [[nodiscard]] std::string_view peek() const { return atEnd() ? std::string_view() : lines[next].text; }
    std::string_view take();

    // Reports a mistake in the line taken last.
    [[noreturn]] void fail(const std::string& text) const;

private:
    struct Line {
        int number;
        std::string text;
    };
    std::string fileName;
    std::vector<Line> lines;
    std::size_t next = 0;
};

// The first word of a line and the rest, without the blanks between them.
struct Words {
    std::string_view first, rest;
};
Words splitWord(std::string_view line);

// A whole decimal number in min..max; fails otherwise.
int parseNumber(const Source&, std::string_view text, int min, int max);

// UTF-8 as window text.
Tekst toTekst(const Source&, std::string_view utf8);

// Reads a whole file; fails if it can't.
Bajty readFile(const std::filesystem::path& path);

// Writes a file, and makes its folder if it is missing; fails if it can't.
void writeFile(const std::filesystem::path& path, const Bajty& bytes);

} // namespace dorva
