// What the screen holds, copied before something replaces it. A copy that can't be made is done without: unlike the
// copy of a file before a write, it holds nothing up.
#pragma once

#include "edytor.h"

namespace dorva {

// Copies the stage on the screen, as it would be stored, unless its file holds these very bytes.
void keepEtap(const Edytor&);

// Does so for the stage and the title lines if five minutes have passed since it last did. Run before each operation of
// the window, so that a power cut costs five minutes of work at most.
void keepWork(Edytor&);

// Removes the oldest copies of the stages, the title lines and the whole games where there are more than 200.
void trimKopie(const Edytor&);

} // namespace dorva
