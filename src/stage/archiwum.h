// The archive: the title lines and all stages in one file.
#pragma once

#include "edytor.h"
#include "stage/autor_gry.h"

#include <cstddef>

namespace dorva {

inline constexpr std::size_t ARCHIWUM_SIZE_BYTES = AUTOR_GRY_SIZE_BYTES + ETAPY_COUNT * ETAP_SIZE_BYTES;
static_assert(ARCHIWUM_SIZE_BYTES == 29852);

void cmdSaveArch_Click(Edytor&);
void cmdLoadArch_Click(Edytor&);

} // namespace dorva
