// Programs that stand beside the editor.
#pragma once

#include "edytor.h"

namespace dorva {

// Starts the launcher of the emulator, hidden, and doesn't wait for it.
void RunEmulator(Edytor&);

// Starts the companion tile editor.
void cmdORN_Click(Edytor&);

} // namespace dorva
