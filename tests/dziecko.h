// This program once more, as a process of its own that works until it is killed. One file a system starts it.
#pragma once

#include <cstdint>

namespace dorva::test {

inline constexpr const char* PISZ = "--pisz"; // the argument before the seed

// What the process does: it writes, with choices that depend on the seed, and never comes back.
[[noreturn]] void workUntilKilled(unsigned seed);

class Dziecko {
public:
    // Starts in the current folder.
    explicit Dziecko(unsigned seed);
    // Kills it without a warning.
    ~Dziecko();
    Dziecko(const Dziecko&) = delete;
    Dziecko& operator=(const Dziecko&) = delete;

private:
    std::intptr_t process_;
};

} // namespace dorva::test
