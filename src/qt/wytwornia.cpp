#include "qt/wytwornia.h"

#include "qt/kontrolki.h"
#include "qt/pola_znakow.h"
#include "qt/przeklad.h"
#include "stage/etap_image.h"

#include <QCheckBox>

namespace dorva {
namespace {

template <typename Label> Label* makeLabel(const Kontrolka& k, QWidget* parent) {
    auto* label = new Label(toQString(k.caption), parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

} // namespace

QWidget* makeWidget(const Kontrolka& k, QWidget* parent) {
    switch (k.rodzaj) {
    case Rodzaj::Ramka:
        return new Ramka(toQString(k.caption), parent);
    case Rodzaj::Pole: {
        auto* pole = new QWidget(parent);
        pole->setAutoFillBackground(true);
        setColour(pole, QPalette::Window, QColor::fromRgb(SZARY));
        return pole;
    }
    case Rodzaj::Przycisk: {
        auto* przycisk = new Przycisk(toQString(k.caption), parent);
        przycisk->setAutoDefault(true); // the Enter key presses it, as it does in a dialog
        return przycisk;
    }
    case Rodzaj::Opcja: {
        auto* opcja = new Przycisk(toQString(k.caption), parent);
        opcja->setCheckable(true);
        return opcja;
    }
    case Rodzaj::Znacznik:
        return new QCheckBox(toQString(k.caption), parent);
    case Rodzaj::Etykieta: {
        auto* label = makeLabel<Etykieta>(k, parent);
        label->setWordWrap(true);
        return label;
    }
    case Rodzaj::Nazwa: {
        auto* label = makeLabel<Etykieta>(k, parent);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        return label;
    }
    case Rodzaj::Figura: {
        auto* label = makeLabel<Figura>(k, parent);
        label->setAutoFillBackground(true); // so that nothing below is painted anew with it
        return label;
    }
    case Rodzaj::Probka: {
        auto* label = makeLabel<ProbkaKoloru>(k, parent);
        label->setAutoFillBackground(true);
        label->setFont(fontFigury());
        return label;
    }
    case Rodzaj::Pasek: {
        auto* pasek = new Pasek(parent);
        pasek->setRange(CEL_MIN, CEL_MAX);
        pasek->setPageStep(1);
        pasek->setTracking(false);
        pasek->setFocusPolicy(Qt::StrongFocus);
        return pasek;
    }
    case Rodzaj::Tekst: {
        auto* box = new PoleEdycji(parent);
        box->setFont(fontStaly());
        return box;
    }
    case Rodzaj::Obraz:
        return new ObrazWidget(parent);
    case Rodzaj::Plansza:
        return new PlanszaWidget(parent);
    case Rodzaj::Wybor:
        return new WyborWidget(parent);
    }
    return nullptr;
}

} // namespace dorva
