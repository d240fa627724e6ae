#include "system/wzorzec.h"

#include <chrono>
#include <thread>

namespace dorva {
namespace {

namespace fs = std::filesystem;

// On Windows a file can't be renamed while a scanner holds it, which is likely right after it was written.
void renamePatiently(const fs::path& from, const fs::path& to, std::error_code& error) {
    for (int attempt = 0; attempt < 20; ++attempt) {
        fs::rename(from, to, error);
        if (!error)
            return;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
}

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
    if (!error)
        renamePatiently(copy, to, error);
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
