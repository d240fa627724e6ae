// What is written of a game, and where nothing may be written.
#pragma once

#include "przeglad/gra.h"
#include "system/system_calls.h"

#include <filesystem>

namespace dorva {

// The stage of a new editor: what stands for a missing one.
EtapImage firstEtap();

// The archive, 29852 bytes.
Bajty archiwumOf(const Gra&);

// True for what belongs to the working set below `base`: whatever lies in ETAPY or PLIKI, however its path is spelled,
// and the files of the set under other names.
bool isInZestaw(const SystemCalls&, const std::filesystem::path& base, const std::filesystem::path& target);

} // namespace dorva
