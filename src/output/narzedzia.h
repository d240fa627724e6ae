// Programs that stand beside the editor.
#pragma once

#include "edytor.h"

namespace dorva {

// Starts the emulator launcher, hidden; nothing waits for it.
void RunEmulator(Edytor&);

// Starts the companion tile editor.
void cmdORN_Click(Edytor&);

} // namespace dorva
