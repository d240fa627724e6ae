// A stage image into the editor and out again.
#include "niezmienniki.h"

using namespace dorva;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Edytor e;
    fuzz::Strumien input{{data, size}};
    const int options = input.byte();
    e.okno.chkZachowajKolory = (options & 1) != 0;
    e.okno.optNN = options >> 1 & 1;
    e.image = input.filled(ETAP_SIZE_BYTES);
    const Bajty image = e.image;

    const bool valid = image[832] >= 1 && image[832] <= 99 && image[833] <= 2 && image[834] <= 2;
    SPRAWDZ(UnpackEtap(e) == valid);
    for (std::size_t i = 0; i < PLANSZA_CELLS; ++i)
        SPRAWDZ(kod(e.okno.imgPG[i].znak) == image[32 + i]);
    if (valid)
        fuzz::checkCensus(e.okno);

    fuzz::checkPack(e);
    const Bajty packed = e.image;
    for (std::size_t i = 0; i < SLOTY_COUNT && !e.okno.chkZachowajKolory; ++i)
        SPRAWDZ(packed[16 + i] == image[16 + i]);
    for (std::size_t i = 0; i < PLANSZA_CELLS; ++i)
        SPRAWDZ(isEdge(static_cast<int>(i)) || packed[32 + i] == (image[32 + i] == 191 ? 63 : image[32 + i]));
    if (valid)
        SPRAWDZ(std::equal(image.begin() + 832, image.begin() + 835, packed.begin() + 832));
    SPRAWDZ(UnpackEtap(e));
    fuzz::checkPack(e);
    SPRAWDZ(e.image == packed);
    return 0;
}
