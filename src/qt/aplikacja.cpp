#include "qt/aplikacja.h"

#include "qt/czcionki.h"
#include "qt/konwersje.h"
#include "qt/rozmowy.h"
#include "system/wzorzec.h"

#include <QApplication>
#include <QDir>
#include <QLockFile>
#include <QSettings>
#include <QTranslator>

#include <system_error>

static void initResources() {
    Q_INIT_RESOURCE(czcionki); // resources of a static library need it
    Q_INIT_RESOURCE(slowa);
}

namespace dorva {

void setUpApplication(QApplication& application) {
    QApplication::setStyle("fusion");
    initResources();
    loadFonts();
    QApplication::setFont(fontOkna());
    // Qt's own file dialog would store its columns and folders in a file. The program keeps no settings.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
    auto* polish = new QTranslator(&application);
    if (polish->load(":/slowa/qtbase_pl.qm"))
        QApplication::installTranslator(polish);
}

bool prepareFolder(const std::filesystem::path& folder) {
    constexpr int PATIENCE_MS = 10000;
    QLockFile turn(nameOfPath(folder / "wzorzec" / "kolej")); // two first starts at once would mix their copies
    (void)turn.tryLock(PATIENCE_MS);                          // it fails only where the copies can't be written either
    const std::error_code error = layOut(folder);
    if (!error)
        return true;
    const QString why = error == std::errc::no_space_on_device
                            ? "Dysk jest pełny. Zrób miejsce i uruchom program jeszcze raz."
                        : error == std::errc::permission_denied || error == std::errc::read_only_file_system
                            ? "Brak prawa do zapisu. Przenieś cały folder tam, gdzie możesz tworzyć pliki."
                            : QString::fromLocal8Bit(error.message());
    const QString text = "Nie udało się skopiować dołączonych plików do folderu\n" +
                         QDir::toNativeSeparators(nameOfPath(folder)) + "\n" + why;
    (void)showMessageBox(nullptr, {"Dorva Planszownik", text.toStdString(), Ikona::Warning, Przyciski::Ok});
    return false;
}

} // namespace dorva
