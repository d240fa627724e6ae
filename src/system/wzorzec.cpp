#include "system/wzorzec.h"

#include "system/kopie.h"
#include "system/pliki.h"
#include "system/system_calls.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace dorva {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view SPIS = ".ulozone"; // a line for every content ever laid

// A content's line: a checksum (FNV-1a), its length and the file's name.
std::string lineOf(std::string_view name, const Bajty& bytes) {
    std::uint64_t sum = 0xCBF29CE484222325;
    for (const Bajt byte : bytes)
        sum = (sum ^ byte) * 0x100000001B3;
    return std::to_string(sum) + ' ' + std::to_string(bytes.size()) + ' ' + std::string(name);
}

class Spis {
public:
    Spis(const SystemCalls& system, fs::path path) : system_(system), path_(std::move(path)) {
        const Bajty text = readWhole(system_, path_).value_or(Bajty());
        for (auto at = text.begin(); at != text.end();) {
            const auto end = std::find(at, text.end(), '\n');
            lines_.emplace(at, end);
            at = end == text.end() ? end : end + 1;
        }
        stored_ = lines_.size();
    }
    [[nodiscard]] bool knows(const std::string& line) const { return lines_.contains(line); }
    void add(const std::string& line) { lines_.insert(line); }
    [[nodiscard]] bool store() const {
        if (lines_.size() == stored_)
            return true;
        Bajty text;
        for (const std::string& line : lines_) {
            text.insert(text.end(), line.begin(), line.end());
            text.push_back('\n');
        }
        return writeWhole(system_, path_, text);
    }

private:
    const SystemCalls& system_;
    fs::path path_;
    std::set<std::string> lines_;
    std::size_t stored_ = 0;
};

// Folders are walked and made by the library, past the table of system calls: whatever fails there loses nothing, and
// the next run goes on where this one stopped.

// The files of a tree, by their names within it; the tree itself where its listing breaks off. None if it is missing.
std::vector<fs::path> filesIn(const fs::path& tree) {
    std::vector<fs::path> names;
    std::error_code error;
    for (fs::recursive_directory_iterator at(tree, error), end; !error && at != end; at.increment(error))
        if (std::error_code unknown; !at->is_directory(unknown))
            names.push_back(at->path().lexically_relative(tree));
    if (error && error != std::errc::no_such_file_or_directory)
        names.emplace_back();
    return names;
}

// What stood there at the look may go, and nothing else.
bool put(const SystemCalls& system, const fs::path& path, const Bajty& bytes, const std::optional<Bajty>& old) {
    std::error_code error;
    fs::create_directories(path.parent_path(), error);
    return old ? writeKeeping(system, path, bytes) : writeWhole(system, path, bytes);
}

bool isLink(const SystemCalls& system, const fs::path& path) {
    fs::path target;
    return system.readLink(path, target) == Result::Ok;
}

} // namespace

std::vector<fs::path> layOut(const SystemCalls& system, const fs::path& wzorzec, const fs::path& folder) {
    Spis spis(system, folder / SPIS);
    std::vector<fs::path> refused;
    for (const fs::path& name : filesIn(wzorzec)) {
        if (isLink(system, folder / name))
            continue;
        const auto fresh = readWhole(system, wzorzec / name);
        if (!fresh) {
            refused.push_back(name);
            continue;
        }
        const auto old = readWhole(system, folder / name);
        const std::u8string u8 = name.generic_u8string();
        const std::string text(u8.begin(), u8.end());
        const bool isOwners = old ? !old->empty() && *old != *fresh && !spis.knows(lineOf(text, *old))
                                  : fileExists(system, folder / name);
        if (isOwners)
            continue;
        if (old == fresh || put(system, folder / name, *fresh, old))
            spis.add(lineOf(text, *fresh));
        else
            refused.push_back(name);
    }
    if (!spis.store())
        refused.emplace_back(SPIS);
    return refused;
}

} // namespace dorva
