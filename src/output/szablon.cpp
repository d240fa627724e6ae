#include "output/szablon.h"

#include <algorithm>

namespace dorva {
namespace {

// Replaces `length` bytes at `offset` by `bytes`; if these are more or fewer, all behind them moves.
void splice(ObrazGry& gra, std::size_t offset, std::size_t length, std::span<const Bajt> bytes) {
    const auto first = gra.begin() + offset;
    if (bytes.size() == length) {
        std::copy(bytes.begin(), bytes.end(), first);
        return;
    }
    const auto gap = gra.erase(first, first + length);
    gra.insert(gap, bytes.begin(), bytes.end());
}

} // namespace

LiniaTytulu BuildLiniaTytulu(const Tekst& tekst) {
    constexpr std::size_t FIRST_COLUMN = 2;
    constexpr Bajt KONIEC_LINII = 155; // ATASCII end of line
    const Bajty zapis = EncodeTekst(trimmed(tekst));
    const std::size_t spare = LINIA_WIDTH - std::min(zapis.size(), LINIA_WIDTH);
    LiniaTytulu linia(1 + zapis.size() + spare + 1, KONIEC_LINII);
    linia[0] = static_cast<Bajt>(spare / 2 + FIRST_COLUMN);
    std::copy(zapis.begin(), zapis.end(), linia.begin() + 1);
    return linia;
}

ObrazGry buildGra(const SzablonGry& szablon, std::span<const EtapImage> etapy,
                  const std::array<Tekst, LINIE_COUNT>& linie) {
    Bajty tytul;
    for (const Tekst& linia : linie) {
        const LiniaTytulu rekord = BuildLiniaTytulu(linia);
        tytul.insert(tytul.end(), rekord.begin(), rekord.end());
    }
    ObrazGry gra = szablon;
    splice(gra, LINIE_TYTULU_OFFSET, LINIE_COUNT * LINIA_TYTULU_SIZE_BYTES, tytul);
    for (std::size_t i = etapy.size(); i-- > 0;) // from the last, so that no offset has moved
        splice(gra, rekordOffset(i), ETAP_SIZE_BYTES, etapy[i]);
    return gra;
}

} // namespace dorva
