#include "przeglad/sprawdz.h"

#include "przeglad/ostrzezenia.h"
#include "przeglad/zrodla.h"

#include <cstdio>
#include <string>

namespace dorva {

int sprawdz(const SystemCalls& system, const std::filesystem::path& source) {
    constexpr int CLEAN = 0, WARNINGS = 1, UNREADABLE = 2;
    const Odczyt odczyt = readZrodlo(system, source);
    if (!odczyt.gra) {
        std::fprintf(stderr, "przeglad: %s: %s\n", source.string().c_str(), odczyt.dlaczego.c_str());
        return UNREADABLE;
    }
    int status = CLEAN;
    for (int number = 1; const auto& ostrzezenia : listOstrzezenia(*odczyt.gra)) {
        for (const std::string& text : ostrzezenia) {
            std::printf("%d: %s\n", number, text.c_str());
            status = WARNINGS;
        }
        ++number;
    }
    return status;
}

} // namespace dorva
