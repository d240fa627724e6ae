// Bytes, and the counts and limits that several records share.
#pragma once

#include <cstdint>
#include <vector>

namespace dorva {

using Bajt = std::uint8_t;
using Bajty = std::vector<Bajt>;

inline constexpr int ETAPY_COUNT = 32;
inline constexpr int SWIATY_COUNT = 3;
using Swiat = int;                     // one of the three worlds of the game, 0..2
inline constexpr int SLOTY_COUNT = 12; // colour registers

inline constexpr int CEL_MIN = 1, CEL_MAX = 99; // limits of the mask goal
inline constexpr int OSTATNI_MAX = 2;           // the last-stage box: empty, checked, half checked

} // namespace dorva
