#include "stage/autor_gry.h"

#include "sciezki.h"
#include "stage/pola.h"
#include "system/kopie.h"
#include "system/pliki.h"

#include <filesystem>

namespace dorva {
namespace {

std::filesystem::path pathOf(const Edytor& e) {
    return e.KatalogBazowy / sciezki::AUTOR_GRY;
}

} // namespace

Bajty packedAutorGry(const Okno& okno) {
    Bajty bytes;
    for (int i = 0; i < LINIE_COUNT; ++i) {
        const Bajty linia = filled(okno, poleLinii(i)).bytes();
        bytes.insert(bytes.end(), linia.begin(), linia.end());
    }
    return bytes;
}

Bajty fillAutorGry(Edytor& e) {
    for (int i = 0; i < LINIE_COUNT; ++i)
        fillShort(e.okno, poleLinii(i));
    return packedAutorGry(e.okno);
}

void takeAutorGry(Edytor& e, std::span<const Bajt> bytes) {
    for (int i = 0; i < LINIE_COUNT; ++i)
        SetTekst(e.okno, poleLinii(i), Tekst::fromBytes(bytes.subspan(i * LINIA_WIDTH, LINIA_WIDTH)));
}

void readAutorGry(Edytor& e) {
    const auto length = lengthOf(*e.system, pathOf(e));
    if (!length)
        return;
    if (*length != AUTOR_GRY_SIZE_BYTES)
        for (int i = 0; i < LINIE_COUNT; ++i)
            SetTekst(e.okno, poleLinii(i), {});
    const auto bytes = readUpTo(*e.system, pathOf(e), AUTOR_GRY_SIZE_BYTES);
    if (!bytes)
        return;
    for (int i = 0; i < LINIE_COUNT; ++i) {
        const std::size_t start = i * LINIA_WIDTH, end = start + LINIA_WIDTH;
        SetTekst(e.okno, poleLinii(i), {});
        if (bytes->size() < end)
            return;
        SetTekst(e.okno, poleLinii(i), Tekst::fromBytes(std::span(*bytes).subspan(start, LINIA_WIDTH)));
    }
}

bool writeAutorGry(Edytor& e) {
    const Bajty bytes = fillAutorGry(e);
    return bytes.size() == AUTOR_GRY_SIZE_BYTES && writeKeeping(*e.system, pathOf(e), bytes);
}

} // namespace dorva
