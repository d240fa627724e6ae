#include "qt/aplikacja.h"
#include "qt/ekran.h"
#include "qt/okno_glowne.h"
#include "qt/program.h"
#include "qt/sesja.h"
#include "shell/start.h"

#include <cstdlib>

int main(int, char** argv) { // there are no options
    const auto application = dorva::makeApplication(argv, "Planszownik");
    const auto folder = dorva::ownFolder();
    if (!dorva::prepareFolder(folder))
        return EXIT_FAILURE;
    dorva::Edytor edytor;
    dorva::OknoGlowne okno(edytor);
    dorva::Form_Load(edytor, folder, DORVA_VERSION);
    okno.showRecord();
    dorva::storeAtSessionEnd(okno);
    dorva::showCentred(okno);
    return QApplication::exec();
}
