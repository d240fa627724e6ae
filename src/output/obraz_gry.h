// The two builds: the whole game, and the stage on the board alone.
#pragma once

#include "edytor.h"

namespace dorva {

void cmdCreate_Click(Edytor&);
void cmdTest_Click(Edytor&);

} // namespace dorva
