#include "tiles/paski.h"

#include "sciezki.h"
#include "system/pliki.h"

#include <algorithm>
#include <memory>

namespace dorva {
namespace {

// On Windows the case of a name doesn't count, neither for the ending nor for the order.
constexpr bool IGNORES_CASE = std::filesystem::path::preferred_separator != '/';

std::filesystem::path::string_type comparable(const std::filesystem::path& name) {
    auto text = name.native();
    if (IGNORES_CASE)
        for (auto& c : text)
            c -= c >= 'a' && c <= 'z' ? 'a' - 'A' : 0;
    return text;
}

void cutStrip(Magazyn& frmZestawy, const Bitmapa& picTiles, Swiat swiat) {
    for (StripPosition position = 0; position < PASEK_TILES; ++position)
        frmZestawy.imgZnak[swiat][kodOfPosition(position)] =
            std::make_shared<const ZnakObraz>(cutTile(picTiles, position));
    ++frmZestawy.wersja;
}

} // namespace

// The files are "*.ND". Hidden ones are left out: some systems leave a "._NAME" beside each file on a memory stick.
std::vector<std::filesystem::path> listZestawy(const SystemCalls& system, const std::filesystem::path& base) {
    static const auto end = std::filesystem::path(".ND").native();
    const auto folder = base / sciezki::EKSPORT;
    auto names = listNames(system, folder, "");
    std::erase_if(names, [&](const std::filesystem::path& name) {
        return name.native().starts_with('.') || !comparable(name).ends_with(end) || !lengthOf(system, folder / name);
    });
    std::ranges::sort(names, {}, comparable);
    for (auto& name : names)
        name = folder / name;
    return names;
}

bool loadPasek(Magazyn& frmZestawy, const Haki& haki, const std::filesystem::path& zestaw, Swiat swiat) {
    auto path = zestaw;
    path += ".TILES.BMP";
    const auto picTiles = askPicture(haki, path, PASEK_WIDTH, OBRAZ_SIDE);
    if (!picTiles)
        return false;
    cutStrip(frmZestawy, *picTiles, swiat);
    return true;
}

} // namespace dorva
