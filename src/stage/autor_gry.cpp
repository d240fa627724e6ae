#include "stage/autor_gry.h"

#include "sciezki.h"
#include "stage/pola.h"
#include "system/pliki.h"

#include <filesystem>

namespace dorva {
namespace {

std::filesystem::path pathOf(const Edytor& e) {
    return e.KatalogBazowy / sciezki::AUTOR_GRY;
}

} // namespace

Bajty fillAutorGry(Edytor& e) {
    Bajty bytes;
    for (int i = 0; i < LINIE_COUNT; ++i) {
        fillShort(e.okno, poleLinii(i));
        const Bajty linia = e.okno.txtAutorGry[i].tekst.bytes();
        bytes.insert(bytes.end(), linia.begin(), linia.end());
    }
    return bytes;
}

void takeAutorGry(Edytor& e, std::span<const Bajt> bytes) {
    for (int i = 0; i < LINIE_COUNT; ++i)
        SetTekst(e.okno, poleLinii(i), Tekst::fromBytes(bytes.subspan(i * LINIA_WIDTH, LINIA_WIDTH)));
}

void readAutorGry(Edytor& e) {
    e.znanyAutorGry.reset();
    const auto length = lengthOf(*e.system, pathOf(e));
    if (!length)
        return;
    if (*length != AUTOR_GRY_SIZE_BYTES)
        for (int i = 0; i < LINIE_COUNT; ++i)
            SetTekst(e.okno, poleLinii(i), {});
    const Bajty bytes = readUpTo(*e.system, pathOf(e), AUTOR_GRY_SIZE_BYTES).value_or(Bajty());
    for (int i = 0; i < LINIE_COUNT; ++i) {
        const std::size_t start = i * LINIA_WIDTH, end = start + LINIA_WIDTH;
        SetTekst(e.okno, poleLinii(i), {});
        if (bytes.size() < end)
            return;
        SetTekst(e.okno, poleLinii(i), Tekst::fromBytes(std::span(bytes).subspan(start, LINIA_WIDTH)));
        e.znanyAutorGry = Bajty(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(end));
    }
}

bool writeAutorGry(Edytor& e) {
    const Bajty bytes = fillAutorGry(e);
    if (bytes.size() != AUTOR_GRY_SIZE_BYTES)
        return false;
    if (!writeKeepingUnknown(*e.system, pathOf(e), bytes, e.znanyAutorGry))
        return false;
    e.znanyAutorGry = bytes;
    return true;
}

} // namespace dorva
