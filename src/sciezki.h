// Where the data files stand below the base folder.
#pragma once

#include "podstawy.h"

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace dorva::sciezki {

inline constexpr std::string_view AUTOR_GRY = "PLIKI/DP1.DTA";
inline constexpr std::string_view ARCHIWUM = "ETAPY/DPArchiwum"; // never written itself; names copies of whole games
inline constexpr std::string_view ARCHIWUM_ENDING = ".dpa";
inline constexpr std::string_view SZABLON_GRY = "PLIKI/DP2.DTA";
inline constexpr std::string_view EMULATOR = "PLIKI/DP3.BAT"; // the launcher
inline constexpr std::string_view TEST_XEX = "PLIKI/TEST.XEX";
inline constexpr std::string_view PALETA = "PLIKI/PALETY/Bitwor.act";
inline constexpr std::string_view ORN = "OBIEKTY/ORN.exe";
inline constexpr std::string_view EKSPORT = "OBIEKTY/ORN_EXPORT";

// The colour files, by world. Their names are fixed, whatever the tile sets are called.
inline constexpr std::array<std::string_view, SWIATY_COUNT> KOLORY{"OBIEKTY/ORN_EXPORT/FNT01.ORN.ND.KOLORY",
                                                                   "OBIEKTY/ORN_EXPORT/FNT11.ORN.ND.KOLORY",
                                                                   "OBIEKTY/ORN_EXPORT/FNT21.ORN.ND.KOLORY"};

// The name of a stage's file, `number` 1..32.
inline std::string nazwaEtapu(int number) {
    return "DETAP." + std::to_string(number);
}

inline std::filesystem::path etap(const std::filesystem::path& base, int number) {
    return base / "ETAPY" / nazwaEtapu(number);
}

// The files that the editor writes back by itself: the title lines, the 32 stages.
inline std::vector<std::filesystem::path> zestawRoboczy(const std::filesystem::path& base) {
    std::vector<std::filesystem::path> files{base / AUTOR_GRY};
    for (int number = 1; number <= ETAPY_COUNT; ++number)
        files.push_back(etap(base, number));
    return files;
}

} // namespace dorva::sciezki
