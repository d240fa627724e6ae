#include "output/narzedzia.h"

#include "sciezki.h"

namespace dorva {

void RunEmulator(Edytor& e) {
    askProgram(e.haki, e.KatalogBazowy / sciezki::EMULATOR, OknoProgramu::Hidden);
}

void cmdORN_Click(Edytor& e) {
    askProgram(e.haki, e.KatalogBazowy / sciezki::ORN, OknoProgramu::Normal);
}

} // namespace dorva
