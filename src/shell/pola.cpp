#include "shell/pola.h"

#include "stage/etap.h"

namespace dorva {
namespace {

constexpr int liniaIndex(Pole pole) {
    return static_cast<int>(pole) - static_cast<int>(Pole::AutorGry0);
}

} // namespace

PoleTekstu& poleOf(Okno& okno, Pole pole) {
    switch (pole) {
    case Pole::Nazwa:
        return okno.txtNazwa;
    case Pole::Autor:
        return okno.txtAutor;
    default:
        return okno.txtAutorGry[static_cast<std::size_t>(liniaIndex(pole))];
    }
}

void txt_Change(Edytor& e, Pole pole, const Tekst& tekst) {
    PoleTekstu& box = poleOf(e.okno, pole);
    SetTekst(box, {tekst.znaki.substr(0, box.width)});
}

void txt_GotFocus(Edytor& e, Pole pole) {
    ++poleOf(e.okno, pole).zaznaczenia;
}

void txt_LostFocus(Edytor& e, Pole pole) {
    switch (pole) {
    case Pole::Nazwa:
        leaveNazwa(e);
        return;
    case Pole::Autor:
        leaveAutor(e);
        return;
    default:
        leaveAutorGry(e, liniaIndex(pole));
    }
}

} // namespace dorva
