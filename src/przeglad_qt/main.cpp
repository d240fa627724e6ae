#include "przeglad/sprawdz.h"
#include "przeglad_qt/okno.h"
#include "qt/aplikacja.h"
#include "qt/czcionki.h"
#include "qt/ekran.h"
#include "qt/program.h"
#include "qt/sesja.h"
#include "system/pliki.h"
#include "system/proces.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

constexpr int USAGE = 2;
constexpr int FONT_PIXELS = 13; // the window has room for more than the editor

int check(int argc, char** argv) {
    const auto source = argc > 2 ? std::filesystem::path(argv[2]) : dorva::ownExecutable().parent_path();
    return dorva::sprawdz(dorva::SYSTEM_CALLS, source);
}

} // namespace

int main(int argc, char** argv) {
    if (argc > 1 && argv[1] == std::string_view("--sprawdz") && argc <= 3)
        return check(argc, argv);
    if (argc > 1) {
        std::fputs("przeglad --sprawdz [PLIK]\n", stderr);
        return USAGE;
    }
    const auto application = dorva::makeApplication(argv, "Przegląd etapów");
    QFont font = dorva::fontOkna();
    font.setPixelSize(FONT_PIXELS);
    QApplication::setFont(font);
    const auto folder = dorva::ownFolder();
    // Only a fresh package: what is missing later stays missing.
    if (!dorva::fileExists(dorva::SYSTEM_CALLS, folder / "ETAPY") && !dorva::prepareFolder(folder))
        return EXIT_FAILURE;
    dorva::OknoPrzegladu okno(folder, DORVA_VERSION);
    dorva::storeAtSessionEnd(okno);
    dorva::showCentred(okno);
    return QApplication::exec();
}
