#include "qt/sesja.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QGuiApplication>
#include <QSessionManager>
#include <QWidget>

namespace dorva {

// Its destructor would write folders and columns into the registry, so it is never destroyed. That costs a few
// kilobytes of memory each time.
void endFileDialog(QFileDialog* dialog) {
    dialog->setParent(nullptr);
}

// Stores the work but keeps the window open: another program may still cancel the shutdown.
void storeAtSessionEnd(QWidget& window) {
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &window, [&window](QSessionManager& session) {
        QCloseEvent event;
        QCoreApplication::sendEvent(&window, &event);
        if (!event.isAccepted()) // the user goes on working
            session.cancel();
    });
}

} // namespace dorva
