// From a row of the catalogue to its widget.
#pragma once

#include "qt/katalog.h"

class QWidget;

namespace dorva {

// Makes the widget that a row of the catalogue asks for, with its caption; place and name are the caller's.
QWidget* makeWidget(const Kontrolka&, QWidget* parent);

} // namespace dorva
