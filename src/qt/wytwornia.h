// Makes the widget for a row of the catalogue, with its caption. The caller sets its place and name.
#pragma once

#include "qt/kontrolka.h"

namespace dorva::wytwornia {

QWidget* ramka(const Kontrolka&, QWidget* parent);    // a frame with a caption
QWidget* podklad(const Kontrolka&, QWidget* parent);  // a grey field without a border
QWidget* przycisk(const Kontrolka&, QWidget* parent); // a button
QWidget* opcja(const Kontrolka&, QWidget* parent);    // a button that stays down while selected
QWidget* znacznik(const Kontrolka&, QWidget* parent); // a check box
QWidget* etykieta(const Kontrolka&, QWidget* parent); // a plain label, centred
QWidget* nazwa(const Kontrolka&, QWidget* parent);    // a label, right-aligned
QWidget* figura(const Kontrolka&, QWidget* parent);   // a centred label in a thin border
QWidget* probka(const Kontrolka&, QWidget* parent);   // a swatch: a bold figure on a colour, in a thin border
QWidget* suwak(const Kontrolka&, QWidget* parent);    // a horizontal scroll bar
QWidget* pole(const Kontrolka&, QWidget* parent);     // a text box
QWidget* obraz(const Kontrolka&, QWidget* parent);    // the picture of one tile
QWidget* plansza(const Kontrolka&, QWidget* parent);  // the board
QWidget* wybor(const Kontrolka&, QWidget* parent);    // the tile picker

} // namespace dorva::wytwornia
