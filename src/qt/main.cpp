#include "qt/aplikacja.h"
#include "qt/ekran.h"
#include "qt/konwersje.h"
#include "qt/okno_glowne.h"
#include "qt/sesja.h"
#include "shell/start.h"
#include "system/proces.h"

#include <QApplication>
#include <QIcon>
#include <QImageReader>
#include <QPixmap>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace {

// If Qt can't open a window, it prints warnings and aborts with advice that doesn't help a user. Prints one sentence
// that does, and then the warnings.
void sayWhyThereIsNoWindow(QtMsgType type, const QMessageLogContext&, const QString& message) {
    static QByteArray warnings;
    if (type != QtFatalMsg) {
        warnings += message.toUtf8() + '\n';
        return;
    }
    std::fputs("Planszownik nie może otworzyć okna: nie ma dostępu do ekranu (DISPLAY, WAYLAND_DISPLAY) albo brakuje "
               "bibliotek.\n",
               stderr);
    std::fputs(warnings.constData(), stderr);
    std::_Exit(EXIT_FAILURE);
}

// Whoever has chosen Qt's platform by hand gets Qt's own messages.
QtMessageHandler installStartHandler() {
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ? nullptr : qInstallMessageHandler(sayWhyThereIsNoWindow);
}

// The folder of the executable, symbolic links resolved.
std::filesystem::path ownFolder() {
    const auto executable = dorva::ownExecutable();
    return executable.empty() ? dorva::toPath(QCoreApplication::applicationDirPath()) : executable.parent_path();
}

// The format is given, since Qt would load all its picture plugins to find it out.
QPixmap iconOfSize(int size) {
    QImageReader reader(QString(":/ikona%1.png").arg(size), "png");
    reader.setAutoDetectImageFormat(false);
    return QPixmap::fromImageReader(&reader);
}

QIcon ownIcon() {
    QIcon icon;
    for (int size : {16, 32, 48, 64, 128, 256})
        icon.addPixmap(iconOfSize(size));
    return icon;
}

} // namespace

int main(int argc, char** argv) {
    argc = std::min(argc, 1); // the program takes no options, so Qt shouldn't find its own
    const QtMessageHandler usual = installStartHandler();
    QApplication application(argc, argv);
    qInstallMessageHandler(usual);
    dorva::setUpApplication(application);
    QApplication::setWindowIcon(ownIcon());

    const auto folder = ownFolder();
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
