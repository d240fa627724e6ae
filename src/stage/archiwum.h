// Saving and loading an archive.
#pragma once

#include "edytor.h"
#include "stage/archiwum_image.h"

namespace dorva {

void cmdSaveArch_Click(Edytor&);
void cmdLoadArch_Click(Edytor&);

} // namespace dorva
