// What an operation asks of the outside while it runs: messages, dialogs, programs, pictures.
#pragma once

#include "system/bitmapa.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace dorva {

enum class Ikona { Critical, Warning, Information };
enum class Przyciski { Ok, OkCancel, YesNo };

// A message box. Texts are UTF-8; a line feed starts a new line.
struct Komunikat {
    std::string_view title;
    std::string_view text;
    Ikona ikona = Ikona::Information;
    Przyciski przyciski = Przyciski::Ok;
};

// A file dialog. `filter` reads "label|pattern|label|pattern".
struct DialogPliku {
    std::string name;
    std::filesystem::path start;
    std::string_view filter;
};

enum class OknoProgramu { Hidden, Normal };

struct Haki {
    // True for OK and Yes, false for Cancel and No.
    std::function<bool(const Komunikat&)> messageBox;
    // The chosen file; nothing if the user cancelled.
    std::function<std::optional<std::filesystem::path>(const DialogPliku&)> openDialog;
    std::function<std::optional<std::filesystem::path>(const DialogPliku&)> saveDialog;
    // Starts a program, given by its full path, and doesn't wait for it to end.
    std::function<void(const std::filesystem::path&, OknoProgramu)> startProgram;
    // Loads a Windows bitmap; only its top left `width` x `height` pixels are wanted.
    std::function<std::optional<Bitmapa>(const std::filesystem::path&, int width, int height)> loadPicture;
};

// The hooks as the operations ask them. One that is empty or throws answers like a user who cancels.
bool askMessage(const Haki&, const Komunikat&);
std::optional<std::filesystem::path> askOpen(const Haki&, const DialogPliku&);
std::optional<std::filesystem::path> askSave(const Haki&, const DialogPliku&);
void askProgram(const Haki&, const std::filesystem::path&, OknoProgramu);
std::optional<Bitmapa> askPicture(const Haki&, const std::filesystem::path&, int width, int height);

} // namespace dorva
