#include "qt/sesja.h"

#include "qt/przeklad.h"
#include "qt/rozmowy.h"
#include "system/system_plikow.h"
#include "system/wzorzec.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QGuiApplication>
#include <QWidget>

namespace dorva {

// A newer version is unpacked over an older one, and a double click starts it: nothing else could lay it out.
void prepareFolder(const std::filesystem::path& folder) {
    if (layOut(SYSTEM_PLIKOW, folder / "wzorzec", folder))
        return;
    const auto text =
        QString("Nie można zapisywać w folderze\n%1.\nRozpakuj Planszownik tam, gdzie możesz tworzyć pliki.")
            .arg(nameOfPath(folder))
            .toStdString();
    (void)showMessageBox(nullptr, {"Dorva Planszownik", text, Ikona::Warning, Przyciski::Ok});
}

// At its end it would write folders and columns into the registry. So it has none: a few kilobytes stay.
void endFileDialog(QFileDialog* dialog) {
    dialog->setParent(nullptr);
}

// The window stays: another program may still call the end off.
void storeAtSessionEnd(QWidget& window) {
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &window, [&window] {
        QCloseEvent event;
        QCoreApplication::sendEvent(&window, &event);
    });
}

} // namespace dorva
