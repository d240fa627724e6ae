// Copies of what the screen holds, made before something replaces it. If one can't be made, work goes on without it,
// unlike the copy of a file before a write.
#pragma once

#include "edytor.h"

namespace dorva {

// Copies the stage on the screen, as it would be stored, unless its file holds exactly these bytes.
void keepEtap(const Edytor&);

// Does the same for the stage and the title lines, but not more often than every five minutes. It runs before each
// operation of the window, so that a power cut costs five minutes of work at most.
void keepWork(Edytor&);

// Removes the oldest copies of each stage, of the title lines and of whole games where there are more than 200.
void trimKopie(const Edytor&);

} // namespace dorva
