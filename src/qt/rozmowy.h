// Message boxes and file dialogs.
#pragma once

#include "system/haki.h"

#include <filesystem>
#include <optional>

class QWidget;

namespace dorva {

// Shows a message box with Polish buttons. True for OK and Yes. Closing it counts as its last button.
bool showMessageBox(QWidget* parent, const Komunikat&);

// Show a file dialog, the desktop's own if there is one. Nothing if the user cancelled.
std::optional<std::filesystem::path> showOpenDialog(QWidget* parent, const DialogPliku&);
std::optional<std::filesystem::path> showSaveDialog(QWidget* parent, const DialogPliku&);

} // namespace dorva
