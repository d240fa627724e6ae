// The 32 stage files, which are written back without asking, and stages in files that the user names.
#pragma once

#include "edytor.h"

#include <array>
#include <optional>

namespace dorva {

// Stores the current stage and goes to another one; nothing if it is the same.
void SelectEtapNR(Edytor&, int index);
void optEtapNR_Click(Edytor&, int index);

void cmdLoad_Click(Edytor&);
void cmdSave_Click(Edytor&);
void cmdCzysc_Click(Edytor&);

// Clears the stage on the screen: walls, earth, goal 1, blank texts. Touches no file.
void ClearEtap(Edytor&);

// Stores the editor's image as the current stage, after making a copy of the old file.
[[nodiscard]] bool writeBiezacyEtap(Edytor&);

// Loads the current stage: the first 931 bytes of its file. A missing file is created, empty.
[[nodiscard]] bool readOrCreateBiezacyEtap(Edytor&);

// The stored forms of all 32 stages, in order; nothing if one can't be read. A missing file is created, empty.
std::optional<std::array<EtapImage, ETAPY_COUNT>> readOrCreateAllEtapy(const Edytor&);

} // namespace dorva
