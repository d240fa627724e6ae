// Where a whole game is read from. Nothing is created or changed there.
#pragma once

#include "przeglad/gra.h"
#include "system/system_calls.h"

#include <filesystem>
#include <optional>
#include <span>
#include <string>

namespace dorva {

// The working set below a folder. A file that is missing or too short gives a card that says so, and title lines as the
// editor would show them.
Gra readZestaw(const SystemCalls&, const std::filesystem::path& folder);

// The game in an archive or in a built game file. The lines of a game file come back trimmed and filled up. Nothing for
// bytes that are neither: of a built game each title line is one that the editor makes.
std::optional<Gra> parseArchiwum(std::span<const Bajt>);
std::optional<Gra> parseGra(std::span<const Bajt>);

struct Odczyt {
    std::optional<Gra> gra;
    std::string dlaczego; // a sentence, if there is none
};

// Reads a game from whatever is at the path: a folder with a working set, an archive, a game file.
Odczyt readZrodlo(const SystemCalls&, const std::filesystem::path&);

} // namespace dorva
