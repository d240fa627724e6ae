// Filling the buffer.
#pragma once

#include "edytor.h"

namespace dorva {

// Code, picture and the two texts, always set together.
void SetBufor(Edytor&, const Bufor&);

} // namespace dorva
