// A check that ends a fuzzer's run.
#pragma once

#include <cstdio>
#include <cstdlib>

#define SPRAWDZ(condition)                                                                                             \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            std::fprintf(stderr, "%s:%d: %s\n", __FILE__, __LINE__, #condition);                                       \
            std::abort();                                                                                              \
        }                                                                                                              \
    } while (false)
