// The buffer: the tile that the left button paints.
#pragma once

#include "edytor.h"

namespace dorva {

// Code, picture and the two texts, always set together.
void SetBufor(Edytor&, const PokazanyZnak&);

} // namespace dorva
