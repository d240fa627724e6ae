#include "qt/okno_glowne.h"

#include "qt/paleta_okno.h"
#include "qt/pole_edycji.h"
#include "qt/zdarzenia_okna.h"
#include "shell/start.h"
#include "stage/kopie_ekranu.h"

#include <QCloseEvent>

namespace dorva {

OknoGlowne::OknoGlowne(Edytor& e)
    : e_(e), kontrolki_(katalogOkna(), this), dlgPaleta_(new PaletaOkno(this)),
      pokaz_(*this, kontrolki_, *dlgPaleta_, e.frmZestawy) {
    setObjectName("frmDP");
    setFixedSize(OKNO_WIDTH, OKNO_HEIGHT);
    kontrolki_.setTabOrder(kolejnoscTab());
    bindHooks(e_.haki, this, [this] { showRecord(); });
    bindEvents(kontrolki_, *dlgPaleta_, [this](const auto& operation) { run(operation); });
    kontrolki_.get<QWidget>("optEtapNR", 0)->setFocus();
}

void OknoGlowne::run(const std::function<void(Edytor&)>& operation) {
    keepWork(e_);
    operation(e_);
    showRecord();
}

void OknoGlowne::showRecord() {
    pokaz_.show(e_.okno);
}

void OknoGlowne::closeEvent(QCloseEvent* event) {
    if (auto* box = dynamic_cast<PoleEdycji*>(focusWidget())) {
        box->endComposition();
        box->onLeave(); // a full text would be stored as typed, and codes of small letters are those of Polish capitals
    }
    run([](Edytor& e) {
        Form_QueryUnload(e);
        Form_Unload(e);
    });
    event->accept();
}

} // namespace dorva
