#include "system/system_calls.h"

#include "system/system_own.h"

#include <cerrno>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <span>
#include <system_error>
#include <vector>

namespace dorva {
namespace {

namespace fs = std::filesystem;

Result resultOf(const std::error_code& error) {
    if (!error)
        return Result::Ok;
    if (error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory)
        return Result::Missing;
    return error == std::errc::file_exists ? Result::Taken : Result::Error;
}

// Repeats a call that was interrupted by a signal.
template <typename Call> auto uninterrupted(Call call) {
    for (;;)
        if (const auto answer = call(); answer != -1 || errno != EINTR)
            return answer;
}

template <typename Call> Result done(Call call) {
    return uninterrupted(call) == -1 ? resultOf({errno, std::generic_category()}) : Result::Ok;
}

Result open(const fs::path& path, OpenMode mode, Handle& file) {
    return done([&] { return file = own::open(path, mode); });
}

template <auto call, typename Bytes> Result transfer(Handle file, Bytes bytes, std::size_t& count) {
    return done([&] {
        const std::ptrdiff_t moved = call(file, bytes);
        count = moved < 0 ? 0 : moved;
        return moved;
    });
}

Result readLink(const fs::path& path, fs::path& target) {
    std::error_code error;
    const fs::file_status status = fs::symlink_status(path, error);
    if (status.type() == fs::file_type::symlink)
        target = fs::read_symlink(path, error);
    else if (!error)
        return Result::Missing;
    return resultOf(error);
}

Result isSame(const fs::path& one, const fs::path& other, bool& same) {
    std::error_code error;
    same = fs::equivalent(one, other, error);
    return resultOf(error);
}

Result setMode(const fs::path& path, fs::perms mode) {
    std::error_code error;
    fs::permissions(path, mode, error);
    return resultOf(error);
}

Result makeFolder(const fs::path& path) {
    std::error_code error;
    const bool made = fs::create_directory(path, error);
    return made || error ? resultOf(error) : Result::Taken;
}

Result list(const fs::path& folder, std::vector<fs::path>& names) {
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error))
        names.push_back(at->path().filename());
    return resultOf(error);
}

} // namespace

const SystemCalls SYSTEM_CALLS{
    .open = open,
    .read = transfer<own::read, std::span<Bajt>>,
    .write = transfer<own::write, std::span<const Bajt>>,
    .flush = [](Handle file) { return done([=] { return own::flush(file); }); },
    .close = [](Handle file) { return own::close(file) == 0 || errno == EINTR ? Result::Ok : Result::Error; },
    .stat = [](const fs::path& path, FileInfo& info) { return done([&] { return own::stat(path, info); }); },
    .readLink = readLink,
    .isSame = isSame,
    .setMode = setMode,
    .rename = [](const fs::path& from, const fs::path& to) { return done([&] { return own::rename(from, to); }); },
    .remove = [](const fs::path& path) { return done([&] { return own::remove(path); }); },
    .makeFolder = makeFolder,
    .flushFolder = [](const fs::path& path) { return done([&] { return own::flushFolder(path); }); },
    .list = list,
    .now = std::chrono::system_clock::now,
};

} // namespace dorva
