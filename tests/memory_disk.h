// A disk in memory, used through a table of system calls, and a desk whose files are on it. The calls can be made to
// fail, and the disk can list the states in which a power cut might leave it.
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

struct File {
    Bajty bytes;
    Bajty flushed; // what the disk is sure to hold
    Time modified;
};
using FileRef = std::shared_ptr<File>;

struct MemoryDisk {
    struct Open {
        FileRef file;
        std::size_t at = 0;
    };
    std::map<std::string, FileRef> names;
    std::set<std::string> folders;
    std::map<std::string, FileRef> unsure; // names changed since their folder was flushed, and what they stood for then
    std::vector<Open> open;
    Time clock = Time(std::chrono::hours(24 * 365 * 50));
    int calls = 0;
    int failing = 0;      // the call that fails, counted from 1; 0: none
    bool forGood = false; // and all after it

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
        unsure.try_emplace(name, find(path));
        names[name] = file;
        if (!file)
            names.erase(name);
    }
    Open& at(Handle file) { return open[static_cast<std::size_t>(file)]; }
    bool fails() { return ++calls == failing || (forGood && calls > failing); }

    [[nodiscard]] Files files(std::string_view prefix = "") const {
        Files files;
        for (const auto& [name, file] : names)
            if (name.starts_with(prefix))
                files[name] = file->bytes;
        return files;
    }

    // No file holds more than what was flushed, and one of the names may be what it was when its folder was flushed. A
    // new folder may be lost with all that it holds.
    [[nodiscard]] std::vector<Files> afterPowerCut() const {
        std::vector<Files> states(1);
        for (const auto& [name, file] : names)
            states[0][name] = file->flushed;
        for (const auto& [name, old] : unsure) {
            Files state = states[0];
            std::erase_if(state,
                          [lost = name + '/'](const auto& entry) { return (entry.first + '/').starts_with(lost); });
            if (old)
                state[name] = old->flushed;
            states.push_back(std::move(state));
        }
        return states;
    }
};

inline MemoryDisk disk;

inline Result statPath(const Path& path, FileInfo& info) {
    const FileRef file = disk.find(path);
    if (!file && !disk.folders.contains(path.generic_string()))
        return Result::Missing;
    info = file ? FileInfo{true, {}, file->bytes.size(), file->modified} : FileInfo{};
    return Result::Ok;
}

inline Result openPath(const Path& path, OpenMode mode, Handle& handle) {
    FileRef file = disk.find(path);
    if (file && mode == OpenMode::New)
        return Result::Taken;
    const bool makes = mode == OpenMode::Create || mode == OpenMode::New;
    if (!file && !(makes && disk.folders.contains(path.parent_path().generic_string())))
        return Result::Missing;
    if (!file) {
        file = std::make_shared<File>(File{{}, {}, disk.clock});
        disk.setName(path, file);
    }
    handle = static_cast<Handle>(disk.open.size());
    disk.open.push_back({file});
    return Result::Ok;
}

inline constexpr std::size_t TRANSFER_MAX = 20'000; // bytes that one call moves: less than an archive has

inline Result readBytes(Handle handle, std::span<Bajt> bytes, std::size_t& count) {
    auto& [file, at] = disk.at(handle);
    count = std::min({bytes.size(), file->bytes.size() - at, TRANSFER_MAX});
    std::copy_n(file->bytes.begin() + static_cast<std::ptrdiff_t>(at), count, bytes.begin());
    at += count;
    return Result::Ok;
}

inline Result writeBytes(Handle handle, std::span<const Bajt> bytes, std::size_t& count) {
    File& file = *disk.at(handle).file;
    count = std::min(bytes.size(), TRANSFER_MAX);
    std::ranges::copy(bytes.first(count), std::back_inserter(file.bytes)); // only new files are written to
    file.modified = disk.clock;
    return Result::Ok;
}

inline Result flushFile(Handle handle) {
    File& file = *disk.at(handle).file;
    file.flushed = file.bytes;
    return Result::Ok;
}

inline Result moveName(const Path& from, const Path& to) {
    disk.setName(to, disk.find(from));
    disk.setName(from, nullptr);
    return Result::Ok;
}

inline Result removeName(const Path& path) {
    disk.setName(path, nullptr);
    return Result::Ok;
}

inline Result addFolder(const Path& path) {
    if (!disk.folders.contains(path.parent_path().generic_string()))
        return Result::Missing;
    if (!disk.folders.insert(path.generic_string()).second)
        return Result::Taken;
    disk.unsure[path.generic_string()] = nullptr;
    return Result::Ok;
}

inline Result flushNames(const Path& folder) {
    std::erase_if(disk.unsure, [&](const auto& entry) { return Path(entry.first).parent_path() == folder; });
    return Result::Ok;
}

inline Result listFolder(const Path& folder, std::vector<Path>& names) {
    if (!disk.folders.contains(folder.generic_string()))
        return Result::Missing;
    for (const auto& [name, file] : disk.names)
        if (const Path path = name; path.parent_path() == folder)
            names.push_back(path.filename());
    return Result::Ok;
}

template <auto Call, class... Args> Result mayFail(Args... args) {
    return disk.fails() ? Result::Error : Call(args...);
}

inline const SystemCalls* memoryCalls() {
    static const SystemCalls calls{
        .open = mayFail<openPath>,
        .read = mayFail<readBytes>,
        .write = mayFail<writeBytes>,
        .flush = mayFail<flushFile>,
        .close = mayFail<[](Handle) { return Result::Ok; }>,
        .stat = mayFail<statPath>,
        .readLink = mayFail<[](const Path&, Path&) { return Result::Missing; }>, // there are no links
        .isSame = mayFail<[](const Path& one, const Path& other, bool& same) {
            same = disk.find(one) && one == other;
            return Result::Ok;
        }>,
        .setMode = mayFail<[](const Path&, std::filesystem::perms) { return Result::Ok; }>,
        .rename = mayFail<moveName>,
        .remove = mayFail<removeName>,
        .makeFolder = mayFail<addFolder>,
        .flushFolder = mayFail<flushNames>,
        .list = mayFail<listFolder>,
        .now = [] { return disk.clock; },
    };
    return &calls;
}

// A path on the disk in memory, in a folder of this run alone.
inline std::string at(const std::string& name) {
    static const fs::path folder = [] {
        const fs::path unused = makeFolder();
        fs::remove(unused); // a run without tests on this disk would leave it
        return unused;
    }();
    return (folder / name).generic_string();
}

// How the names of a file's copies begin.
inline std::string copiesOf(const fs::path& file) {
    return (file.parent_path() / "KOPIE" / file.filename()).generic_string() + '/';
}

// In each test there is also a real, empty folder of that name, since operations make it the current one.
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
};

} // namespace dorva::test
