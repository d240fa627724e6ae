#include "system/pliki.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace dorva {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t WHOLE_MAX_BYTES = 64 << 20; // more than any file of the editor has
constexpr std::string_view TEMPORARY_PREFIX = "dorva-";
constexpr std::string_view TEMPORARY_SUFFIX = ".dp-tmp";
constexpr std::chrono::hours LEFTOVER_AGE{1}; // no write takes that long, on any machine

// An open file that is closed when its scope ends.
class OpenFile {
public:
    OpenFile(const SystemCalls& system, const fs::path& path, OpenMode mode)
        : system_(system), result_(system.open(path, mode, file_)) {}
    ~OpenFile() { (void)close(); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    [[nodiscard]] Result result() const { return result_; }
    [[nodiscard]] bool readAll(std::span<Bajt> bytes) const { return moveAll(system_.read, bytes); }
    [[nodiscard]] bool writeAll(std::span<const Bajt> bytes) const { return moveAll(system_.write, bytes); }
    [[nodiscard]] bool flush() const { return system_.flush(file_) == Result::Ok; }
    [[nodiscard]] bool close() {
        return std::exchange(result_, Result::Error) == Result::Ok && system_.close(file_) == Result::Ok;
    }

private:
    template <typename Bytes> bool moveAll(Result (*move)(Handle, Bytes, std::size_t&), Bytes bytes) const {
        while (result_ == Result::Ok && !bytes.empty()) {
            std::size_t count = 0;
            if (move(file_, bytes, count) != Result::Ok || count == 0)
                return false;
            bytes = bytes.subspan(count);
        }
        return result_ == Result::Ok;
    }

    const SystemCalls& system_;
    Handle file_ = -1;
    Result result_;
};

fs::path folderOf(const fs::path& path) {
    return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

// What a write is about to replace: the file behind all links, and its mode if it exists. Nothing if it couldn't be
// opened for writing; a rename alone would replace read-only files, devices and folders too.
struct Target {
    fs::path path;
    std::optional<fs::perms> mode;
};

std::optional<Target> findTarget(const SystemCalls& system, const fs::path& path) {
    const auto file = behindLinks(system, path);
    if (!file)
        return std::nullopt;
    FileInfo info;
    const Result result = system.stat(*file, info);
    if (result != Result::Ok)
        return result == Result::Missing ? std::optional(Target{*file, std::nullopt}) : std::nullopt;
    if (!info.isRegular || OpenFile(system, *file, OpenMode::Write).result() != Result::Ok)
        return std::nullopt;
    return Target{*file, info.mode};
}

// Writes the new content of a file beside it; returns the path, or nothing. The number in the name comes from the
// clock, so no new file gets the name of a leftover that another run is about to remove.
std::optional<fs::path> writeTemporary(const SystemCalls& system, const Target& target, std::span<const Bajt> bytes) {
    constexpr int NAMES_MAX = 1000;
    const auto now = system.now().time_since_epoch().count();
    for (int i = 0; i < NAMES_MAX; ++i) {
        fs::path path = target.path.parent_path();
        path /= std::string(TEMPORARY_PREFIX) + std::to_string(now + i) + std::string(TEMPORARY_SUFFIX);
        const Result result = writeNew(system, path, bytes, target.mode);
        if (result != Result::Taken)
            return result == Result::Ok ? std::optional(path) : std::nullopt;
    }
    return std::nullopt;
}

// Whether a temporary file was left over by a program that was killed.
bool isLeftover(const SystemCalls& system, const fs::path& path) {
    const auto name = path.filename().native();
    const auto prefix = fs::path(TEMPORARY_PREFIX).native();
    const auto isDigit = [](auto letter) { return letter >= '0' && letter <= '9'; };
    FileInfo info;
    return name.starts_with(prefix) &&
           std::all_of(name.begin() + std::ssize(prefix), name.end() - std::ssize(TEMPORARY_SUFFIX), isDigit) &&
           system.stat(path, info) == Result::Ok && system.now() - info.modified > LEFTOVER_AGE;
}

} // namespace

std::optional<Bajty> readOrCreate(const SystemCalls& system, const fs::path& path, std::size_t count) {
    auto bytes = readFirst(system, path, count);
    if (!bytes && !fileExists(system, path))
        const OpenFile created(system, path, OpenMode::Create);
    return bytes;
}

std::optional<Bajty> readFirst(const SystemCalls& system, const fs::path& path, std::size_t count) {
    auto bytes = readUpTo(system, path, count);
    return bytes && bytes->size() == count ? std::move(bytes) : std::nullopt;
}

std::optional<Bajty> readUpTo(const SystemCalls& system, const fs::path& path, std::size_t count) {
    const auto length = lengthOf(system, path);
    if (!length)
        return std::nullopt;
    Bajty bytes(std::min<std::uintmax_t>(*length, count));
    return OpenFile(system, path, OpenMode::Read).readAll(bytes) ? std::optional(std::move(bytes)) : std::nullopt;
}

std::optional<Bajty> readWhole(const SystemCalls& system, const fs::path& path) {
    const auto length = lengthOf(system, path);
    return length && *length <= WHOLE_MAX_BYTES ? readFirst(system, path, *length) : std::nullopt;
}

std::optional<std::uintmax_t> lengthOf(const SystemCalls& system, const fs::path& path) {
    FileInfo info;
    const bool isFile = system.stat(path, info) == Result::Ok && info.isRegular;
    return isFile ? std::optional(info.length) : std::nullopt;
}

bool fileExists(const SystemCalls& system, const fs::path& path) {
    FileInfo info;
    return system.stat(path, info) != Result::Missing;
}

bool isSameFile(const SystemCalls& system, const fs::path& one, const fs::path& other) {
    bool same = false;
    return system.isSame(one, other, same) == Result::Ok && same;
}

std::optional<fs::path> behindLinks(const SystemCalls& system, fs::path path) {
    constexpr int LINKS_MAX = 40;
    for (int links = 0; links < LINKS_MAX; ++links) {
        fs::path target;
        const Result result = system.readLink(path, target);
        if (result != Result::Ok)
            return result == Result::Missing ? std::optional(path) : std::nullopt;
        path = path.parent_path() / target;
    }
    return std::nullopt;
}

bool isWritable(const SystemCalls& system, const fs::path& path) {
    const auto target = findTarget(system, path);
    return target && target->mode;
}

Result writeNew(const SystemCalls& system, const fs::path& path, std::span<const Bajt> bytes,
                std::optional<fs::perms> mode) {
    OpenFile file(system, path, OpenMode::New);
    if (file.result() != Result::Ok)
        return file.result();
    if (mode)
        (void)system.setMode(path, *mode); // fails on a file system without mode bits, which is no harm
    const bool isWritten = file.writeAll(bytes) && file.flush();
    if (file.close() && isWritten)
        return Result::Ok;
    system.remove(path);
    return Result::Error;
}

bool writeWhole(const SystemCalls& system, const fs::path& path, std::span<const Bajt> bytes,
                const std::function<bool(const fs::path& file)>& mayReplace) {
    const auto target = findTarget(system, path);
    if (!target)
        return false;
    const auto temporary = writeTemporary(system, *target, bytes);
    if (!temporary)
        return false;
    if ((mayReplace && !mayReplace(target->path)) || system.rename(*temporary, target->path) != Result::Ok) {
        system.remove(*temporary);
        return false;
    }
    // The new file is in place already, so a failure here isn't one of the write.
    system.flushFolder(folderOf(target->path));
    return true;
}

std::vector<fs::path> listNames(const SystemCalls& system, const fs::path& folder, std::string_view suffix) {
    std::vector<fs::path> names;
    if (system.list(folder, names) != Result::Ok)
        return {};
    const auto end = fs::path(suffix).native();
    std::erase_if(names, [&](const fs::path& name) { return !name.native().ends_with(end); });
    std::ranges::sort(names, {}, &fs::path::native);
    return names;
}

void sweepTemporary(const SystemCalls& system, const fs::path& folder) {
    for (const fs::path& name : listNames(system, folder, TEMPORARY_SUFFIX))
        if (isLeftover(system, folder / name))
            system.remove(folder / name);
}

} // namespace dorva
