// Filling the buffer.
#pragma once

#include "edytor.h"

namespace dorva {

// Sets code, picture and the two texts together.
void SetBufor(Edytor&, const Bufor&);

} // namespace dorva
