// The tests; or, started by one of them, a process that writes until it is killed.
#include "dziecko.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

int main(int argc, char** argv) {
    if (argc == 3 && std::string_view(argv[1]) == dorva::test::PISZ)
        dorva::test::workUntilKilled(static_cast<unsigned>(std::stoul(argv[2])));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
