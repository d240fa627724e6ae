#include "stage/zapis_jako.h"

#include "sciezki.h"
#include "shell/komunikaty.h"
#include "system/kopie.h"
#include "system/pliki.h"

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

bool writeChosen(const Edytor& e, const std::filesystem::path& path, std::span<const Bajt> bytes) {
    for (const auto& file : sciezki::zestawRoboczy(e.KatalogBazowy))
        if (isSameFile(*e.system, path, file))
            return writeKeeping(*e.system, path, bytes, file);
    return writeWhole(*e.system, path, bytes);
}

} // namespace dorva
