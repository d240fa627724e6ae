#include "qt/sesja.h"

#include "qt/przeklad.h"
#include "qt/rozmowy.h"
#include "system/pliki.h"
#include "system/wzorzec.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QStringList>
#include <QWidget>

#include <algorithm>
#include <cstddef>
#include <filesystem>

namespace dorva {

// A newer version is unpacked over an older one, and a double click starts it: nothing else could lay it out.
void prepareFolder(const std::filesystem::path& folder) {
    constexpr std::size_t NAMES_MAX = 5;
    const auto refused = layOut(SYSTEM_CALLS, folder / "wzorzec", folder);
    if (refused.empty())
        return;
    QStringList names;
    for (std::size_t i = 0; i < std::min(refused.size(), NAMES_MAX); ++i)
        names += QDir::toNativeSeparators(nameOfPath(folder / refused[i]));
    if (refused.size() > NAMES_MAX)
        names += "...";
    const auto text = QString("Nie udało się zapisać:\n%1\nRozpakuj Planszownik tam, gdzie możesz tworzyć pliki.")
                          .arg(names.join('\n'))
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
