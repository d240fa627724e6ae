// The system calls that the file layer is made of, as a table: a test puts its own in their place.
#pragma once

#include <cstddef>
#include <dirent.h>
#include <sys/stat.h>
#include <sys/types.h>

namespace dorva {

// Each answers as its POSIX namesake.
struct SystemPlikow {
    int (*open)(const char* path, int flags, ::mode_t mode);
    ::ssize_t (*read)(int file, void* bytes, std::size_t count);
    ::ssize_t (*write)(int file, const void* bytes, std::size_t count);
    int (*fsync)(int file);
    int (*close)(int file);
    int (*rename)(const char* from, const char* to);
    int (*link)(const char* from, const char* to);
    int (*unlink)(const char* path);
    int (*stat)(const char* path, struct ::stat* info);
    int (*lstat)(const char* path, struct ::stat* info);
    int (*fstat)(int file, struct ::stat* info);
    int (*fchmod)(int file, ::mode_t mode);
    ::ssize_t (*readlink)(const char* path, char* target, std::size_t count);
    ::DIR* (*opendir)(const char* path);
    ::dirent* (*readdir)(::DIR* folder);
    int (*closedir)(::DIR* folder);
};

} // namespace dorva
