#include "stage/zapis_jako.h"

#include "sciezki.h"
#include "shell/komunikaty.h"
#include "system/pliki.h"

#include <algorithm>
#include <array>

namespace dorva {

std::optional<std::filesystem::path> askSavePath(Edytor& e, const DialogPliku& dialog) {
    auto path = askSave(e.haki, dialog);
    if (!path)
        return std::nullopt;
    if (fileExists(*e.system, *path) && !askMessage(e.haki, komunikaty::ZASTAPIC))
        return std::nullopt;
    e.OstatniaSciezka = *path;
    return path;
}

bool writeChosen(Edytor& e, const std::filesystem::path& path, std::span<const Bajt> bytes) {
    sweepTemporary(*e.system, std::array{path});
    if (!writeWhole(*e.system, path, bytes))
        return false;
    if (isSameFile(*e.system, path, sciezki::etap(e.KatalogBazowy, e.NumerEtapu)))
        e.znanyEtap = std::ranges::equal(bytes, e.image) ? std::optional(e.image) : std::nullopt;
    if (isSameFile(*e.system, path, e.KatalogBazowy / sciezki::AUTOR_GRY))
        e.znanyAutorGry.reset();
    return true;
}

} // namespace dorva
