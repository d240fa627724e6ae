#include "output/narzedzia.h"

namespace dorva {

void RunEmulator(Edytor& e) {
    e.haki.startProgram(e.KatalogBazowy / "PLIKI" / "DP3.BAT", OknoProgramu::Hidden);
}

void cmdORN_Click(Edytor& e) {
    e.haki.startProgram(e.KatalogBazowy / "OBIEKTY" / "ORN.exe", OknoProgramu::Normal);
}

} // namespace dorva
