// A file system that fails at the N-th call, once or from then on.
#pragma once

#include "system/system_plikow.h"

#include <algorithm>
#include <type_traits>

namespace dorva::test {

struct Awaria {
    static constexpr Wynik SHORT = Wynik::Ok; // no failure: reads and writes move half of what they were asked to
    int at = 0;                               // the failing call, counted from 1; 0: none
    Wynik error = Wynik::Blad;
    bool forGood = false;
    int calls = 0;
    bool removeFailed = false;

    [[nodiscard]] bool strikes() { return ++calls == at || (forGood && at > 0 && calls > at); }
};

inline Awaria awaria;

template <auto Call, auto Other> constexpr bool isCall() {
    if constexpr (std::is_same_v<decltype(Call), decltype(Other)>)
        return Call == Other;
    return false;
}

template <auto Call> struct Zawodny;
template <class... Args, Wynik (*SystemPlikow::*Call)(Args...)> struct Zawodny<Call> {
    static Wynik call(Args... args) {
        if (!awaria.strikes() || awaria.error == Awaria::SHORT)
            return (SYSTEM_PLIKOW.*Call)(args...);
        if constexpr (isCall<Call, &SystemPlikow::close>())
            (void)(SYSTEM_PLIKOW.*Call)(args...);
        if constexpr (isCall<Call, &SystemPlikow::remove>())
            awaria.removeFailed = true;
        return awaria.error;
    }
};

template <auto Call> Wynik zawodnyTransfer(Uchwyt file, auto bytes, std::size_t& count) {
    if (!awaria.strikes())
        return (SYSTEM_PLIKOW.*Call)(file, bytes, count);
    const auto half = bytes.first(std::max<std::size_t>(1, bytes.size() / 2));
    if (awaria.error == Awaria::SHORT)
        return (SYSTEM_PLIKOW.*Call)(file, half, count);
    if (bytes.size() > 1) // a disk that fills up in the midst of a write
        (void)(SYSTEM_PLIKOW.*Call)(file, half, count);
    return awaria.error;
}

// The table whose calls fail as `awaria` says. It doesn't flush: no test here cuts the power.
inline const SystemPlikow* zawodnySystem() {
    static const SystemPlikow system{
        .open = Zawodny<&SystemPlikow::open>::call,
        .read = zawodnyTransfer<&SystemPlikow::read>,
        .write = zawodnyTransfer<&SystemPlikow::write>,
        .flush = [](Uchwyt) { return awaria.strikes() ? awaria.error : Wynik::Ok; },
        .close = Zawodny<&SystemPlikow::close>::call,
        .describe = Zawodny<&SystemPlikow::describe>::call,
        .setMode = Zawodny<&SystemPlikow::setMode>::call,
        .stat = Zawodny<&SystemPlikow::stat>::call,
        .lstat = Zawodny<&SystemPlikow::lstat>::call,
        .readLink = Zawodny<&SystemPlikow::readLink>::call,
        .rename = Zawodny<&SystemPlikow::rename>::call,
        .link = Zawodny<&SystemPlikow::link>::call,
        .remove = Zawodny<&SystemPlikow::remove>::call,
        .flushFolder = [](const SystemPlikow::Sciezka&) { return awaria.strikes() ? awaria.error : Wynik::Ok; },
        .list = Zawodny<&SystemPlikow::list>::call,
    };
    return &system;
}

} // namespace dorva::test
