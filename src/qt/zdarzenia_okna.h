// Binds the window to the operations.
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

// Sets the hooks. Those that block the window call `show` first, so that the user sees the current state behind a
// dialog.
void bindHooks(Haki&, QWidget* window, const std::function<void()>& show);

} // namespace dorva
