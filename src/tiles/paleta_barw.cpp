#include "tiles/paleta_barw.h"

#include <cstdio>

namespace dorva {
namespace {

constexpr std::array<std::uint32_t, 256> RRGGBB{
};

constexpr TablicaBarw unpackTable() {
    TablicaBarw table{};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = {static_cast<Bajt>(RRGGBB[i] >> 16), static_cast<Bajt>(RRGGBB[i] >> 8),
                    static_cast<Bajt>(RRGGBB[i])};
    return table;
}

} // namespace

constexpr TablicaBarw PaletaWbudowana = unpackTable();

std::optional<TablicaBarw> parsePaleta(std::span<const Bajt> bytes) {
    if (bytes.size() < PALETA_SIZE_BYTES)
        return std::nullopt;
    TablicaBarw table{};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = {bytes[3 * i], bytes[3 * i + 1], bytes[3 * i + 2]};
    return table;
}

std::string kolorText(int value) {
    char text[16];
    std::snprintf(text, sizeof text, "%d, $%X", value, static_cast<unsigned>(value));
    return text;
}

} // namespace dorva
