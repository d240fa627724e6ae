#include "stage/kopie_ekranu.h"

#include "sciezki.h"
#include "stage/autor_gry.h"
#include "stage/etap.h"
#include "system/kopie.h"
#include "system/pliki.h"

#include <chrono>
#include <cstddef>
#include <filesystem>

namespace dorva {
namespace {

constexpr std::chrono::minutes PERIOD{5};

// `size` is that of a whole file; a text that is too long would make it longer.
void keepUnlessStored(const Edytor& e, const std::filesystem::path& file, const Bajty& bytes, std::size_t size) {
    if (bytes.size() == size && readWhole(*e.system, file) != bytes)
        (void)keepCopy(*e.system, file, bytes, e.system->now());
}

} // namespace

void keepEtap(const Edytor& e) {
    keepUnlessStored(e, sciezki::etap(e.KatalogBazowy, e.NumerEtapu), packed(e.okno), ETAP_SIZE_BYTES);
}

void keepWork(Edytor& e) {
    const Time now = e.system->now();
    const bool isRecent = e.ostatniaKopia && *e.ostatniaKopia <= now && now < *e.ostatniaKopia + PERIOD;
    if (isRecent)
        return;
    e.ostatniaKopia = now;
    keepEtap(e);
    keepUnlessStored(e, e.KatalogBazowy / sciezki::AUTOR_GRY, packedAutorGry(e.okno), AUTOR_GRY_SIZE_BYTES);
}

void trimKopie(const Edytor& e) {
    for (const auto& file : sciezki::zestawRoboczy(e.KatalogBazowy))
        trimCopies(*e.system, file);
    trimCopies(*e.system, e.KatalogBazowy / sciezki::ARCHIWUM, sciezki::ARCHIWUM_ENDING);
}

} // namespace dorva
