#include "system/kopie.h"

#include "system/pliki.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <ctime>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace dorva {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view KOPIE = "KOPIE";
constexpr std::size_t COPIES_MAX = 200;
constexpr std::size_t NUMBER_MIN_DIGITS = 4;
constexpr std::string_view TIME_FORM = " 0000-00-00 00.00"; // a 0 stands for any digit

fs::path folderOf(const fs::path& file) {
    return file.parent_path() / KOPIE / file.filename();
}

// The time as it stands in the name of a copy: local time.
std::string timeText(Time time) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    const std::tm* local = std::localtime(&seconds); // null for a time that the C library can't convert
    std::array<char, 64> text{};
    const std::size_t length = local ? std::strftime(text.data(), text.size(), " %Y-%m-%d %H.%M", local) : 0;
    return length > 0 ? std::string(text.data(), length) : std::string(TIME_FORM);
}

std::string copyName(const fs::path& file, int number, Time made, std::string_view ending) {
    std::string digits = std::to_string(number);
    digits.insert(0, NUMBER_MIN_DIGITS - std::min(digits.size(), NUMBER_MIN_DIGITS), '0');
    return file.filename().string() + '.' + digits + timeText(made) + std::string(ending);
}

// The number in the name of a copy; nothing if this isn't the name of one.
std::optional<int> numberOf(const fs::path& file, const fs::path& copy, std::string_view ending) {
    constexpr std::size_t NUMBER_MAX_DIGITS = 9;
    const auto isDigit = [](auto letter) { return letter >= '0' && letter <= '9'; };
    const fs::path::string_type& name = copy.native();
    const fs::path::string_type start = file.filename().native() + fs::path(".").native(),
                                end = fs::path(ending).native();
    if (!name.starts_with(start) || !name.ends_with(end) || name.size() < start.size() + end.size() + TIME_FORM.size())
        return std::nullopt;
    const auto middle = name.substr(start.size(), name.size() - start.size() - end.size());
    const auto digits = middle.substr(0, middle.size() - TIME_FORM.size());
    const bool isTime =
        std::equal(TIME_FORM.begin(), TIME_FORM.end(), middle.end() - std::ssize(TIME_FORM),
                   [&](char form, auto letter) { return form == '0' ? isDigit(letter) : letter == form; });
    if (!isTime || digits.size() < NUMBER_MIN_DIGITS || digits.size() > NUMBER_MAX_DIGITS ||
        !std::ranges::all_of(digits, isDigit))
        return std::nullopt;
    return std::stoi(digits);
}

// Two editors at once may take one number; their copies then stand in the order of their names.
struct Copy {
    int number = 0;
    fs::path name;
};

// The copies of a file, the oldest first. Nothing if the folder can't be read.
std::optional<std::vector<Copy>> copiesOf(const SystemCalls& system, const fs::path& file, std::string_view ending) {
    std::vector<fs::path> names;
    if (const Result result = system.list(folderOf(file), names); result != Result::Ok && result != Result::Missing)
        return std::nullopt;
    std::vector<Copy> copies;
    for (const fs::path& name : names)
        if (const auto number = numberOf(file, name, ending))
            copies.push_back({*number, name});
    std::ranges::sort(copies, {}, [](const Copy& copy) { return std::pair(copy.number, copy.name); });
    return copies;
}

// Makes a folder if it is missing, so that it survives a power cut.
bool provideFolder(const SystemCalls& system, const fs::path& folder) {
    const Result result = system.makeFolder(folder);
    if (result == Result::Ok)
        system.flushFolder(folder.parent_path());
    return result == Result::Ok || result == Result::Taken;
}

// Copies the content of a file until it no longer changes. What another program stores there in the meantime is copied
// as well; only what it stores between the last look and the rename is lost.
bool keepContent(const SystemCalls& system, const fs::path& file, const fs::path& target) {
    for (Bajty kept;;) {
        FileInfo info;
        const Result result = system.stat(target, info);
        if (result == Result::Missing)
            return true;
        const auto old = readWhole(system, target);
        if (result != Result::Ok || !old)
            return false;
        if (*old == kept) // also an empty file, at the first look
            return true;
        if (!keepCopy(system, file, *old, info.modified))
            return false;
        kept = *old;
    }
}

} // namespace

bool keepCopy(const SystemCalls& system, const fs::path& file, std::span<const Bajt> bytes, Time made,
              std::string_view ending) {
    const fs::path folder = folderOf(file);
    const auto copies = copiesOf(system, file, ending);
    if (!copies)
        return false;
    if (!copies->empty()) {
        const auto newest = readWhole(system, folder / copies->back().name);
        if (newest && std::ranges::equal(*newest, bytes))
            return true;
    }
    if (!provideFolder(system, folder.parent_path()) || !provideFolder(system, folder))
        return false;
    Result result = Result::Taken;
    for (int number = copies->empty() ? 1 : copies->back().number + 1; result == Result::Taken; ++number)
        result = writeNew(system, folder / copyName(file, number, made, ending), bytes);
    if (result == Result::Ok)
        system.flushFolder(folder);
    return result == Result::Ok;
}

bool writeKeeping(const SystemCalls& system, const fs::path& file, std::span<const Bajt> bytes,
                  const fs::path& keptAs) {
    const auto old = readWhole(system, file);
    if (old && std::ranges::equal(*old, bytes) && isWritable(system, file))
        return true;
    return writeWhole(system, file, bytes, [&](const fs::path& target) { return keepContent(system, keptAs, target); });
}

bool writeKeeping(const SystemCalls& system, const fs::path& file, std::span<const Bajt> bytes) {
    return writeKeeping(system, file, bytes, file);
}

std::vector<Kopia> listCopies(const SystemCalls& system, const fs::path& file, std::string_view ending) {
    std::vector<Kopia> kopie;
    for (const Copy& copy : copiesOf(system, file, ending).value_or(std::vector<Copy>())) {
        const std::string name = copy.name.string();
        const std::size_t length = TIME_FORM.size() - 1; // without the space before it
        kopie.push_back({folderOf(file) / copy.name, name.substr(name.size() - ending.size() - length, length)});
    }
    std::ranges::reverse(kopie);
    return kopie;
}

void trimCopies(const SystemCalls& system, const fs::path& file, std::string_view ending) {
    const auto copies = copiesOf(system, file, ending).value_or(std::vector<Copy>());
    for (std::size_t i = 0; i + COPIES_MAX < copies.size(); ++i)
        system.remove(folderOf(file) / copies[i].name);
}

} // namespace dorva
