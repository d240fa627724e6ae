// A desk whose files are on a disk in memory.
#pragma once

#include "desk.h"
#include "memory_disk.h"

#include <filesystem>
#include <string>

namespace dorva::test {

// A path on the disk in memory.
inline std::string at(const std::string& name) {
    static const fs::path folder = makeFolder(); // of this run alone
    return (folder / name).generic_string();
}

// There is also a real, empty folder of that name, since operations make it the current one.
class DeskInMemory : public Desk {
protected:
    void SetUp() override {
        calls = memoryCalls();
        root = at("");
        base = at("praca");
        fs::create_directories(base);
        disk = {};
        for (const auto& [name, bytes] : sampleTree())
            disk.put(at("praca/" + name), bytes);
        attach(e);
    }
    void TearDown() override {
        fs::current_path(fs::temp_directory_path());
        std::error_code error;
        fs::remove_all(root, error);
    }
};

} // namespace dorva::test
