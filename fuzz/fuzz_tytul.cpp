// Texts: the boxes' forms, both codings, the title lines of the game.
#include "bajty.h"
#include "output/szablon.h"

using namespace dorva;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Tekst tekst = Tekst::fromBytes({data, std::min<std::size_t>(size, 70)});
    const Bajty stored = EncodeTekst(tekst);
    SPRAWDZ(stored.size() == tekst.size() && DecodeTekst(tekst.bytes()).size() == tekst.size());
    for (std::size_t i = 0; i < tekst.size(); ++i) {
        const auto code = static_cast<Bajt>(tekst.znaki[i]);
        SPRAWDZ(fromUnicode(toUnicode(code)) == code);
        SPRAWDZ(code >= 96 || stored[i] == static_cast<Bajt>(code - 32));
    }
    for (std::size_t width : {LINIA_WIDTH, AUTOR_WIDTH}) {
        const Tekst form = NormalizeBox(tekst, width);
        SPRAWDZ(form.size() == std::max(tekst.size(), width) && NormalizeBox(form, width) == form);
        if (std::ranges::none_of(form.znaki, [](char c) { return static_cast<Bajt>(c) < 32; }))
            SPRAWDZ(DecodeTekst(EncodeTekst(form)) == form);
    }
    const Tekst nazwa = FitNazwa(tekst);
    SPRAWDZ(nazwa.size() == std::max(tekst.size(), NAZWA_WIDTH) && FitNazwa(nazwa) == nazwa);

    const Bajty linia = BuildLiniaTytulu(tekst);
    const std::size_t length = trimmed(tekst).size();
    SPRAWDZ(linia.size() == std::max(length, LINIA_WIDTH) + 2 && linia.back() == 155);
    SPRAWDZ(length > LINIA_WIDTH || linia[0] == (LINIA_WIDTH - length) / 2 + 2);
    return 0;
}
