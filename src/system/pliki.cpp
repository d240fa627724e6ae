#include "system/pliki.h"

#include "system/system_plikow.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

namespace dorva {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view TEMPORARY_PREFIX = "dorva-";
constexpr std::string_view TEMPORARY_SUFFIX = ".dp-tmp";
constexpr ::mode_t NEW_FILE_MODE = 0666;
constexpr ::mode_t MODE_BITS = 07777;

// An open file that is closed when its scope ends.
class Otwarty {
public:
    // O_NONBLOCK: a pipe in place of a file answers at once instead of waiting for its other end.
    Otwarty(const SystemPlikow& system, const fs::path& path, int flags, ::mode_t mode = NEW_FILE_MODE)
        : system_(system), file_(system.open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, mode)) {}
    ~Otwarty() {
        if (file_ >= 0)
            system_.close(file_);
    }
    Otwarty(const Otwarty&) = delete;
    Otwarty& operator=(const Otwarty&) = delete;

    [[nodiscard]] bool ok() const { return file_ >= 0; }
    [[nodiscard]] int file() const { return file_; }
    [[nodiscard]] bool isRegular() const {
        struct ::stat info {};
        return system_.fstat(file_, &info) == 0 && S_ISREG(info.st_mode);
    }
    [[nodiscard]] bool setMode(::mode_t mode) const {
        // Asked only where it is needed: some file systems know no mode bits and refuse every change.
        struct ::stat info {};
        return system_.fstat(file_, &info) == 0 &&
               ((info.st_mode & MODE_BITS) == mode || system_.fchmod(file_, mode) == 0);
    }
    [[nodiscard]] bool closeNow() {
        const int file = file_;
        file_ = -1;
        return system_.close(file) == 0;
    }

private:
    const SystemPlikow& system_;
    int file_;
};

