// A file system in memory behind the file layer's table of calls, so that a fuzzer need not wait for a
// disk. One call can be made to fail.
#pragma once

#include "podstawy.h"
#include "system/system_plikow.h"

#include <cerrno>
#include <fcntl.h>
#include <map>
#include <memory>

namespace dorva::fuzz {

struct Pamiec {
    struct Otwarty {
        std::shared_ptr<Bajty> plik;
        std::size_t at = 0;
    };
    std::map<std::string, std::shared_ptr<Bajty>, std::less<>> pliki;
    std::vector<Otwarty> otwarte;
    int failAt = 0; // the failing call, counted down from now; 0: none

    int fails() { return failAt > 0 && --failAt == 0 ? (errno = EIO, -1) : 0; }
    std::shared_ptr<Bajty> find(const char* path) {
        const auto found = pliki.find(std::string_view(path));
        return found == pliki.end() ? nullptr : found->second;
    }
    void put(const std::string& path, Bajty bytes) { pliki[path] = std::make_shared<Bajty>(std::move(bytes)); }
};

inline Pamiec pamiec;

inline int describe(const std::shared_ptr<Bajty>& plik, struct ::stat* info) {
    if (!plik)
        return errno = ENOENT, -1;
    *info = {};
    info->st_mode = S_IFREG | 0644;
    info->st_size = static_cast<::off_t>(plik->size());
    info->st_ino = reinterpret_cast<::ino_t>(plik.get());
    return 0;
}

inline int statPath(const char* path, struct ::stat* info) {
    return pamiec.fails() ? -1 : describe(pamiec.find(path), info);
}

inline int openPath(const char* path, int flags, ::mode_t) {
    if (pamiec.fails())
        return -1;
    auto plik = pamiec.find(path);
    if (!plik && (flags & O_DIRECTORY) == 0) {
        if ((flags & O_CREAT) == 0)
            return errno = ENOENT, -1;
        plik = pamiec.pliki[path] = std::make_shared<Bajty>();
    }
    pamiec.otwarte.push_back({plik});
    return static_cast<int>(pamiec.otwarte.size()) - 1;
}

inline ::ssize_t readFile(int file, void* bytes, std::size_t count) {
    if (pamiec.fails())
        return -1;
    auto& [plik, at] = pamiec.otwarte[static_cast<std::size_t>(file)];
    count = std::min(count, plik->size() - at);
    std::copy_n(plik->begin() + static_cast<std::ptrdiff_t>(at), count, static_cast<Bajt*>(bytes));
    at += count;
    return static_cast<::ssize_t>(count);
}

inline ::ssize_t writeFile(int file, const void* bytes, std::size_t count) {
    if (pamiec.fails())
        return -1;
    Bajty& plik = *pamiec.otwarte[static_cast<std::size_t>(file)].plik;
    plik.insert(plik.end(), static_cast<const Bajt*>(bytes), static_cast<const Bajt*>(bytes) + count);
    return static_cast<::ssize_t>(count);
}

inline int moveName(const char* from, const char* to) {
    if (pamiec.fails())
        return -1;
    pamiec.pliki[to] = pamiec.find(from);
    pamiec.pliki.erase(from);
    return 0;
}

inline int linkName(const char* from, const char* to) {
    if (pamiec.fails())
        return -1;
    pamiec.pliki[to] = pamiec.find(from);
    return 0;
}

inline int removeName(const char* path) {
    if (pamiec.fails())
        return -1;
    return pamiec.pliki.erase(path) == 1 ? 0 : (errno = ENOENT, -1);
}

inline const SystemPlikow* systemPamieci() {
    static const SystemPlikow system{
        .open = openPath,
        .read = readFile,
        .write = writeFile,
        .fsync = [](int) { return pamiec.fails(); },
        .close =
            [](int file) {
                if (file + 1 == static_cast<int>(pamiec.otwarte.size()))
                    pamiec.otwarte.pop_back();
                return pamiec.fails();
            },
        .rename = moveName,
        .link = linkName,
        .unlink = removeName,
        .stat = statPath,
        .lstat = statPath,
        .fstat =
            [](int file, struct ::stat* info) {
                return pamiec.fails() ? -1 : describe(pamiec.otwarte[static_cast<std::size_t>(file)].plik, info);
            },
        .fchmod = [](int, ::mode_t) { return pamiec.fails(); },
        .readlink = [](const char*, char*, std::size_t) -> ::ssize_t { return errno = EINVAL, -1; },
        .opendir = [](const char*) -> ::DIR* { return errno = ENOENT, nullptr; },
        .readdir = [](::DIR*) -> ::dirent* { return nullptr; },
        .closedir = [](::DIR*) { return 0; },
    };
    return &system;
}

} // namespace dorva::fuzz
