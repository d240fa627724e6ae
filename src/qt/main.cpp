#include "qt/okno_glowne.h"
#include "shell/start.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QScreen>
#include <QStyleFactory>
#include <QTranslator>

namespace {

// The folder of the executable, symbolic links resolved.
std::filesystem::path ownFolder() {
    std::error_code error;
    const auto executable = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::filesystem::path(QCoreApplication::applicationDirPath().toStdString())
                 : executable.parent_path();
}

void centre(QWidget& window) {
    if (const QScreen* screen = window.screen())
        window.move(screen->availableGeometry().center() - window.rect().center());
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setStyle("fusion");
    QTranslator polish; // for the texts of Qt's own dialogs
    if (polish.load("qtbase_pl", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&polish);

    dorva::Edytor edytor;
    dorva::OknoGlowne okno(edytor);
    dorva::Form_Load(edytor, ownFolder(), DORVA_VERSION);
    okno.showRecord();
    centre(okno);
    okno.show();
    return QApplication::exec();
}
