#include "output/szablon.h"

#include <algorithm>

namespace dorva {

Bajty BuildLiniaTytulu(const Tekst& tekst) {
    constexpr std::size_t FIRST_COLUMN = 2;
    constexpr Bajt KONIEC_LINII = 155; // ATASCII end of line
    const Bajty zapis = EncodeTekst(trimmed(tekst));
    const std::size_t spare = LINIA_WIDTH - std::min(zapis.size(), LINIA_WIDTH);
    Bajty linia(1 + zapis.size() + spare + 1, KONIEC_LINII);
    linia[0] = static_cast<Bajt>(spare / 2 + FIRST_COLUMN);
    std::copy(zapis.begin(), zapis.end(), linia.begin() + 1);
    return linia;
}

void splice(Bajty& obraz, std::size_t offset, std::size_t length, std::span<const Bajt> bytes) {
    const auto first = obraz.begin() + static_cast<std::ptrdiff_t>(offset);
    if (bytes.size() == length) {
        std::copy(bytes.begin(), bytes.end(), first);
        return;
    }
    const auto gap = obraz.erase(first, first + static_cast<std::ptrdiff_t>(length));
    obraz.insert(gap, bytes.begin(), bytes.end());
}

void spliceTytul(Bajty& obraz, const std::array<Tekst, 3>& linie) {
    Bajty rekordy;
    for (const Tekst& linia : linie) {
        const Bajty rekord = BuildLiniaTytulu(linia);
        rekordy.insert(rekordy.end(), rekord.begin(), rekord.end());
    }
    splice(obraz, LINIE_TYTULU_OFFSET, linie.size() * LINIA_TYTULU_SIZE_BYTES, rekordy);
}

} // namespace dorva
