#include "qt/pokaz_okna.h"

#include "qt/kontrolki_okna.h"
#include "qt/konwersje.h"
#include "qt/opcje_okna.h"
#include "qt/paleta_okno.h"
#include "qt/pole_edycji.h"
#include "qt/widgety.h"
#include "qt/widoki_znakow.h"
#include "stage/pola.h"

#include <QCheckBox>
#include <QSignalBlocker>

#include <cstddef>

namespace dorva {
namespace {

constexpr Qt::CheckState STANY[]{Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};

} // namespace

PokazOkna::PokazOkna(QWidget& window, const KontrolkiOkna& kontrolki, PaletaOkno& dlgPaleta, const Magazyn& frmZestawy)
    : obrazki_(frmZestawy), window_(window), dlgPaleta_(dlgPaleta), imgPG_(kontrolki.get<PlanszaWidget>("imgPG")),
      imgZnak_(kontrolki.get<WyborWidget>("imgZnak")), imgBufor_(kontrolki.get<ObrazWidget>("imgBufor")),
      imgInfo_(kontrolki.getAll<ObrazWidget>("imgInfo")), lblInfo_(kontrolki.getAll<EtykietaFigury>("lblInfo")),
      lblKodBufor_(kontrolki.getAll<Etykieta>("lblKodBufor")), lblKolor_(kontrolki.getAll<ProbkaKoloru>("lblKolor")),
      hscMonet_(kontrolki.get<QScrollBar>("hscMonet")), chkOstatni_(kontrolki.get<QCheckBox>("chkOstatni")),
      chkZachowajKolory_(kontrolki.get<QCheckBox>("chkZachowajKolory")),
      txtAutor_(kontrolki.get<PoleEdycji>("txtAutor")) {
    for (const GrupaOpcji& grupa : OPCJE)
        opcje_.push_back(kontrolki.getAll<QPushButton>(grupa.name));
    for (const Pole& pole : POLA)
        pola_.push_back(kontrolki.get<PoleEdycji>(pole.name, pole.index));
}

void PokazOkna::show(const Okno& okno) {
    window_.setWindowTitle(toQString(okno.caption));
    showObrazy(okno);
    showOpcje(okno);
    showFigury(okno);
    showKolory(okno);
    showPola(okno);
    dlgPaleta_.showOkno(okno.dlgPaleta);
}

void PokazOkna::showObrazy(const Okno& okno) {
    obrazki_.followMagazyn();
    imgPG_->showPlansza(okno.imgPG, obrazki_);
    imgPG_->showObrys(okno.obrys);
    imgZnak_->showZnaki(okno.imgZnak, obrazki_);
    imgZnak_->showBufor(okno.imgBufor.znak);
    imgBufor_->showObraz(obrazki_[okno.imgBufor.obraz]);
    for (std::size_t i = 0; i < imgInfo_.size(); ++i)
        imgInfo_[i]->showObraz(obrazki_[okno.imgInfo[i]]);
}

void PokazOkna::showOpcje(const Okno& okno) {
    for (std::size_t group = 0; group < opcje_.size(); ++group) {
        QPushButton* selected = opcje_[group][okno.*OPCJE[group].selected];
        if (selected->isChecked())
            continue;
        selected->setChecked(true);
        // the Tab key enters a group at its selected button
        for (QPushButton* button : opcje_[group])
            button->setFocusPolicy(button == selected ? Qt::StrongFocus : Qt::ClickFocus);
    }
    chkOstatni_->setTristate(okno.chkOstatni == 2);
    chkOstatni_->setCheckState(STANY[okno.chkOstatni]);
    chkOstatni_->setEnabled(okno.chkOstatniEnabled);
    chkZachowajKolory_->setChecked(okno.chkZachowajKolory);
}

void PokazOkna::showFigury(const Okno& okno) {
    for (std::size_t i = 0; i < lblInfo_.size(); ++i)
        lblInfo_[i]->showFigura(toQString(okno.lblInfo[i].caption), okno.lblInfo[i].czerwona);
    for (std::size_t i = 0; i < lblKodBufor_.size(); ++i)
        lblKodBufor_[i]->setText(toQString(okno.lblKodBufor[i]));
    const QSignalBlocker quiet(hscMonet_);
    hscMonet_->setValue(okno.hscMonet);
}

void PokazOkna::showKolory(const Okno& okno) {
    for (std::size_t i = 0; i < lblKolor_.size(); ++i) {
        const KolorSlot& slot = okno.lblKolor[i];
        lblKolor_[i]->showKolor(slot.value, toQColor(slot.tlo), slot.wybrany);
    }
}

void PokazOkna::showPola(const Okno& okno) {
    for (std::size_t i = 0; i < pola_.size(); ++i) {
        const PoleTekstu& pole = okno.pola[i];
        pola_[i]->showText(toQString(pole.tekst), pole.zaznaczenia);
    }
    txtAutor_->setEnabled(okno.txtAutorEnabled);
}

} // namespace dorva
