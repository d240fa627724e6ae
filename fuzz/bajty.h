// What the fuzzers share: a check that ends the run, and a reader of the given bytes.
#pragma once

#include "stage/tekst.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace dorva::fuzz {

#define SPRAWDZ(condition)                                                                                             \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            std::fprintf(stderr, "%s:%d: %s\n", __FILE__, __LINE__, #condition);                                       \
            std::abort();                                                                                              \
        }                                                                                                              \
    } while (false)

struct Strumien {
    std::span<const Bajt> left;

    [[nodiscard]] bool empty() const { return left.empty(); }
    std::span<const Bajt> take(std::size_t count) {
        const auto taken = left.first(std::min(count, left.size()));
        left = left.subspan(taken.size());
        return taken;
    }
    int byte() {
        const auto taken = take(1);
        return taken.empty() ? 0 : taken[0];
    }
    int below(int limit) { return (byte() << 8 | byte()) % limit; }
    Bajty filled(std::size_t count) {
        const auto taken = take(count);
        Bajty bytes(taken.begin(), taken.end());
        bytes.resize(count, 0);
        return bytes;
    }
};

} // namespace dorva::fuzz
