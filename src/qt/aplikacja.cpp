#include "qt/aplikacja.h"

#include "qt/kontrolki.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace dorva {

void setUpApplication(QApplication& application) {
    QApplication::setStyle("fusion");
    QApplication::setFont(fontOkna());
    auto* polish = new QTranslator(&application);
    if (polish->load("qtbase_pl", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(polish);
}

} // namespace dorva
