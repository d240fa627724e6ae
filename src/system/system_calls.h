// The system calls that the file layer is made of, as a table, so that a test can put its own in their place.
#pragma once

#include "podstawy.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

namespace dorva {

using Time = std::chrono::system_clock::time_point;

// How a call went.
enum class Result {
    Ok,
    Missing, // nothing stands at the path
    Taken,   // the name is taken
    Error,
};

struct FileInfo {
    bool isRegular = false; // no folder, pipe or device; only then are length and time known
    std::filesystem::perms mode{};
    std::uintmax_t length = 0; // in bytes
    Time modified{};           // when the content last changed
};

enum class OpenMode {
    Read,
    Write,  // an existing file, which keeps its content
    Create, // an existing file, which keeps its content, or a new one
    New,    // only a new file
};

using Handle = int; // an open file, as the C runtime numbers it

struct SystemCalls {
    using Path = std::filesystem::path;

    Result (*open)(const Path&, OpenMode, Handle&);
    // `count` is how many bytes moved: all, some, at the end of a file none.
    Result (*read)(Handle, std::span<Bajt> bytes, std::size_t& count);
    Result (*write)(Handle, std::span<const Bajt> bytes, std::size_t& count);
    Result (*flush)(Handle);
    Result (*close)(Handle);

    Result (*stat)(const Path&, FileInfo&);        // follows links
    Result (*readLink)(const Path&, Path& target); // Missing where no link stands
    Result (*isSame)(const Path&, const Path&, bool& same);
    Result (*setMode)(const Path&, std::filesystem::perms);
    Result (*rename)(const Path& from, const Path& to); // replaces `to`
    Result (*remove)(const Path&);

    Result (*makeFolder)(const Path&); // Taken where it exists
    // Makes new names in a folder outlive a power cut.
    Result (*flushFolder)(const Path&);
    // Adds the names in a folder, in any order, without those of the folder itself and the one above.
    Result (*list)(const Path& folder, std::vector<Path>& names);

    Time (*now)();
};

// The operating system's own.
extern const SystemCalls SYSTEM_CALLS;

} // namespace dorva
