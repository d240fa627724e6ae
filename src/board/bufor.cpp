#include "board/bufor.h"

#include <cstdio>
#include <string>

namespace dorva {

void SetBufor(Edytor& e, const Bufor& shown) {
    e.okno.imgBufor = shown;
    char hex[8];
    std::snprintf(hex, sizeof hex, "$%X", static_cast<unsigned>(kod(shown.znak)));
    e.okno.lblKodBufor = {std::to_string(kod(shown.znak)), hex};
}

} // namespace dorva
