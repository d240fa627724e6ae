// Binds the window to the operations: events to what they run, hooks to what they show.
#pragma once

#include "edytor.h"

#include <functional>

class QWidget;

namespace dorva {

class KontrolkiOkna;
class PaletaOkno;

// Runs an operation and shows what it did.
using Wykonanie = std::function<void(const std::function<void(Edytor&)>&)>;

// Every event of a control, and of the palette dialog, runs its operation.
void bindEvents(const KontrolkiOkna&, PaletaOkno&, const Wykonanie& run);

// Whatever blocks `window` first shows, by `show`, what was done up to then.
void bindHooks(Haki&, QWidget* window, const std::function<void()>& show);

} // namespace dorva
