#include "stage/pola.h"

namespace dorva {
namespace {

Tekst formed(const Pole& pole, const Tekst& tekst) {
    return pole.forma == Forma::Centred ? FitNazwa(tekst, pole.width) : NormalizeBox(tekst, pole.width);
}

} // namespace

void SetTekst(Okno& okno, const Pole& pole, const Tekst& tekst) {
    PoleTekstu& box = okno.pola[pole.numer];
    box.tekst = tekst;
    if (!tekst.znaki.empty())
        return;
    box.tekst = Tekst::spaces(pole.width);
    ++box.zaznaczenia;
}

Tekst filled(const Okno& okno, const Pole& pole) {
    const Tekst& tekst = okno.pola[pole.numer].tekst;
    return tekst.size() < pole.width ? formed(pole, tekst) : tekst;
}

void fillShort(Okno& okno, const Pole& pole) {
    SetTekst(okno, pole, filled(okno, pole));
}

void txt_Change(Edytor& e, const Pole& pole, const Tekst& tekst) {
    SetTekst(e.okno, pole, {tekst.znaki.substr(0, pole.width)});
}

void txt_GotFocus(Edytor& e, const Pole& pole) {
    ++e.okno.pola[pole.numer].zaznaczenia;
}

void txt_LostFocus(Edytor& e, const Pole& pole) {
    SetTekst(e.okno, pole, formed(pole, e.okno.pola[pole.numer].tekst));
}

} // namespace dorva
