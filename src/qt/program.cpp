#include "qt/program.h"

#include "qt/aplikacja.h"
#include "qt/konwersje.h"
#include "system/proces.h"

#include <QIcon>
#include <QImageReader>
#include <QPixmap>

#include <cstdio>
#include <cstdlib>

static void initIcon() {
    Q_INIT_RESOURCE(ikona); // resources of a static library need it
}

namespace dorva {
namespace {

const char* program = "";

// If Qt can't open a window, it prints warnings and aborts with advice that doesn't help a user. Prints one sentence
// that does, and then the warnings.
void sayWhyThereIsNoWindow(QtMsgType type, const QMessageLogContext&, const QString& message) {
    static QByteArray warnings;
    if (type != QtFatalMsg) {
        warnings += message.toUtf8() + '\n';
        return;
    }
    std::fprintf(stderr,
                 "%s nie może otworzyć okna: nie ma dostępu do ekranu (DISPLAY, WAYLAND_DISPLAY) albo brakuje "
                 "bibliotek.\n%s",
                 program, warnings.constData());
    std::_Exit(EXIT_FAILURE);
}

// Whoever has chosen Qt's platform by hand gets Qt's own messages.
QtMessageHandler installStartHandler() {
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ? nullptr : qInstallMessageHandler(sayWhyThereIsNoWindow);
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

std::unique_ptr<QApplication> makeApplication(char** argv, const char* name) {
    static int argc = 1; // Qt keeps a reference
    program = name;
    const QtMessageHandler usual = installStartHandler();
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(usual);
    setUpApplication(*application);
    initIcon();
    QApplication::setWindowIcon(ownIcon());
    return application;
}

std::filesystem::path ownFolder() {
    const auto executable = ownExecutable();
    return executable.empty() ? toPath(QCoreApplication::applicationDirPath()) : executable.parent_path();
}

} // namespace dorva
