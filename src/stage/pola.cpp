#include "stage/pola.h"

namespace dorva {
namespace {

void bringToForm(Okno& okno, const Pole& pole) {
    const Tekst& tekst = pole.box(okno).tekst;
    SetTekst(okno, pole, pole.forma == Forma::Centred ? FitNazwa(tekst, pole.width) : NormalizeBox(tekst, pole.width));
}

} // namespace

void SetTekst(Okno& okno, const Pole& pole, const Tekst& tekst) {
    PoleTekstu& box = pole.box(okno);
    box.tekst = tekst;
    if (!tekst.znaki.empty())
        return;
    box.tekst = Tekst::spaces(pole.width);
    ++box.zaznaczenia;
}

void fillShort(Okno& okno, const Pole& pole) {
    if (pole.box(okno).tekst.size() < pole.width)
        bringToForm(okno, pole);
}

void txt_Change(Edytor& e, const Pole& pole, const Tekst& tekst) {
    SetTekst(e.okno, pole, {tekst.znaki.substr(0, pole.width)});
}

void txt_GotFocus(Edytor& e, const Pole& pole) {
    ++pole.box(e.okno).zaznaczenia;
}

void txt_LostFocus(Edytor& e, const Pole& pole) {
    bringToForm(e.okno, pole);
}

} // namespace dorva
