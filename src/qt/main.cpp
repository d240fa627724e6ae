#include "qt/aplikacja.h"
#include "qt/okno_glowne.h"
#include "qt/sygnaly.h"
#include "shell/start.h"

#include <QApplication>
#include <QIcon>
#include <QScreen>

namespace {

// The folder of the executable, symbolic links resolved.
std::filesystem::path ownFolder() {
    std::error_code error;
    const auto executable = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::filesystem::path(QCoreApplication::applicationDirPath().toStdString())
                 : executable.parent_path();
}

QIcon ownIcon() {
    QIcon icon;
    for (int size : {16, 32, 48, 64, 128, 256})
        icon.addFile(QString(":/ikona%1.png").arg(size), QSize(size, size));
    return icon;
}

void centre(QWidget& window) {
    if (const QScreen* screen = window.screen())
        window.move(screen->availableGeometry().center() - window.rect().center());
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    dorva::setUpApplication(application);
    QApplication::setWindowIcon(ownIcon());

    dorva::Edytor edytor;
    dorva::OknoGlowne okno(edytor);
    dorva::Form_Load(edytor, ownFolder(), DORVA_VERSION);
    okno.showRecord();
    dorva::closeOnSignals(okno);
    centre(okno);
    okno.show();
    return QApplication::exec();
}
