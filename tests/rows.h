// Long tables are compared row by row with text files in tests/expected.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace dorva::test {

// Compares rows with those of tests/expected/<name>. After a wanted change, run the test with DORVA_RENEW=1 in the
// environment: it writes the file anew.
inline void expectRows(const std::string& name, const std::vector<std::string>& rows) {
    const std::string path = DORVA_EXPECTED "/" + name;
    if (std::getenv("DORVA_RENEW")) {
        std::ofstream file(path, std::ios::binary);
        for (const std::string& row : rows)
            file << row << '\n';
    }
    std::vector<std::string> expected;
    std::ifstream file(path, std::ios::binary);
    for (std::string row; std::getline(file, row);)
        expected.push_back(row);
    EXPECT_FALSE(expected.empty()) << path;
    for (std::size_t i = 0; i < std::max(rows.size(), expected.size()); ++i) {
        const std::string was = i < expected.size() ? expected[i] : "(none)", is = i < rows.size() ? rows[i] : "(none)";
        EXPECT_EQ(is, was) << name << ", row " << i + 1;
    }
}

} // namespace dorva::test
