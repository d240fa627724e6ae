#include "tiles/zestaw.h"

#include "board/plansza.h"
#include "sciezki.h"
#include "system/pliki.h"
#include "tiles/kolory.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

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

// The files "*.ND" of a folder, sorted. Hidden ones are left out: some systems leave a "._NAME" beside each file on a
// memory stick.
std::vector<std::filesystem::path> listZestawy(const Edytor& e, const std::filesystem::path& folder) {
    static const auto end = std::filesystem::path(".ND").native();
    auto names = listNames(*e.system, folder, "");
    std::erase_if(names, [&](const std::filesystem::path& name) {
        return name.native().starts_with('.') || !comparable(name).ends_with(end) ||
               !lengthOf(*e.system, folder / name);
    });
    std::ranges::sort(names, {}, comparable);
    return names;
}

std::optional<Bitmapa> loadStrip(const Edytor& e, const std::filesystem::path& path) {
    auto strip = askPicture(e.haki, path, PASEK_WIDTH, OBRAZ_SIDE);
    return strip && strip->isWhole() ? std::move(strip) : std::nullopt;
}

void cutStrip(Magazyn& frmZestawy, const Bitmapa& picTiles, Swiat swiat) {
    for (StripPosition position = 0; position < PASEK_TILES; ++position)
        frmZestawy.imgZnak[swiat][kodOfPosition(position)] =
            std::make_shared<const ZnakObraz>(cutTile(picTiles, position));
    ++frmZestawy.wersja;
}

} // namespace

bool ScanZestawy(Edytor& e) {
    const auto folder = e.KatalogBazowy / sciezki::EKSPORT;
    const auto names = listZestawy(e, folder);
    const int count = names.size();
    for (Swiat swiat = 0; swiat < SWIATY_COUNT; ++swiat) {
        // Only the last world may be without a tile set.
        if (swiat > count)
            return false;
        if (swiat < count)
            LoadZestaw(e, folder / names[swiat], swiat);
    }
    return true;
}

void LoadZestaw(Edytor& e, const std::filesystem::path& path, Swiat swiat) {
    auto stripPath = path;
    stripPath += ".TILES.BMP";
    const auto picTiles = loadStrip(e, stripPath);
    if (!picTiles)
        return;
    cutStrip(e.frmZestawy, *picTiles, swiat);

    if (!readOrCreateKolory(e, swiat))
        return;
    if (swiat != e.BiezacySwiat)
        return;
    showDomyslne(e, swiat, KOLORY_FIRST_SLOT, KOLORY_FIRST_SLOT + KOLORY_SIZE_BYTES - 1);
}

void ShowZestaw(Edytor& e, Swiat swiat) {
    Okno& okno = e.okno;
    const std::int8_t s = swiat;
    showWybor(okno, swiat, okno.optNN);
    okno.imgBufor.obraz = {s, okno.imgBufor.znak};
    for (PokazanyZnak& cell : okno.imgPG)
        cell.obraz = {s, cell.znak};
    for (int k = 0; k < info::IKONY_COUNT; ++k)
        okno.imgInfo[k] = okno.imgZnak[kod(ZNAKI_INFO[k])].obraz;
    e.BiezacySwiat = swiat;
}

bool SelectObiektyNR(Edytor& e, Swiat swiat) {
    if (swiat < 0 || swiat >= SWIATY_COUNT)
        return false;
    if (swiat == e.okno.optObiektyNR)
        return true;
    e.okno.optObiektyNR = swiat;
    optObiektyNR_Click(e, swiat);
    return true;
}

void optObiektyNR_Click(Edytor& e, int index) {
    ShowZestaw(e, index);
}

void cmdReload_Click(Edytor& e) {
    if (!ScanZestawy(e))
        return;
    for (Swiat swiat = 0; swiat < SWIATY_COUNT; ++swiat)
        LoadKolory(e, swiat);
    ShowZestaw(e, e.okno.optObiektyNR);
}

} // namespace dorva
