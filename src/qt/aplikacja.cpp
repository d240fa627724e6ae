#include "qt/aplikacja.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace dorva {

void setUpApplication(QApplication& application) {
    QApplication::setStyle("fusion");
    auto* polish = new QTranslator(&application);
    if (polish->load("qtbase_pl", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(polish);
}

} // namespace dorva
