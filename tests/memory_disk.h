// A disk in memory, used through a table of system calls, and a desk whose files are on it. The calls can be made to
// fail, and the disk can list every state in which a power cut might leave it.
#pragma once

#include "desk.h"
#include "system/system_calls.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <set>
#include <string_view>
#include <vector>

namespace dorva::test {

using Path = SystemCalls::Path;
using Files = std::map<std::string, Bajty>; // by path

// Makes the N-th call fail, and if wanted all after it.
struct Failure {
    static constexpr Result SHORT = Result::Ok; // no failure: reads and writes move half of what they were asked to
    int at = 0;                                 // the failing call, counted from 1; 0: none
    Result error = Result::Error;
    bool forGood = false;
    int calls = 0;
    bool removeFailed = false;

    [[nodiscard]] bool strikes() { return ++calls == at || (forGood && at > 0 && calls > at); }
};

struct File {
    Bajty bytes;
    Bajty flushed; // what the disk is sure to hold
    Time modified;
};
using FileRef = std::shared_ptr<File>;

// What a power cut may leave of a file: what was written and not flushed may be missing, cut short, zeros or there.
inline std::vector<Bajty> formsOf(const File& file) {
    if (file.bytes == file.flushed)
        return {file.bytes};
    const auto half = static_cast<std::ptrdiff_t>(file.bytes.size() / 2);
    return {file.flushed, {file.bytes.begin(), file.bytes.begin() + half}, Bajty(file.bytes.size(), 0), file.bytes};
}

struct MemoryDisk {
    struct Open {
        FileRef file;
        std::size_t at = 0;
    };
    std::map<std::string, FileRef> names;
    std::set<std::string> folders;
    std::map<std::string, std::vector<FileRef>> unsure; // what a name stood for since its folder was last flushed
    std::set<std::string> unsureFolders;                // made since the folder above was last flushed
    std::vector<Open> open;
    Failure failure;
    Time clock = Time(std::chrono::hours(24 * 365 * 50));

    void put(const std::string& path, const Bajty& bytes) {
        names[path] = std::make_shared<File>(File{bytes, bytes, clock});
        for (Path folder = Path(path).parent_path(); folders.insert(folder.generic_string()).second;)
            folder = folder.parent_path();
    }
    [[nodiscard]] FileRef find(const Path& path) const {
        const auto found = names.find(path.generic_string());
        return found == names.end() ? nullptr : found->second;
    }
    void setName(const Path& path, const FileRef& file) {
        const std::string name = path.generic_string();
        unsure[name].push_back(find(path));
        names[name] = file;
        if (!file)
            names.erase(name);
    }
    Open& at(Handle file) { return open[static_cast<std::size_t>(file)]; }

    [[nodiscard]] Files files(std::string_view prefix = "") const {
        Files files;
        for (const auto& [name, file] : names)
            if (name.starts_with(prefix))
                files[name] = file->bytes;
        return files;
    }

