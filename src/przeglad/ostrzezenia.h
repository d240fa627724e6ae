// What is wrong with a game, in words.
#pragma once

#include "przeglad/gra.h"

#include <array>
#include <set>
#include <string>
#include <vector>

namespace dorva {

// "3, 4, 17"
std::string listed(const std::set<int>& numbers);

// The warnings of each place. A stage that is cleared has none behind the one that is marked as the last.
std::array<std::vector<std::string>, ETAPY_COUNT> listOstrzezenia(const Gra&);

} // namespace dorva
