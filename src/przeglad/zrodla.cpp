#include "przeglad/zrodla.h"

#include "output/szablon.h"
#include "sciezki.h"
#include "shell/okno.h"
#include "stage/archiwum_image.h"
#include "system/pliki.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace dorva {
namespace {

using Linie = std::array<Tekst, LINIE_COUNT>;

Tekst linia(std::span<const Bajt> bytes, int index) {
    return Tekst::fromBytes(bytes.subspan(index * LINIA_WIDTH, LINIA_WIDTH));
}

// `kartaOf` gives the card of each number, 1..32.
template <typename KartaOf> Gra graOf(const Linie& linie, KartaOf kartaOf) {
    Gra gra;
    gra.linie = linie;
    for (int number = 1; number <= ETAPY_COUNT; ++number)
        gra.karty[number - 1] = kartaOf(number);
    takeOstatni(gra);
    return gra;
}

Karta readable(std::span<const Bajt> image, int number) {
    return {{image.begin(), image.end()}, "", number};
}

// Those of DP1.DTA; without the file those of a new window. A line that a short file lacks is blank.
Linie readLinie(const SystemCalls& system, const std::filesystem::path& file) {
    Linie linie;
    const auto bytes = readUpTo(system, file, AUTOR_GRY_SIZE_BYTES);
    const Okno first = bytes ? Okno{} : defaultOkno();
    for (int i = 0; i < LINIE_COUNT; ++i) {
        if (!bytes)
            linie[i] = first.pola[TXT_AUTOR_GRY + i].tekst;
        else
            linie[i] = bytes->size() < (i + 1) * LINIA_WIDTH ? Tekst::spaces(LINIA_WIDTH) : linia(*bytes, i);
    }
    return linie;
}

std::string reason(const SystemCalls& system, const std::filesystem::path& file) {
    const std::string name = file.filename().string();
    if (!fileExists(system, file))
        return "brak pliku " + name;
    const auto length = lengthOf(system, file);
    if (length && *length < ETAP_SIZE_BYTES)
        return "plik " + name + " jest za krótki (" + std::to_string(*length) + " z " +
               std::to_string(ETAP_SIZE_BYTES) + " bajtów)";
    return "pliku " + name + " nie można odczytać";
}

// The line that the editor has built these bytes from, trimmed; nothing if it builds no such bytes.
std::optional<Tekst> parseLinia(std::span<const Bajt> bytes) {
    for (std::size_t length = 0; length <= LINIA_WIDTH; ++length)
        if (Tekst tekst = DecodeTekst(bytes.subspan(1, length)); std::ranges::equal(BuildLiniaTytulu(tekst), bytes))
            return tekst;
    return std::nullopt;
}

} // namespace

Gra readZestaw(const SystemCalls& system, const std::filesystem::path& folder) {
    return graOf(readLinie(system, folder / sciezki::AUTOR_GRY), [&](int number) {
        const auto file = sciezki::etap(folder, number);
        const auto image = readFirst(system, file, ETAP_SIZE_BYTES);
        return image ? readable(*image, number) : Karta{{}, reason(system, file), number};
    });
}

std::optional<Gra> parseArchiwum(std::span<const Bajt> bytes) {
    if (bytes.size() != ARCHIWUM_SIZE_BYTES)
        return std::nullopt;
    Linie linie;
    for (int i = 0; i < LINIE_COUNT; ++i)
        linie[i] = linia(bytes, i);
    return graOf(linie, [&](int number) { return readable(etapOf(bytes, number), number); });
}

std::optional<Gra> parseGra(std::span<const Bajt> bytes) {
    if (bytes.size() != GRA_SIZE_BYTES)
        return std::nullopt;
    Linie linie;
    for (int i = 0; i < LINIE_COUNT; ++i) {
        const std::size_t offset = LINIE_TYTULU_OFFSET + i * LINIA_TYTULU_SIZE_BYTES;
        auto tekst = parseLinia(bytes.subspan(offset, LINIA_TYTULU_SIZE_BYTES));
        if (!tekst)
            return std::nullopt;
        tekst->znaki.resize(LINIA_WIDTH, ' ');
        linie[i] = *tekst;
    }
    return graOf(
        linie, [&](int number) { return readable(bytes.subspan(rekordOffset(number - 1), ETAP_SIZE_BYTES), number); });
}

Odczyt readZrodlo(const SystemCalls& system, const std::filesystem::path& path) {
    std::error_code error;
    if (std::filesystem::is_directory(path, error)) {
        const Gra gra = readZestaw(system, path);
        if (std::ranges::all_of(gra.karty, [](const Karta& karta) { return karta.image.empty(); }))
            return {{}, "W tym folderze nie ma etapów (ETAPY/DETAP.1 do DETAP.32)."};
        return {gra, ""};
    }
    const auto length = lengthOf(system, path);
    if (length && *length != ARCHIWUM_SIZE_BYTES && *length != GRA_SIZE_BYTES)
        return {{},
                "To nie jest archiwum ani gra zbudowana edytorem. Archiwum ma " + std::to_string(ARCHIWUM_SIZE_BYTES) +
                    " bajtów, gra " + std::to_string(GRA_SIZE_BYTES) + ", a ten plik " + std::to_string(*length) + "."};
    const auto bytes = readWhole(system, path);
    if (!bytes)
        return {{}, fileExists(system, path) ? "Pliku nie można odczytać." : "Nie ma takiego pliku."};
    if (auto gra = parseArchiwum(*bytes))
        return {gra, ""};
    if (auto gra = parseGra(*bytes))
        return {gra, ""};
    return {{}, "Plik ma długość gry, ale nie zbudował jej edytor: nie ma w nim jego linii ekranu tytułowego."};
}

} // namespace dorva
