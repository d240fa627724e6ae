// The desk on a disk in memory.
#pragma once

#include "memory_disk.h"
#include "pulpit.h"

#include <filesystem>
#include <string>

namespace dorva::test {

// A path on the disk in memory.
inline std::string at(const std::string& name) {
    static const fs::path folder = makeFolder(); // of this run alone
    return (folder / name).generic_string();
}

// Its folder is a real one too, empty, since operations make it the current one.
class DeskInMemory : public Pulpit {
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
