#include "qt/aplikacja.h"

#include "qt/czcionki.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QSettings>
#include <QTranslator>

static void initResources() {
    Q_INIT_RESOURCE(czcionki); // they lie in a static library
}

namespace dorva {

void setUpApplication(QApplication& application) {
    QApplication::setStyle("fusion");
    initResources();
    loadFonts();
    QApplication::setFont(fontOkna());
    // Qt's own file dialog would remember its columns and folders in a file. Nothing but the work outlives a run.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
    auto* polish = new QTranslator(&application);
    if (polish->load("qtbase_pl", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(polish);
}

} // namespace dorva
