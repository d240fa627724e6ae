// Builds the whole game, or a game of the current stage alone.
#pragma once

#include "edytor.h"

namespace dorva {

void cmdCreate_Click(Edytor&);
void cmdTest_Click(Edytor&);

} // namespace dorva
