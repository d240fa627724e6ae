#include "przeglad/sprawdz.h"

#include "przeglad/ostrzezenia.h"
#include "przeglad/zrodla.h"

#include <string>

namespace dorva {

int sprawdz(const SystemCalls& system, const std::filesystem::path& source, std::FILE* lines, std::FILE* errors) {
    constexpr int CLEAN = 0, WARNINGS = 1, UNREADABLE = 2;
    const Odczyt odczyt = readZrodlo(system, source);
    if (!odczyt.gra) {
        std::fprintf(errors, "przeglad: %s: %s\n", source.string().c_str(), odczyt.dlaczego.c_str());
        return UNREADABLE;
    }
    int status = CLEAN;
    for (int number = 1; const auto& ostrzezenia : listOstrzezenia(*odczyt.gra)) {
        for (const std::string& text : ostrzezenia) {
            std::fprintf(lines, "%d: %s\n", number, text.c_str());
            status = WARNINGS;
        }
        ++number;
    }
    return status;
}

} // namespace dorva
