#include "system/wzorzec.h"

#include "system/system_own.h"

#include <cerrno>

namespace dorva {
namespace {

namespace fs = std::filesystem;

std::error_code layWhole(const fs::path& from, const fs::path& to) {
    std::error_code error;
    if (!fs::exists(from, error) || fs::exists(fs::symlink_status(to, error)))
        return {};
    fs::path copy = to;
    copy += ".nowe";
    fs::remove_all(copy, error); // left by a run that was interrupted
    fs::create_directories(to.parent_path(), error);
    if (!error)
        fs::copy(from, copy, fs::copy_options::recursive, error);
    if (!error && own::rename(copy, to) != 0)
        error.assign(errno, std::generic_category());
    return error;
}

} // namespace

std::error_code layOut(const fs::path& folder) {
    std::error_code first;
    for (const char* name :
         {"PLIKI/DP1.DTA", "ETAPY", "PLIKI/DP3.BAT", "PLIKI/PALETY/Bitwor.act", "OBIEKTY/ORN_EXPORT"})
        if (const auto error = layWhole(folder / "wzorzec" / name, folder / name); error && !first)
            first = error;
    return first;
}

} // namespace dorva
