#include "qt/wytwornia.h"

#include "qt/czcionki.h"
#include "qt/kontrolki.h"
#include "qt/przeklad.h"
#include "qt/widoki_znakow.h"
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
    case Rodzaj::Podklad: {
        auto* podklad = new QWidget(parent);
        podklad->setAutoFillBackground(true);
        setColour(podklad, QPalette::Window, QColor::fromRgb(SZARY));
        return podklad;
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
        auto* label = makeLabel<EtykietaObramowana>(k, parent);
        label->setAutoFillBackground(true); // so that nothing below is painted anew with it
        return label;
    }
    case Rodzaj::Probka: {
        auto* label = makeLabel<ProbkaKoloru>(k, parent);
        label->setAutoFillBackground(true);
        label->setFont(fontFigury());
        return label;
    }
    case Rodzaj::Suwak: {
        auto* suwak = new Suwak(parent);
        suwak->setRange(CEL_MIN, CEL_MAX);
        suwak->setPageStep(1);
        suwak->setTracking(false);
        suwak->setFocusPolicy(Qt::StrongFocus);
        return suwak;
    }
    case Rodzaj::Pole: {
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