    // Each name that changed since its folder was flushed is old or new, whatever the others are. A folder whose own
    // name was not flushed may be lost with all that it holds.
    [[nodiscard]] std::vector<Files> afterPowerCut() const {
        std::map<std::string, std::vector<FileRef>> candidates = unsure;
        for (const auto& [name, file] : names)
            candidates[name];
        std::vector<Files> states(1);
        for (auto& [name, versions] : candidates) {
            versions.push_back(find(name));
            std::vector<Files> longer;
            for (const FileRef& file : versions) {
                if (!file) {
                    longer.insert(longer.end(), states.begin(), states.end());
                    continue;
                }
                for (const Bajty& form : formsOf(*file))
                    for (Files state : states) {
                        state[name] = form;
                        longer.push_back(std::move(state));
                    }
            }
            states = std::move(longer);
        }
        for (const std::string& folder : unsureFolders) {
            std::vector<Files> without = states;
            for (Files& state : without)
                std::erase_if(state, [&](const auto& entry) { return entry.first.starts_with(folder + '/'); });
            states.insert(states.end(), without.begin(), without.end());
        }
        return states;
    }
};

inline MemoryDisk disk;

inline Result statPath(const Path& path, FileInfo& info) {
    const FileRef file = disk.find(path);
    if (!file && !disk.folders.contains(path.generic_string()))
        return Result::Missing;
    info = {};
    info.isRegular = file != nullptr;
    if (file) {
        info.length = file->bytes.size();
        info.modified = file->modified;
    }
    return Result::Ok;
}

inline Result openPath(const Path& path, OpenMode mode, Handle& handle) {
    FileRef file = disk.find(path);
    if (file && mode == OpenMode::New)
        return Result::Taken;
    if (!file) {
        const bool makes = mode == OpenMode::Create || mode == OpenMode::New;
        if (!makes || !disk.folders.contains(path.parent_path().generic_string()))
            return Result::Missing;
        file = std::make_shared<File>(File{{}, {}, disk.clock});
        disk.setName(path, file);
    }
    handle = static_cast<Handle>(disk.open.size());
    disk.open.push_back({file});
    return Result::Ok;
}

// How many bytes a transfer moves: all, or half of them if it is the one that fails.
inline std::size_t moved(std::size_t count, Result& result) {
    if (!disk.failure.strikes())
        return count;
    result = disk.failure.error;
    return (count + 1) / 2;
}

inline Result readBytes(Handle handle, std::span<Bajt> bytes, std::size_t& count) {
    auto& [file, at] = disk.at(handle);
    Result result = Result::Ok;
    count = moved(std::min(bytes.size(), file->bytes.size() - at), result);
    std::copy_n(file->bytes.begin() + static_cast<std::ptrdiff_t>(at), count, bytes.begin());
    at += count;
    return result;
}

inline Result writeBytes(Handle handle, std::span<const Bajt> bytes, std::size_t& count) {
    auto& [file, at] = disk.at(handle);
    Result result = Result::Ok;
    count = moved(bytes.size(), result);
    file->bytes.resize(std::max(file->bytes.size(), at + count));
    std::ranges::copy(bytes.first(count), file->bytes.begin() + static_cast<std::ptrdiff_t>(at));
    file->modified = disk.clock;
    at += count;
    return result;
}

inline Result flushFile(Handle handle) {
    File& file = *disk.at(handle).file;
    file.flushed = file.bytes;
    return Result::Ok;
}

inline Result closeFile(Handle handle) {
    if (static_cast<std::size_t>(handle) + 1 == disk.open.size())
        disk.open.pop_back();
    return disk.failure.strikes() ? disk.failure.error : Result::Ok;
}

inline Result moveName(const Path& from, const Path& to) {
    disk.setName(to, disk.find(from));
    disk.setName(from, nullptr);
    return Result::Ok;
}

inline Result removeName(const Path& path) {
    if (!disk.find(path))
        return Result::Missing;
    disk.setName(path, nullptr);
    return Result::Ok;
}

inline Result addFolder(const Path& path) {
    if (!disk.folders.contains(path.parent_path().generic_string()))
        return Result::Missing;
    if (!disk.folders.insert(path.generic_string()).second)
        return Result::Taken;
    disk.unsureFolders.insert(path.generic_string());
    return Result::Ok;
}

inline Result flushNames(const Path& folder) {
    const auto isIn = [&](const std::string& name) { return Path(name).parent_path() == folder; };
    std::erase_if(disk.unsure, [&](const auto& entry) { return isIn(entry.first); });
    std::erase_if(disk.unsureFolders, isIn);
    return Result::Ok;
}

inline Result listFolder(const Path& folder, std::vector<Path>& names) {
    if (!disk.folders.contains(folder.generic_string()))
        return Result::Missing;
    const std::string start = folder.generic_string() + '/';
    for (auto at = disk.names.lower_bound(start); at != disk.names.end() && at->first.starts_with(start); ++at)
        if (at->first.find('/', start.size()) == std::string::npos)
            names.emplace_back(at->first.substr(start.size()));
    return Result::Ok;
}

template <auto Call, class... Args> Result mayFail(Args... args) {
    return disk.failure.strikes() && disk.failure.error != Failure::SHORT ? disk.failure.error : Call(args...);
}

inline const SystemCalls* memoryCalls() {
    static const SystemCalls calls{
        .open = mayFail<openPath>,
        .read = readBytes,
        .write = writeBytes,
        .flush = mayFail<flushFile>,
        .close = closeFile,
        .stat = mayFail<statPath>,
        .readLink = mayFail<[](const Path&, Path&) { return Result::Missing; }>, // there are no links
        .isSame = mayFail<[](const Path& one, const Path& other, bool& same) {
            same = disk.find(one) && one == other;
            return Result::Ok;
        }>,
        .setMode = mayFail<[](const Path&, std::filesystem::perms) { return Result::Ok; }>,
        .rename = mayFail<moveName>,
        .remove =
            [](const Path& path) {
                const Result result = mayFail<removeName>(path);
                disk.failure.removeFailed |= result == disk.failure.error;
                return result;
            },
        .makeFolder = mayFail<addFolder>,
        .flushFolder = mayFail<flushNames>,
        .list = mayFail<listFolder>,
        .now = [] { return disk.clock; },
    };
    return &calls;
}

// A path on the disk in memory.
inline std::string at(const std::string& name) {
    static const fs::path folder = makeFolder(); // of this run alone
    return (folder / name).generic_string();
}

// There is also a real, empty folder of that name, since operations make it the current one.
class DeskInMemory : public Desk {
protected:
    void SetUp() override {
        calls = memoryCalls();
        root = at("");
        base = at("praca");
        fs::create_directories(base);
        disk = {};
        for (const auto& [name, bytes] : sampleTree())
            disk.put(at("praca/" + name), bytes);
        attach(e);
    }
    void TearDown() override {
        fs::current_path(fs::temp_directory_path());
        std::error_code error;
        fs::remove_all(root, error);
    }
};

} // namespace dorva::test
