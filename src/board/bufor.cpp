#include "board/bufor.h"

#include <cstdio>

namespace dorva {

void SetBufor(Edytor& e, const ZnakPole& pole) {
    e.okno.imgBufor = pole;
    char hex[8];
    std::snprintf(hex, sizeof hex, "$%X", static_cast<unsigned>(kod(pole.znak)));
    e.okno.lblKodBufor = {std::to_string(kod(pole.znak)), hex};
}

} // namespace dorva
