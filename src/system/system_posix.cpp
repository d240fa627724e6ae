#include "system/pliki.h"
#include "system/proces.h"
#include "system/system_plikow.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <iterator>
#include <span>
#include <string_view>
#include <sys/file.h>
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
    case EINVAL: // what file systems say of calls that they don't have
    case ENOSYS:
    case EOPNOTSUPP:
        return Wynik::Odmowa;
    default:
        return Wynik::Blad;
    }
}

// What a signal interrupted is asked again.
template <typename Call> auto uninterrupted(Call call) {
    for (;;)
        if (const auto answer = call(); answer != -1 || errno != EINTR)
            return answer;
}

template <typename Call> Wynik done(Call call) {
    return uninterrupted(call) == 0 ? Wynik::Ok : lastWynik();
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

// Asks again while another holds what is asked for: after 10 ms, then after twice as long each time.
template <typename Call> auto patiently(int waits, Call call) {
    for (::useconds_t wait = 10000;; wait *= 2) {
        const auto answer = uninterrupted(call);
        if (answer != -1 || errno != EWOULDBLOCK || waits-- == 0)
            return answer;
        ::usleep(wait);
    }
}

Wynik open(const fs::path& path, Otwarcie otwarcie, Uchwyt& file) {
    const int flags = flagsOf(otwarcie) | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    // Whoever holds a lease on the file, as a file server does, is asked to give it up and soon does.
    file = Uchwyt{patiently(5, [&] { return ::open(path.c_str(), flags, NEW_FILE_MODE); })};
    return file == Uchwyt::Zaden ? lastWynik() : Wynik::Ok;
}

Wynik moved(::ssize_t answer, std::size_t& count) {
    count = answer < 0 ? 0 : answer;
    return answer < 0 ? lastWynik() : Wynik::Ok;
}

Wynik read(Uchwyt file, std::span<Bajt> bytes, std::size_t& count) {
    return moved(uninterrupted([&] { return ::read(number(file), bytes.data(), bytes.size()); }), count);
}

Wynik write(Uchwyt file, std::span<const Bajt> bytes, std::size_t& count) {
    return moved(uninterrupted([&] { return ::write(number(file), bytes.data(), bytes.size()); }), count);
}

Wynik flush(Uchwyt file) {
    return done([&] { return ::fsync(number(file)); });
}

// Not asked again: the file is closed even where a signal came between.
Wynik close(Uchwyt file) {
    return ::close(number(file)) == 0 || errno == EINTR ? Wynik::Ok : lastWynik();
}

constexpr RodzajPliku rodzajOf(::mode_t mode) {
    return S_ISREG(mode)   ? RodzajPliku::Zwykly
           : S_ISDIR(mode) ? RodzajPliku::Katalog
           : S_ISLNK(mode) ? RodzajPliku::Dowiazanie
                           : RodzajPliku::Inny;
}

// The description of a file, by a call that fills in what the system tells of it.
template <typename Call> Wynik told(Call call, OpisPliku& opis) {
    struct ::stat info {};
    if (uninterrupted([&] { return call(&info); }) != 0)
        return lastWynik();
    opis = {rodzajOf(info.st_mode),
            static_cast<std::uintmax_t>(info.st_size),
            info.st_dev,
            info.st_ino,
            info.st_nlink,
            info.st_mode & MODE_BITS,
            info.st_uid,
            info.st_gid,
            std::chrono::seconds(::time(nullptr) - info.st_mtime)};
    return Wynik::Ok;
}

Wynik describe(Uchwyt file, OpisPliku& opis) {
    return told([&](auto* info) { return ::fstat(number(file), info); }, opis);
}

Wynik stat(const fs::path& path, OpisPliku& opis) {
    return told([&](auto* info) { return ::stat(path.c_str(), info); }, opis);
}

Wynik lstat(const fs::path& path, OpisPliku& opis) {
    return told([&](auto* info) { return ::lstat(path.c_str(), info); }, opis);
}

Wynik setOwner(Uchwyt file, ::uid_t owner, ::gid_t group) {
    return done([&] { return ::fchown(number(file), owner, group); });
}

// The mode bits of a file for a group of others: what that group may do everyone may do.
unsigned withoutGroup(unsigned mode) {
    constexpr unsigned GROUP_BITS = 070, OTHERS_BITS = 07, GROUP_SHIFT = 3;
    return (mode & ~GROUP_BITS) | (mode & OTHERS_BITS) << GROUP_SHIFT;
}

// Asks only for what differs: some file systems know neither groups nor mode bits and refuse every change.
Wynik makeLike(Uchwyt file, const OpisPliku& other) {
    constexpr auto SAME = static_cast<unsigned>(-1);
    OpisPliku own;
    if (const Wynik wynik = describe(file, own); wynik != Wynik::Ok)
        return wynik;
    if (own.owner != other.owner)
        (void)setOwner(file, other.owner, SAME);
    const bool grouped = own.group == other.group || setOwner(file, SAME, other.group) == Wynik::Ok;
    const unsigned mode = grouped ? other.mode : withoutGroup(other.mode);
    return own.mode == mode ? Wynik::Ok : done([&] { return ::fchmod(number(file), mode); });
}

Wynik readLink(const fs::path& path, fs::path& target) {
    std::array<char, 4096> name{};
    const ::ssize_t length = ::readlink(path.c_str(), name.data(), name.size());
    if (length <= 0 || length == std::ssize(name))
        return Wynik::Blad;
    target = std::string_view(name.data(), length);
    return Wynik::Ok;
}

Wynik renameOver(const fs::path& from, const fs::path& to) {
    return done([&] { return ::rename(from.c_str(), to.c_str()); });
}

Wynik removeName(const fs::path& path) {
    return done([&] { return ::unlink(path.c_str()); });
}

bool isSame(const fs::path& one, const fs::path& other) {
    OpisPliku first;
    OpisPliku second;
    return lstat(one, first) == Wynik::Ok && lstat(other, second) == Wynik::Ok && first.isSameFile(second);
}

// By a second name, which is never made over another file. Where a file system has none, the name is looked at first.
Wynik renameNew(const fs::path& from, const fs::path& to) {
    Wynik wynik = done([&] { return ::link(from.c_str(), to.c_str()); });
    if (wynik == Wynik::Ok ||
        (wynik == Wynik::Zajete && isSame(from, to))) { // a server may make it and say it is taken
        wynik = removeName(from);
        if (wynik != Wynik::Ok)
            (void)removeName(to);
        return wynik;
    }
    OpisPliku opis;
    if (wynik == Wynik::Odmowa && lstat(to, opis) == Wynik::NieMa)
        return renameOver(from, to);
    return wynik;
}

Wynik swap(const fs::path& one, const fs::path& other) {
    return done([&] { return ::renameat2(AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE); });
}

Wynik holdFolder(const fs::path& folder, Uchwyt& hold) {
    if (const Wynik wynik = open(folder, Otwarcie::Odczyt, hold); wynik != Wynik::Ok)
        return wynik;
    if (patiently(7, [&] { return ::flock(number(hold), LOCK_EX | LOCK_NB); }) == 0)
        return Wynik::Ok;
    close(hold);
    return Wynik::Odmowa;
}

Wynik flushFolder(const fs::path& folder) {
    Uchwyt file{};
    Wynik wynik = open(folder, Otwarcie::Odczyt, file);
    if (wynik == Wynik::Ok) {
        wynik = flush(file);
        close(file);
    }
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
    .flush = flush,
    .close = close,
    .describe = describe,
    .makeLike = makeLike,
    .stat = stat,
    .lstat = lstat,
    .readLink = readLink,
    .rename = renameOver,
    .renameNew = renameNew,
    .swap = swap,
    .remove = removeName,
    .holdFolder = holdFolder,
    .flushFolder = flushFolder,
    .list = list,
};

fs::path ownExecutable() {
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error);
}

} // namespace dorva
