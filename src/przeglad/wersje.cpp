#include "przeglad/wersje.h"

#include "sciezki.h"
#include "stage/archiwum_image.h"
#include "system/pliki.h"

#include <algorithm>
#include <functional>

namespace dorva {

std::vector<Wersja> listWersje(const SystemCalls& system, const std::filesystem::path& base, int number,
                               const EtapImage& present) {
    std::vector<Wersja> all, different;
    for (const Kopia& kopia : listCopies(system, sciezki::etap(base, number)))
        if (const auto image = readFirst(system, kopia.path, ETAP_SIZE_BYTES))
            all.push_back({*image, kopia.made});
    for (const Kopia& kopia : listGry(system, base))
        if (const auto archiwum = readFirst(system, kopia.path, ARCHIWUM_SIZE_BYTES)) {
            const auto image = etapOf(*archiwum, number);
            all.push_back({{image.begin(), image.end()}, kopia.made});
        }
    std::ranges::stable_sort(all, std::greater(), &Wersja::made);
    for (const Wersja& wersja : all)
        if (wersja.image != present && std::ranges::find(different, wersja.image, &Wersja::image) == different.end())
            different.push_back(wersja);
    return different;
}

std::vector<Kopia> listGry(const SystemCalls& system, const std::filesystem::path& base) {
    return listCopies(system, base / sciezki::ARCHIWUM, sciezki::ARCHIWUM_ENDING);
}

} // namespace dorva
