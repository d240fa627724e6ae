#include "shell/pliki.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace dorva {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view TEMPORARY_PREFIX = "dorva-";
constexpr std::string_view TEMPORARY_SUFFIX = ".dp-tmp";
constexpr ::mode_t NEW_FILE_MODE = 0666;

// An open file that is closed when its scope ends.
class Otwarty {
public:
    Otwarty(const SystemPlikow& system, const fs::path& path, int flags, ::mode_t mode = NEW_FILE_MODE)
        : system_(system), file_(system.open(path.c_str(), flags | O_CLOEXEC, mode)) {}
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

// The file that a path stands for once its symbolic links are followed, also where that file is missing.
std::optional<fs::path> resolved(fs::path path) {
    std::error_code error;
    for (int links = 0; links < 40; ++links) {
        if (!fs::is_symlink(fs::symlink_status(path, error)))
            return path;
        const fs::path target = fs::read_symlink(path, error);
        if (error)
            return std::nullopt;
        path = target.is_absolute() ? target : path.parent_path() / target;
    }
    return std::nullopt;
}

// True if an ordinary open for writing would accept the file, or if there is none. A rename alone would
// also replace read-only files, devices and directories.
bool acceptsWriting(const SystemPlikow& system, const fs::path& path, ::mode_t& mode) {
    struct ::stat info {};
    if (system.stat(path.c_str(), &info) != 0)
        return errno == ENOENT;
    mode = info.st_mode & 07777;
    return S_ISREG(info.st_mode) && Otwarty(system, path, O_WRONLY).ok();
}

bool writeTemporary(const SystemPlikow& system, const fs::path& path, std::span<const Bajt> bytes,
                    std::optional<::mode_t> mode) {
    Otwarty file(system, path, O_WRONLY | O_CREAT | O_EXCL);
    if (!file.ok())
        return false;
    if (mode && system.fchmod(file.file(), *mode) != 0)
        return false;
    return writeAll(system, file.file(), bytes) && system.fsync(file.file()) == 0 && file.closeNow();
}

// Makes the rename itself outlive a power cut. The file is in place already, so a failure is no failure
// of the write.
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

// True if the process whose number a temporary file carries is still there.
bool ownerLives(std::string_view name) {
    const std::string number(name.substr(TEMPORARY_PREFIX.size()));
    const long pid = std::strtol(number.c_str(), nullptr, 10);
    return pid > 0 && pid != ::getpid() && (::kill(static_cast<::pid_t>(pid), 0) == 0 || errno == EPERM);
}

fs::path folderOf(const fs::path& path) {
    return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

// The first free name of <name>.kopia, .kopia2, .kopia3, ...
std::optional<fs::path> freeKopia(const fs::path& path) {
    std::error_code error;
    for (int number = 1; number < 10000; ++number) {
        fs::path kopia = path;
        kopia += number == 1 ? ".kopia" : ".kopia" + std::to_string(number);
        if (fs::symlink_status(kopia, error).type() == fs::file_type::not_found)
            return kopia;
    }
    return std::nullopt;
}

// A second name for the old file, or a copy of it where the file system has no hard links.
bool keepAs(const SystemPlikow& system, const fs::path& old, const fs::path& kopia) {
    if (system.link(old.c_str(), kopia.c_str()) == 0)
        return true;
    const auto length = lengthOf(system, old);
    constexpr std::uintmax_t COPY_MAX_BYTES = 64U << 20U;
    if (!length || *length > COPY_MAX_BYTES)
        return false;
    const auto bytes = readFirst(system, old, static_cast<std::size_t>(*length));
    return bytes && writeWhole(system, kopia, *bytes);
}

int openFile(const char* path, int flags, ::mode_t mode) {
    return ::open(path, flags, mode);
}

} // namespace

const SystemPlikow SYSTEM_PLIKOW{openFile, ::read,   ::write, ::fsync, ::close, ::rename,
                                 ::link,   ::unlink, ::stat,  ::fstat, ::fchmod};

std::optional<Bajty> readFirst(const SystemPlikow& system, const fs::path& path, std::size_t count) {
    // O_NONBLOCK: a pipe in place of a file answers at once instead of waiting for a writer.
    const Otwarty file(system, path, O_RDONLY | O_NONBLOCK);
    if (!file.ok() && errno == ENOENT)
        const Otwarty created(system, path, O_WRONLY | O_CREAT);
    if (!file.ok() || !file.isRegular())
        return std::nullopt;
    Bajty bytes(count);
    if (!readAll(system, file.file(), bytes))
        return std::nullopt;
    return bytes;
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

bool writeWhole(const SystemPlikow& system, const fs::path& path, std::span<const Bajt> bytes) {
    const auto target = resolved(path);
    if (!target)
        return false;
    ::mode_t mode = 0;
    if (!acceptsWriting(system, *target, mode))
        return false;
    const fs::path temporary = temporaryPath(*target);
    system.unlink(temporary.c_str()); // left over by a killed process of the same number
    const bool written = writeTemporary(system, temporary, bytes, mode ? std::optional(mode) : std::nullopt) &&
                         system.rename(temporary.c_str(), target->c_str()) == 0;
    if (!written) {
        system.unlink(temporary.c_str());
        return false;
    }
    flushFolder(system, folderOf(*target));
    return true;
}

bool writeKeepingOld(const SystemPlikow& system, const fs::path& path, std::span<const Bajt> bytes) {
    const auto length = lengthOf(system, path);
    if (!length || *length == 0)
        return writeWhole(system, path, bytes);
    if (*length == bytes.size()) {
        const auto old = readFirst(system, path, bytes.size());
        if (old && std::equal(old->begin(), old->end(), bytes.begin()))
            return true;
    }
    const auto target = resolved(path);
    const auto kopia = freeKopia(path);
    if (!target || !kopia || !keepAs(system, *target, *kopia))
        return false;
    if (writeWhole(system, path, bytes))
        return true;
    system.unlink(kopia->c_str());
    return false;
}

std::vector<std::string> listNames(const fs::path& folder, std::string_view suffix) {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        const std::string name = it->path().filename().string();
        if (name.size() >= suffix.size() && name.ends_with(suffix))
            names.push_back(name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

void sweepTemporary(const SystemPlikow& system, const fs::path& folder) {
    for (const std::string& name : listNames(folder, TEMPORARY_SUFFIX))
        if (name.starts_with(TEMPORARY_PREFIX) && !ownerLives(name))
            system.unlink((folder / name).c_str());
}

} // namespace dorva
