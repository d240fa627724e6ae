// The stage set: 32 stage files, written back without asking, and single stages anywhere.
#pragma once

#include "edytor.h"

#include <array>
#include <optional>

namespace dorva {

// Selects a stage button as a click does; nothing if it is selected already.
void SelectEtapNR(Edytor&, int index);
void optEtapNR_Click(Edytor&, int index);

void cmdLoad_Click(Edytor&);
void cmdSave_Click(Edytor&);
void cmdCzysc_Click(Edytor&);

// A frame of walls around a field of earth, goal 1, blank texts. No file is touched.
void ClearEtap(Edytor&);

// Writes the image buffer to the current stage's file, once a copy of the old content is made.
[[nodiscard]] bool writeBiezacyEtap(Edytor&);

// Reads the current stage's file (its first 931 bytes) into the image buffer and unpacks it. A missing file is
// created, empty.
[[nodiscard]] bool readOrCreateBiezacyEtap(Edytor&);

// The images of all 32 stages, in order; nothing at the first that fails. A missing file is created, empty.
std::optional<std::array<EtapImage, ETAPY_COUNT>> readOrCreateAllEtapy(const Edytor&);

} // namespace dorva
