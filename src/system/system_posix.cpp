#include "system/pliki.h"
#include "system/proces.h"
#include "system/system_plikow.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <span>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace dorva {
namespace {

namespace fs = std::filesystem;

constexpr ::mode_t NEW_FILE_MODE = 0666;
constexpr ::mode_t MODE_BITS = 07777;

Wynik lastWynik() {
    switch (errno) {
    case ENOENT:
    case ENOTDIR:
        return Wynik::NieMa;
    case EEXIST:
        return Wynik::Zajete;
    case EACCES:
    case EPERM:
        return Wynik::Odmowa;
    case EINTR:
        return Wynik::Przerwane;
    default:
        return Wynik::Blad;
    }
}

Wynik done(int answer) {
    return answer == 0 ? Wynik::Ok : lastWynik();
}

int number(Uchwyt file) {
    return static_cast<int>(file);
}

constexpr int flagsOf(Otwarcie otwarcie) {
    switch (otwarcie) {
    case Otwarcie::Odczyt:
        return O_RDONLY;
    case Otwarcie::Zapis:
        return O_WRONLY;
    case Otwarcie::OdNowa:
        return O_WRONLY | O_TRUNC;
    case Otwarcie::Utworzenie:
        return O_WRONLY | O_CREAT;
    default:
        return O_WRONLY | O_CREAT | O_EXCL;
    }
}

Wynik open(const fs::path& path, Otwarcie otwarcie, Uchwyt& file) {
    file = Uchwyt{::open(path.c_str(), flagsOf(otwarcie) | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, NEW_FILE_MODE)};
    return file == Uchwyt::Zaden ? lastWynik() : Wynik::Ok;
}

Wynik moved(::ssize_t answer, std::size_t& count) {
    count = answer < 0 ? 0 : static_cast<std::size_t>(answer);
    return answer < 0 ? lastWynik() : Wynik::Ok;
}

Wynik read(Uchwyt file, std::span<Bajt> bytes, std::size_t& count) {
    return moved(::read(number(file), bytes.data(), bytes.size()), count);
}

Wynik write(Uchwyt file, std::span<const Bajt> bytes, std::size_t& count) {
    return moved(::write(number(file), bytes.data(), bytes.size()), count);
}

constexpr RodzajPliku rodzajOf(::mode_t mode) {
    return S_ISREG(mode)   ? RodzajPliku::Zwykly
           : S_ISDIR(mode) ? RodzajPliku::Katalog
           : S_ISLNK(mode) ? RodzajPliku::Dowiazanie
                           : RodzajPliku::Inny;
}

Wynik told(int answer, const struct ::stat& info, OpisPliku& opis) {
    if (answer != 0)
        return lastWynik();
    opis = {rodzajOf(info.st_mode),  static_cast<std::uintmax_t>(info.st_size), info.st_dev, info.st_ino, info.st_nlink,
            info.st_mode & MODE_BITS};
    return Wynik::Ok;
}

Wynik describe(Uchwyt file, OpisPliku& opis) {
    struct ::stat info {};
    return told(::fstat(number(file), &info), info, opis);
}

Wynik stat(const fs::path& path, OpisPliku& opis) {
    struct ::stat info {};
    return told(::stat(path.c_str(), &info), info, opis);
}

Wynik lstat(const fs::path& path, OpisPliku& opis) {
    struct ::stat info {};
    return told(::lstat(path.c_str(), &info), info, opis);
}

Wynik readLink(const fs::path& path, fs::path& target) {
    std::array<char, 4096> name{};
    const ::ssize_t length = ::readlink(path.c_str(), name.data(), name.size());
    if (length <= 0 || static_cast<std::size_t>(length) == name.size())
        return Wynik::Blad;
    target = std::string_view(name.data(), static_cast<std::size_t>(length));
    return Wynik::Ok;
}

Wynik flushFolder(const fs::path& folder) {
    const int file = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (file < 0)
        return lastWynik();
    const Wynik wynik = done(::fsync(file));
    ::close(file);
    return wynik;
}

Wynik list(const fs::path& folder, std::vector<fs::path>& names) {
    ::DIR* const listing = ::opendir(folder.c_str());
    if (!listing)
        return lastWynik();
    const auto next = [&] {
        errno = 0; // tells the end of the listing from a failure
        return ::readdir(listing);
    };
    while (const ::dirent* entry = next())
        if (const std::string_view name = entry->d_name; name != "." && name != "..")
            names.emplace_back(name);
    const Wynik wynik = errno == 0 ? Wynik::Ok : lastWynik();
    ::closedir(listing);
    return wynik;
}

} // namespace

const SystemPlikow SYSTEM_PLIKOW{
    .open = open,
    .read = read,
    .write = write,
    .flush = [](Uchwyt file) { return done(::fsync(number(file))); },
    .close = [](Uchwyt file) { return done(::close(number(file))); },
    .describe = describe,
    .setMode = [](Uchwyt file, unsigned mode) { return done(::fchmod(number(file), mode)); },
    .stat = stat,
    .lstat = lstat,
    .readLink = readLink,
    .rename = [](const fs::path& from, const fs::path& to) { return done(::rename(from.c_str(), to.c_str())); },
    .link = [](const fs::path& from, const fs::path& to) { return done(::link(from.c_str(), to.c_str())); },
    .remove = [](const fs::path& path) { return done(::unlink(path.c_str())); },
    .flushFolder = flushFolder,
    .list = list,
};

std::uint32_t ownNumber() {
    return static_cast<std::uint32_t>(::getpid());
}

bool isRunning(std::uint32_t process) {
    const auto pid = static_cast<::pid_t>(process);
    return pid > 0 && (::kill(pid, 0) == 0 || errno == EPERM);
}

fs::path ownExecutable() {
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error);
}

} // namespace dorva
