#include "przeglad/sprawdz.h"
#include "system/proces.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

constexpr int USAGE = 2;

int check(int argc, char** argv) {
    const auto source = argc > 2 ? std::filesystem::path(argv[2]) : dorva::ownExecutable().parent_path();
    return dorva::sprawdz(dorva::SYSTEM_CALLS, source, stdout, stderr);
}

} // namespace

int main(int argc, char** argv) {
    if (argc > 1 && argv[1] == std::string_view("--sprawdz") && argc <= 3)
        return check(argc, argv);
    std::fputs("przeglad --sprawdz [PLIK]\n", stderr);
    return USAGE;
}
