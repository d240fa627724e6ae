// The working set on disk: 32 stage files, the title lines, single stages anywhere.
#pragma once

#include "edytor.h"

#include <array>

namespace dorva {

inline constexpr std::size_t AUTOR_GRY_SIZE_BYTES = 3 * LINIA_WIDTH;

// "<KatalogBazowy>/ETAPY/DETAP.<number>"
std::filesystem::path etapPath(const Edytor&, int number);
std::filesystem::path autorGryPath(const Edytor&);

// Selects a stage button as a click does; nothing if it is selected already.
void SelectEtapNR(Edytor&, int index);
void optEtapNR_Click(Edytor&, int index);

void cmdLoad_Click(Edytor&);
void cmdSave_Click(Edytor&);
void cmdCzysc_Click(Edytor&);

// A frame of walls around a field of earth, goal 1, blank texts. No file is touched.
void ClearEtap(Edytor&);

// Writes the image buffer to the current stage's file. A file that the editor has not taken over whole
// is kept aside first.
[[nodiscard]] bool writeBiezacyEtap(Edytor&);

// The three title lines, 60 bytes, to DP1.DTA; boxes shorter than their width are brought to it.
[[nodiscard]] bool writeAutorGry(Edytor&);
Bajty autorGryBytes(Edytor&);

// Reads stage `number` (its first 931 bytes) into the image buffer and unpacks it.
[[nodiscard]] bool readEtap(Edytor&, int number);

// Reads the images of all 32 stages, in order; nothing at the first that fails.
std::optional<std::array<Bajty, ETAPY_COUNT>> readAllEtapy(Edytor&);

// Asks for a file to save to and, if it exists, whether to replace it. Sets OstatniaSciezka.
std::optional<std::filesystem::path> askSavePath(Edytor&, const DialogPliku&);

// Writes a file that the user has named. Where it is one of the editor's own, what it now holds counts as
// not taken over.
[[nodiscard]] bool writeChosen(Edytor&, const std::filesystem::path&, std::span<const Bajt> bytes);

} // namespace dorva
