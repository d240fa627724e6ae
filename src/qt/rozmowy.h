// What the editor asks of the desktop: message boxes and file dialogs.
#pragma once

#include "system/haki.h"

#include <filesystem>
#include <optional>

class QWidget;

namespace dorva {

// A message box with Polish buttons. True for OK and Yes. Closing it counts as its last button.
bool showMessageBox(QWidget* parent, const Komunikat&);

// File dialogs: the desktop's own where there is one. Nothing where the user cancelled.
std::optional<std::filesystem::path> showOpenDialog(QWidget* parent, const DialogPliku&);
std::optional<std::filesystem::path> showSaveDialog(QWidget* parent, const DialogPliku&);

} // namespace dorva
