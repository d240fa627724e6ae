// A file system that fails at the N-th call, once or from then on.
#pragma once

#include "system/pliki.h"
#include "system/system_plikow.h"

#include <algorithm>
#include <cerrno>

namespace dorva::test {

struct Awaria {
    static constexpr int SHORT = -1; // no error: reads and writes move half of what they were asked to
    int at = 0;                      // the failing call, counted from 1; 0: none
    int error = 0;                   // an errno, or SHORT
    bool forGood = false;
    int calls = 0;
    bool unlinkFailed = false;

    [[nodiscard]] bool strikes() { return ++calls == at || (forGood && at > 0 && calls > at); }
};

inline Awaria awaria;

template <auto Call, auto Other> constexpr bool isCall() {
    if constexpr (std::is_same_v<decltype(Call), decltype(Other)>)
        return Call == Other;
    return false;
}

template <auto Call> struct Zawodny;
template <class Result, class... Args, Result (*SystemPlikow::*Call)(Args...)> struct Zawodny<Call> {
    static Result call(Args... args) {
        if (!awaria.strikes() || awaria.error == Awaria::SHORT)
            return (SYSTEM_PLIKOW.*Call)(args...);
        if constexpr (isCall<Call, &SystemPlikow::close>() || isCall<Call, &SystemPlikow::closedir>())
            (SYSTEM_PLIKOW.*Call)(args...);
        if constexpr (isCall<Call, &SystemPlikow::unlink>())
            awaria.unlinkFailed = true;
        errno = awaria.error;
        if constexpr (std::is_pointer_v<Result>)
            return nullptr;
        else
            return Result{-1};
    }
};

template <auto Call>::ssize_t zawodnyTransfer(int file, auto bytes, std::size_t count) {
    if (!awaria.strikes())
        return (SYSTEM_PLIKOW.*Call)(file, bytes, count);
    if (awaria.error == Awaria::SHORT)
        return (SYSTEM_PLIKOW.*Call)(file, bytes, std::max<std::size_t>(1, count / 2));
    if (count > 1) // a disk that fills up in the midst of a write
        (void)(SYSTEM_PLIKOW.*Call)(file, bytes, count / 2);
    errno = awaria.error;
    return -1;
}

// The table whose calls fail as `awaria` says. It doesn't flush: no test here cuts the power.
inline const SystemPlikow* zawodnySystem() {
    static const SystemPlikow system{
        .open = Zawodny<&SystemPlikow::open>::call,
        .read = zawodnyTransfer<&SystemPlikow::read>,
        .write = zawodnyTransfer<&SystemPlikow::write>,
        .fsync = [](int) { return awaria.strikes() && awaria.error != Awaria::SHORT ? (errno = awaria.error, -1) : 0; },
        .close = Zawodny<&SystemPlikow::close>::call,
        .rename = Zawodny<&SystemPlikow::rename>::call,
        .link = Zawodny<&SystemPlikow::link>::call,
        .unlink = Zawodny<&SystemPlikow::unlink>::call,
        .stat = Zawodny<&SystemPlikow::stat>::call,
        .lstat = Zawodny<&SystemPlikow::lstat>::call,
        .fstat = Zawodny<&SystemPlikow::fstat>::call,
        .fchmod = Zawodny<&SystemPlikow::fchmod>::call,
        .readlink = Zawodny<&SystemPlikow::readlink>::call,
        .opendir = Zawodny<&SystemPlikow::opendir>::call,
        .readdir = Zawodny<&SystemPlikow::readdir>::call,
        .closedir = Zawodny<&SystemPlikow::closedir>::call,
    };
    return &system;
}

} // namespace dorva::test
