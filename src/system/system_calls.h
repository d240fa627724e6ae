// The system calls that the file layer is made of, as a table, so that tests can replace them.
#pragma once

#include "podstawy.h"
#include "system/file_types.h"

#include <cstddef>
#include <filesystem>
#include <span>
#include <vector>

namespace dorva {

struct SystemCalls {
    using Path = std::filesystem::path;

    Result (*open)(const Path&, OpenMode, Handle&);
    // `count` is how many bytes were moved: all or some of them, none at the end of a file.
    Result (*read)(Handle, std::span<Bajt> bytes, std::size_t& count);
    Result (*write)(Handle, std::span<const Bajt> bytes, std::size_t& count);
    Result (*flush)(Handle);
    Result (*close)(Handle);

    Result (*stat)(const Path&, FileInfo&);        // follows links
    Result (*readLink)(const Path&, Path& target); // Missing if it is no link
    Result (*isSame)(const Path&, const Path&, bool& same);
    Result (*setMode)(const Path&, std::filesystem::perms);
    Result (*rename)(const Path& from, const Path& to); // replaces `to`
    Result (*remove)(const Path&);

    Result (*makeFolder)(const Path&); // Taken if it exists
    // Makes sure that new names in a folder survive a power cut.
    Result (*flushFolder)(const Path&);
    // Adds the names in a folder, in any order, without "." and "..".
    Result (*list)(const Path& folder, std::vector<Path>& names);

    Time (*now)();
};

// The calls of the operating system.
extern const SystemCalls SYSTEM_CALLS;

} // namespace dorva
