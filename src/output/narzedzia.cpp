#include "output/narzedzia.h"

namespace dorva {

void RunEmulator(Edytor& e) {
    askProgram(e.haki, e.KatalogBazowy / "PLIKI" / "DP3.BAT", OknoProgramu::Hidden);
}

void cmdORN_Click(Edytor& e) {
    askProgram(e.haki, e.KatalogBazowy / "OBIEKTY" / "ORN.exe", OknoProgramu::Normal);
}

} // namespace dorva
