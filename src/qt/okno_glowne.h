// The main window: shows an Okno and reports the user's events to the operations.
#pragma once

#include "edytor.h"
#include "qt/kontrolki_okna.h"
#include "qt/pokaz_okna.h"

#include <QWidget>

#include <functional>

namespace dorva {

class OknoGlowne : public QWidget {
public:
    // Builds the window and sets the editor's hooks. The editor has to outlive it.
    explicit OknoGlowne(Edytor&);

    // Makes the widgets show what the record holds; touches only what differs.
    void showRecord();

protected:
    void closeEvent(QCloseEvent*) override;

private:
    void run(const std::function<void(Edytor&)>& operation);

    Edytor& e_;
    KontrolkiOkna kontrolki_;
    PaletaOkno* dlgPaleta_;
    PokazOkna pokaz_;
};

} // namespace dorva
