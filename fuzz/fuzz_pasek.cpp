// A tile strip through the window's own picture hook, then cut into its 128 tiles.
#include "qt/bitmapa_pliku.h"
#include "sprawdz.h"
#include "tiles/magazyn.h"

#include <sys/mman.h>
#include <unistd.h>

#include <string>

using namespace dorva;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const int file = ::memfd_create("pasek", 0);
    static const std::string path = "/proc/self/fd/" + std::to_string(file);
    SPRAWDZ(::ftruncate(file, 0) == 0 && ::pwrite(file, data, size, 0) == static_cast<::ssize_t>(size));
    const auto strip = loadBitmapa(path, PASEK_WIDTH, OBRAZ_SIDE);
    if (!strip)
        return 0;
    SPRAWDZ(strip->isWhole() && strip->width <= PASEK_WIDTH && strip->height <= OBRAZ_SIDE);
    for (int position = 0; position < PASEK_TILES; ++position)
        (void)cutTile(*strip, position);
    return 0;
}