bool readAll(const SystemPlikow& system, int file, std::span<Bajt> bytes) {
    while (!bytes.empty()) {
        const ::ssize_t count = system.read(file, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    return true;
}

bool writeAll(const SystemPlikow& system, int file, std::span<const Bajt> bytes) {
    while (!bytes.empty()) {
        const ::ssize_t count = system.write(file, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    return true;
}

std::optional<Bajty> readOpened(const SystemPlikow& system, const Otwarty& file, std::size_t count) {
    if (!file.ok() || !file.isRegular())
        return std::nullopt;
    Bajty bytes(count);
    return readAll(system, file.file(), bytes) ? std::optional(std::move(bytes)) : std::nullopt;
}

fs::path folderOf(const fs::path& path) {
    return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

// The file that a path stands for once its symbolic links are followed, also where that file is missing.
// Nothing where it can't be told: a rename would then put a file in the place of a link.
std::optional<fs::path> resolved(const SystemPlikow& system, fs::path path) {
    constexpr int LINKS_MAX = 40;
    std::array<char, 4096> target{};
    for (int links = 0; links < LINKS_MAX; ++links) {
        struct ::stat info {};
        if (system.lstat(path.c_str(), &info) != 0)
            return errno == ENOENT ? std::optional(path) : std::nullopt;
        if (!S_ISLNK(info.st_mode))
            return path;
        const ::ssize_t length = system.readlink(path.c_str(), target.data(), target.size());
        if (length <= 0 || static_cast<std::size_t>(length) == target.size())
            return std::nullopt;
        path = path.parent_path() / std::string_view(target.data(), static_cast<std::size_t>(length));
    }
    return std::nullopt;
}

// What a write is about to replace: the file behind all links and, if it is there, what it is like.
struct Cel {
    fs::path path;
    std::optional<struct ::stat> old;
};

// Nothing where an ordinary open for writing would fail. A rename alone would also replace read-only
// files, devices and directories.
std::optional<Cel> findCel(const SystemPlikow& system, const fs::path& path) {
    const auto target = resolved(system, path);
    if (!target)
        return std::nullopt;
    struct ::stat info {};
    if (system.stat(target->c_str(), &info) != 0)
        return errno == ENOENT ? std::optional(Cel{*target, std::nullopt}) : std::nullopt;
    if (!S_ISREG(info.st_mode) || !Otwarty(system, *target, O_WRONLY).ok())
        return std::nullopt;
    return Cel{*target, info};
}

bool writeTemporary(const SystemPlikow& system, const fs::path& path, std::span<const Bajt> bytes,
                    const std::optional<struct ::stat>& like) {
    Otwarty file(system, path, O_WRONLY | O_CREAT | O_EXCL);
    if (!file.ok())
        return false;
    if (like && !file.setMode(like->st_mode & MODE_BITS))
        return false;
    return writeAll(system, file.file(), bytes) && system.fsync(file.file()) == 0 && file.closeNow();
}

// Makes a new name itself outlive a power cut. It is in place already, so a failure is no failure of
// the write.
void flushFolder(const SystemPlikow& system, const fs::path& folder) {
    const Otwarty file(system, folder, O_RDONLY | O_DIRECTORY);
    if (file.ok())
        (void)system.fsync(file.file());
}

// A name of our own beside the target, told apart by process.
fs::path temporaryPath(const fs::path& target) {
    return target.parent_path() /
           (std::string(TEMPORARY_PREFIX) + std::to_string(::getpid()) + std::string(TEMPORARY_SUFFIX));
}

// The bytes of an old file; nothing where it can't be read or is larger than anything the editor makes.
std::optional<Bajty> contentOf(const SystemPlikow& system, const fs::path& path, const struct ::stat& info) {
    constexpr ::off_t CONTENT_MAX_BYTES = 64 << 20;
    if (info.st_size > CONTENT_MAX_BYTES)
        return std::nullopt;
    return readFirst(system, path, static_cast<std::size_t>(info.st_size));
}

bool writeOver(const SystemPlikow& system, const fs::path& path, int flags, std::span<const Bajt> bytes) {
    Otwarty file(system, path, O_WRONLY | flags);
    return file.ok() && writeAll(system, file.file(), bytes) && system.fsync(file.file()) == 0 && file.closeNow();
}

// The way where the folder refuses new names. Not for a file with a second name, which would change along.
bool writeInPlace(const SystemPlikow& system, const Cel& cel, std::span<const Bajt> bytes) {
    struct ::stat info {};
    if (!cel.old || system.stat(cel.path.c_str(), &info) != 0 || info.st_nlink != 1)
        return false;
    const auto old = contentOf(system, cel.path, info);
    if (!old)
        return false;
    if (writeOver(system, cel.path, bytes.size() < old->size() ? O_TRUNC : 0, bytes))
        return true;
    (void)writeOver(system, cel.path, O_TRUNC, *old);
    return false;
}

bool isRefused(int error) {
    return error == EACCES || error == EPERM;
}

bool replace(const SystemPlikow& system, const Cel& cel, std::span<const Bajt> bytes) {
    const fs::path temporary = temporaryPath(cel.path);
    system.unlink(temporary.c_str()); // left over by a killed process of the same number
    if (!writeTemporary(system, temporary, bytes, cel.old) || system.rename(temporary.c_str(), cel.path.c_str()) != 0) {
        const bool refused = isRefused(errno);
        system.unlink(temporary.c_str());
        return refused && writeInPlace(system, cel, bytes);
    }
    flushFolder(system, folderOf(cel.path));
    return true;
}

// True if the process whose number a temporary file carries is still there.
bool ownerLives(std::string_view name) {
    const std::string number(name.substr(TEMPORARY_PREFIX.size()));
    const long pid = std::strtol(number.c_str(), nullptr, 10);
    return pid > 0 && pid != ::getpid() && (::kill(static_cast<::pid_t>(pid), 0) == 0 || errno == EPERM);
}

// The first free name of <name>.kopia, .kopia2, .kopia3, ...
std::optional<fs::path> freeKopia(const SystemPlikow& system, const fs::path& path) {
    constexpr int KOPIE_MAX = 10000;
    for (int number = 1; number < KOPIE_MAX; ++number) {
        fs::path kopia = path;
        kopia += number == 1 ? ".kopia" : ".kopia" + std::to_string(number);
        struct ::stat info {};
        if (system.lstat(kopia.c_str(), &info) == 0)
            continue;
        return errno == ENOENT ? std::optional(kopia) : std::nullopt;
    }
    return std::nullopt;
}

// A second name for the old file, or a copy of it where the file system has no hard links.
bool keepAs(const SystemPlikow& system, const Cel& cel, const fs::path& kopia, const std::optional<Bajty>& old) {
    if (system.link(cel.path.c_str(), kopia.c_str()) == 0) {
        flushFolder(system, folderOf(kopia));
        return true;
    }
    return errno != EEXIST && old && replace(system, {kopia, cel.old}, *old);
}

bool isSame(const struct ::stat& a, const struct ::stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

// Whether a write that failed has certainly changed nothing: a rename can be carried out and still be answered by an
// error.
bool isStillOld(const SystemPlikow& system, const Cel& cel, const std::optional<Bajty>& old) {
    struct ::stat info {};
    return system.stat(cel.path.c_str(), &info) == 0 && isSame(info, *cel.old) &&
           (!old || contentOf(system, cel.path, info) == old);
}

} // namespace

std::optional<Bajty> readOrCreate(const SystemPlikow& system, const fs::path& path, std::size_t count) {
    const Otwarty file(system, path, O_RDONLY);
    if (!file.ok() && errno == ENOENT)
        const Otwarty created(system, path, O_WRONLY | O_CREAT);
    return readOpened(system, file, count);
}

std::optional<Bajty> readFirst(const SystemPlikow& system, const fs::path& path, std::size_t count) {
    return readOpened(system, Otwarty(system, path, O_RDONLY), count);
}

std::optional<std::uintmax_t> lengthOf(const SystemPlikow& system, const fs::path& path) {
    struct ::stat info {};
    if (system.stat(path.c_str(), &info) != 0 || !S_ISREG(info.st_mode))
        return std::nullopt;
    return static_cast<std::uintmax_t>(info.st_size);
}

bool fileExists(const SystemPlikow& system, const fs::path& path) {
    struct ::stat info {};
    return system.stat(path.c_str(), &info) == 0 || (errno != ENOENT && errno != ENOTDIR);
}

bool isSameFile(const SystemPlikow& system, const fs::path& a, const fs::path& b) {
    struct ::stat first {};
    struct ::stat second {};
    if (system.stat(a.c_str(), &first) != 0 || system.stat(b.c_str(), &second) != 0)
        return errno != ENOENT && errno != ENOTDIR;
    return isSame(first, second);
}

bool writeWhole(const SystemPlikow& system, const fs::path& path, std::span<const Bajt> bytes) {
    const auto cel = findCel(system, path);
    return cel && replace(system, *cel, bytes);
}

bool writeKeepingUnknown(const SystemPlikow& system, const fs::path& path, std::span<const Bajt> bytes,
                         const std::optional<Bajty>& known) {
    const auto cel = findCel(system, path);
    if (!cel)
        return false;
    if (!cel->old || cel->old->st_size == 0)
        return replace(system, *cel, bytes);
    const auto old = contentOf(system, cel->path, *cel->old);
    if (old && (old == known || std::ranges::equal(*old, bytes)))
        return replace(system, *cel, bytes);
    const auto kopia = freeKopia(system, path);
    if (!kopia || !keepAs(system, *cel, *kopia, old))
        return false;
    if (replace(system, *cel, bytes))
        return true;
    if (isStillOld(system, *cel, old))
        system.unlink(kopia->c_str());
    return false;
}

std::vector<std::string> listNames(const SystemPlikow& system, const fs::path& folder, std::string_view suffix) {
    std::vector<std::string> names;
    ::DIR* const listing = system.opendir(folder.c_str());
    if (!listing)
        return names;
    const auto next = [&] {
        errno = 0; // tells the end of the listing from a failure
        return system.readdir(listing);
    };
    while (const ::dirent* entry = next()) {
        const std::string_view name = entry->d_name;
        if (name.ends_with(suffix) && name != "." && name != "..")
            names.emplace_back(name);
    }
    if (errno != 0)
        names.clear();
    system.closedir(listing);
    std::sort(names.begin(), names.end());
    return names;
}

void sweepTemporary(const SystemPlikow& system, std::span<const fs::path> files) {
    std::set<fs::path> folders;
    for (const fs::path& file : files)
        if (const auto target = resolved(system, file))
            folders.insert(folderOf(*target));
    for (const fs::path& folder : folders)
        for (const std::string& name : listNames(system, folder, TEMPORARY_SUFFIX))
            if (name.starts_with(TEMPORARY_PREFIX) && !ownerLives(name))
                system.unlink((folder / name).c_str());
}

} // namespace dorva
