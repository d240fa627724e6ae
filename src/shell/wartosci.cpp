#include "shell/wartosci.h"

namespace dorva {

std::string infoCaption(info::Figura figura, int liczba) {
    if (figura == info::DORVA || figura == info::WYJSCIE)
        return liczba > 0 ? "ok" : "!";
    return std::to_string(liczba);
}

} // namespace dorva
