// The two builds: the whole game, and the stage on the board alone.
#pragma once

#include "edytor.h"

namespace dorva {

// The game file that both builds write for the emulator.
std::filesystem::path testXexPath(const Edytor&);

void cmdCreate_Click(Edytor&);
void cmdTest_Click(Edytor&);

} // namespace dorva
