#include "system/proces.h"
#include "system/system_own.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <fcntl.h>
#include <filesystem>
#include <io.h>
#include <span>
#include <string>
#include <sys/stat.h>
#include <windows.h>

namespace dorva {
namespace {

namespace fs = std::filesystem;

constexpr int flagsOf(OpenMode mode) {
    switch (mode) {
    case OpenMode::Read:
        return _O_RDONLY;
    case OpenMode::Write:
        return _O_WRONLY;
    case OpenMode::Create:
        return _O_WRONLY | _O_CREAT;
    default:
        return _O_WRONLY | _O_CREAT | _O_EXCL;
    }
}

// A virus scanner or the program of a cloud folder may hold a file for a moment, mostly right after a write to it; a
// call on it then fails with one of three errors. The whole wait, 310 ms, is too short to be noticed.
template <typename Call> int patiently(Call call) {
    constexpr std::array<::DWORD, 5> WAITS_MS{10, 20, 40, 80, 160};
    for (const ::DWORD wait : WAITS_MS) {
        if (const int answer = call(); answer != -1)
            return answer;
        const ::DWORD error = ::GetLastError();
        if (error != ERROR_SHARING_VIOLATION && error != ERROR_LOCK_VIOLATION && error != ERROR_ACCESS_DENIED)
            return -1;
        ::Sleep(wait);
    }
    return call();
}

// The result of a Windows call, reported as the C runtime does.
int answerOf(::BOOL isDone) {
    errno = isDone ? 0 : EACCES;
    return isDone ? 0 : -1;
}

// The C runtime counts bytes in an unsigned int.
unsigned atMost(std::size_t count) {
    constexpr std::size_t MAX = 1U << 30U;
    return static_cast<unsigned>(std::min(count, MAX));
}

} // namespace

namespace own {

Handle open(const fs::path& path, OpenMode mode) {
    constexpr int MAY_WRITE = 2;
    // Ask for the read-only flag as well: an administrator may open such a file for writing.
    if (mode == OpenMode::Write && ::_waccess(path.c_str(), MAY_WRITE) != 0)
        return -1;
    const int flags = flagsOf(mode) | _O_BINARY | _O_NOINHERIT;
    return patiently([&] { return ::_wopen(path.c_str(), flags, _S_IREAD | _S_IWRITE); });
}

std::ptrdiff_t read(Handle file, std::span<Bajt> bytes) {
    return ::_read(file, bytes.data(), atMost(bytes.size()));
}

std::ptrdiff_t write(Handle file, std::span<const Bajt> bytes) {
    return ::_write(file, bytes.data(), atMost(bytes.size()));
}

int flush(Handle file) {
    return ::_commit(file);
}

int close(Handle file) {
    return ::_close(file);
}

int stat(const fs::path& path, FileInfo& info) {
    struct ::_stat64 entry {};
    const int answer = ::_wstat64(path.c_str(), &entry);
    info = {(entry.st_mode & _S_IFMT) == _S_IFREG, fs::perms(entry.st_mode) & fs::perms::mask,
            static_cast<std::uintmax_t>(entry.st_size), std::chrono::system_clock::from_time_t(entry.st_mtime)};
    return answer;
}

int rename(const fs::path& from, const fs::path& to) {
    constexpr ::DWORD FLAGS = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    return patiently([&] { return answerOf(::MoveFileExW(from.c_str(), to.c_str(), FLAGS)); });
}

int remove(const fs::path& path) {
    return patiently([&] { return answerOf(::DeleteFileW(path.c_str())); });
}

// Windows has no call that flushes a folder. None is needed: renaming writes through.
int flushFolder(const fs::path&) {
    return 0;
}

} // namespace own

fs::path ownExecutable() {
    std::wstring name(32768, L'\0'); // the longest path
    name.resize(::GetModuleFileNameW(nullptr, name.data(), static_cast<::DWORD>(name.size())));
    return name;
}

} // namespace dorva
