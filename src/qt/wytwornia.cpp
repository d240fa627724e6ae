#include "qt/wytwornia.h"

#include "podstawy.h"
#include "qt/czcionki.h"
#include "qt/konwersje.h"
#include "qt/pole_edycji.h"
#include "qt/widgety.h"
#include "qt/widoki_znakow.h"

namespace dorva::wytwornia {
namespace {

template <typename Label> Label* makeLabel(const Kontrolka& k, QWidget* parent) {
    auto* label = new Label(toQString(k.caption), parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

} // namespace

QWidget* ramka(const Kontrolka& k, QWidget* parent) {
    return new Ramka(toQString(k.caption), parent);
}

QWidget* podklad(const Kontrolka&, QWidget* parent) {
    auto* field = new QWidget(parent);
    field->setAutoFillBackground(true);
    setColour(field, QPalette::Window, QColor::fromRgb(SZARY));
    return field;
}

QWidget* przycisk(const Kontrolka& k, QWidget* parent) {
    auto* button = new Przycisk(toQString(k.caption), parent);
    button->setAutoDefault(true); // the Enter key presses it, as it does in a dialog
    return button;
}

QWidget* opcja(const Kontrolka& k, QWidget* parent) {
    auto* button = new Przycisk(toQString(k.caption), parent);
    button->setCheckable(true);
    return button;
}

QWidget* znacznik(const Kontrolka& k, QWidget* parent) {
    return new Znacznik(toQString(k.caption), parent);
}

QWidget* etykieta(const Kontrolka& k, QWidget* parent) {
    auto* label = makeLabel<Etykieta>(k, parent);
    label->setWordWrap(true);
    return label;
}

QWidget* nazwa(const Kontrolka& k, QWidget* parent) {
    auto* label = makeLabel<Etykieta>(k, parent);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

QWidget* figura(const Kontrolka& k, QWidget* parent) {
    auto* label = makeLabel<EtykietaFigury>(k, parent);
    label->setAutoFillBackground(true); // so that what is below it isn't repainted with it
    return label;
}

QWidget* probka(const Kontrolka& k, QWidget* parent) {
    auto* label = makeLabel<ProbkaKoloru>(k, parent);
    label->setAutoFillBackground(true);
    label->setFont(fontFigury());
    return label;
}

QWidget* suwak(const Kontrolka&, QWidget* parent) {
    auto* bar = new Suwak(parent);
    bar->setRange(CEL_MIN, CEL_MAX);
    bar->setPageStep(1);
    bar->setTracking(false);
    bar->setFocusPolicy(Qt::StrongFocus);
    return bar;
}

QWidget* pole(const Kontrolka&, QWidget* parent) {
    auto* box = new PoleEdycji(parent);
    box->setFont(fontStaly());
    return box;
}

QWidget* obraz(const Kontrolka&, QWidget* parent) {
    return new ObrazWidget(parent);
}

QWidget* plansza(const Kontrolka&, QWidget* parent) {
    return new PlanszaWidget(parent);
}

QWidget* wybor(const Kontrolka&, QWidget* parent) {
    return new WyborWidget(parent);
}

} // namespace dorva::wytwornia
