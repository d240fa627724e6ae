#include "system/proces.h"
#include "system/system_own.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <span>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace dorva {
namespace {

namespace fs = std::filesystem;

constexpr ::mode_t NEW_FILE_MODE = 0666;

constexpr int flagsOf(OpenMode mode) {
    switch (mode) {
    case OpenMode::Read:
        return O_RDONLY;
    case OpenMode::Write:
        return O_WRONLY;
    case OpenMode::Create:
        return O_WRONLY | O_CREAT;
    default:
        return O_WRONLY | O_CREAT | O_EXCL;
    }
}

} // namespace

namespace own {

Handle open(const fs::path& path, OpenMode mode) {
    return ::open(path.c_str(), flagsOf(mode) | O_CLOEXEC, NEW_FILE_MODE);
}

std::ptrdiff_t read(Handle file, std::span<Bajt> bytes) {
    return ::read(file, bytes.data(), bytes.size());
}

std::ptrdiff_t write(Handle file, std::span<const Bajt> bytes) {
    return ::write(file, bytes.data(), bytes.size());
}

int flush(Handle file) {
    return ::fsync(file);
}

int close(Handle file) {
    return ::close(file);
}

int stat(const fs::path& path, FileInfo& info) {
    struct ::stat entry {};
    const int answer = ::stat(path.c_str(), &entry);
    info = {S_ISREG(entry.st_mode), fs::perms(entry.st_mode) & fs::perms::mask,
            static_cast<std::uintmax_t>(entry.st_size), std::chrono::system_clock::from_time_t(entry.st_mtime)};
    return answer;
}

int rename(const fs::path& from, const fs::path& to) {
    return std::rename(from.c_str(), to.c_str());
}

int remove(const fs::path& path) {
    return ::unlink(path.c_str());
}

int flushFolder(const fs::path& path) {
    const Handle folder = open(path, OpenMode::Read);
    if (folder == -1)
        return -1;
    const int answer = flush(folder);
    close(folder);
    return answer;
}

} // namespace own

fs::path ownExecutable() {
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error);
}

} // namespace dorva
