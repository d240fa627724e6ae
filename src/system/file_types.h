// What the system calls answer and take.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>

namespace dorva {

using Time = std::chrono::system_clock::time_point;

// How a call went.
enum class Result {
    Ok,
    Missing, // nothing exists at the path
    Taken,   // something exists there already
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

using Handle = int; // the C runtime's number of an open file

} // namespace dorva
