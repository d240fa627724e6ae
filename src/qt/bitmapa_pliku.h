// Windows bitmap files.
#pragma once

#include "system/bitmapa.h"

#include <filesystem>
#include <optional>

namespace dorva {

// The top left `width` x `height` pixels of a bitmap file, or as many as it has. An alpha channel that is zero
// everywhere counts as none. Nothing if the file is missing, no bitmap, cut short, or of an absurd size (over 64
// MiB, or more than 16.7 million pixels).
std::optional<Bitmapa> loadBitmapa(const std::filesystem::path&, int width, int height);

} // namespace dorva
