#include "system/haki.h"

namespace dorva {
namespace {

template <class Answer, class Hook, class... Args>
Answer ask(const Hook& hook, Answer otherwise, const Args&... args) try {
    return hook ? hook(args...) : otherwise;
} catch (...) {
    return otherwise;
}

using Sciezka = std::optional<std::filesystem::path>;

Sciezka named(const Sciezka& path) {
    return path && !path->empty() ? path : std::nullopt;
}

} // namespace

bool askMessage(const Haki& haki, const Komunikat& komunikat) {
    return ask(haki.messageBox, false, komunikat);
}

Sciezka askOpen(const Haki& haki, const DialogPliku& dialog) {
    return named(ask(haki.openDialog, Sciezka(), dialog));
}

Sciezka askSave(const Haki& haki, const DialogPliku& dialog) {
    return named(ask(haki.saveDialog, Sciezka(), dialog));
}

void askProgram(const Haki& haki, const std::filesystem::path& path, OknoProgramu okno) try {
    if (haki.startProgram)
        haki.startProgram(path, okno);
} catch (...) {
    return;
}

std::optional<Bitmapa> askPicture(const Haki& haki, const std::filesystem::path& path, int width, int height) {
    return ask(haki.loadPicture, std::optional<Bitmapa>(), path, width, height);
}

} // namespace dorva
