// Makes the widgets show what the record holds. What they show now only they know; setting a value that a widget has
// already costs next to nothing.
#pragma once

#include "qt/obrazki.h"
#include "shell/okno.h"

#include <vector>

class QCheckBox;
class QPushButton;
class QScrollBar;
class QWidget;

namespace dorva {

class Etykieta;
class EtykietaFigury;
class KontrolkiOkna;
class ObrazWidget;
class PaletaOkno;
class PlanszaWidget;
class PoleEdycji;
class ProbkaKoloru;
class WyborWidget;

class PokazOkna {
public:
    // The store has to outlive it.
    PokazOkna(QWidget& window, const KontrolkiOkna&, PaletaOkno&, const Magazyn& frmZestawy);

    void show(const Okno&);

private:
    void showObrazy(const Okno&);
    void showOpcje(const Okno&);
    void showFigury(const Okno&);
    void showKolory(const Okno&);
    void showPola(const Okno&);

    Obrazki obrazki_;
    QWidget& window_;
    PaletaOkno& dlgPaleta_;

    PlanszaWidget* imgPG_;
    WyborWidget* imgZnak_;
    ObrazWidget* imgBufor_;
    std::vector<ObrazWidget*> imgInfo_;
    std::vector<EtykietaFigury*> lblInfo_;
    std::vector<Etykieta*> lblKodBufor_;
    std::vector<ProbkaKoloru*> lblKolor_;
    QScrollBar* hscMonet_;
    QCheckBox *chkOstatni_, *chkZachowajKolory_;
    std::vector<std::vector<QPushButton*>> opcje_; // by group
    std::vector<PoleEdycji*> pola_;
    PoleEdycji* txtAutor_;
};

} // namespace dorva
