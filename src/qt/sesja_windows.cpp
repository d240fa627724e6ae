#include "qt/sesja.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QGuiApplication>
#include <QWidget>

namespace dorva {

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
