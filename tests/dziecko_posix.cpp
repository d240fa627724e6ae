#include "dziecko.h"

#include <csignal>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace dorva::test {

Dziecko::Dziecko(unsigned seed) : process_(::fork()) {
    if (process_ == 0) {
        const std::string number = std::to_string(seed);
        ::execl("/proc/self/exe", "dorva_tests", PISZ, number.c_str(), nullptr);
        ::_exit(127);
    }
}

Dziecko::~Dziecko() {
    ::kill(static_cast<::pid_t>(process_), SIGKILL);
    ::waitpid(static_cast<::pid_t>(process_), nullptr, 0);
}

} // namespace dorva::test
