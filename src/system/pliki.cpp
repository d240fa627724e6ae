#include "system/pliki.h"

#include "system/proces.h"
#include "system/system_plikow.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace dorva {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t WHOLE_MAX_BYTES = 64 << 20; // more than anything the editor makes or takes
constexpr std::string_view TEMPORARY_PREFIX = "dorva-";
constexpr std::string_view TEMPORARY_SUFFIX = ".dp-tmp";

// An open file that is closed when its scope ends.
class Otwarty {
public:
    Otwarty(const SystemPlikow& system, const fs::path& path, Otwarcie otwarcie)
        : system_(system), wynik_(system.open(path, otwarcie, file_)) {}
    ~Otwarty() {
        if (ok())
            system_.close(file_);
    }
    Otwarty(const Otwarty&) = delete;
    Otwarty& operator=(const Otwarty&) = delete;

    [[nodiscard]] Wynik wynik() const { return wynik_; }
    [[nodiscard]] bool ok() const { return wynik_ == Wynik::Ok; }
    // The length of the file, if it is a regular one.
    [[nodiscard]] std::optional<std::uintmax_t> length() const {
        OpisPliku opis;
        const bool isRegular = ok() && system_.describe(file_, opis) == Wynik::Ok && opis.rodzaj == RodzajPliku::Zwykly;
        return isRegular ? std::optional(opis.length) : std::nullopt;
    }
    [[nodiscard]] Wynik setMode(unsigned mode) const {
        // Asked only where it is needed: some file systems know no mode bits and refuse every change.
        OpisPliku opis;
        const Wynik wynik = system_.describe(file_, opis);
        return wynik != Wynik::Ok || opis.mode == mode ? wynik : system_.setMode(file_, mode);
    }
    [[nodiscard]] bool readAll(std::span<Bajt> bytes) const { return moveAll(system_.read, bytes); }
    [[nodiscard]] bool writeAll(std::span<const Bajt> bytes) const { return moveAll(system_.write, bytes); }
    [[nodiscard]] bool flush() const { return system_.flush(file_) == Wynik::Ok; }
    [[nodiscard]] bool closeNow() {
        wynik_ = Wynik::Blad;
        return system_.close(file_) == Wynik::Ok;
    }

private:
    template <typename Bytes> bool moveAll(Wynik (*move)(Uchwyt, Bytes, std::size_t&), Bytes bytes) const {
        while (!bytes.empty()) {
            std::size_t count = 0;
            const Wynik wynik = move(file_, bytes, count);
            if (wynik == Wynik::Przerwane)
                continue;
            if (wynik != Wynik::Ok || count == 0)
                return false;
            bytes = bytes.subspan(count);
        }
        return true;
    }

    const SystemPlikow& system_;
    Uchwyt file_ = Uchwyt::Zaden;
    Wynik wynik_;
};

std::optional<Bajty> readBytes(const Otwarty& file, std::size_t count) {
    Bajty bytes(count);
    return file.readAll(bytes) ? std::optional(std::move(bytes)) : std::nullopt;
}

fs::path folderOf(const fs::path& path) {
    return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

// The file that a path stands for once its symbolic links are followed, also where that file is missing.
// Nothing where it can't be told: a rename would then put a file in the place of a link.
std::optional<fs::path> resolved(const SystemPlikow& system, fs::path path) {
    constexpr int LINKS_MAX = 40;
    for (int links = 0; links < LINKS_MAX; ++links) {
        OpisPliku opis;
        const Wynik wynik = system.lstat(path, opis);
        if (wynik != Wynik::Ok)
            return wynik == Wynik::NieMa ? std::optional(path) : std::nullopt;
        if (opis.rodzaj != RodzajPliku::Dowiazanie)
            return path;
        fs::path target;
        if (system.readLink(path, target) != Wynik::Ok)
            return std::nullopt;
        path = path.parent_path() / target;
    }
    return std::nullopt;
}

// What a write is about to replace: the file behind all links and, if it is there, what it is like.
struct Cel {
    fs::path path;
    std::optional<OpisPliku> old;
};

// Nothing where an ordinary open for writing would fail. A rename alone would also replace read-only
// files, devices and directories.
std::optional<Cel> findCel(const SystemPlikow& system, const fs::path& path) {
    const auto target = resolved(system, path);
    if (!target)
        return std::nullopt;
    OpisPliku old;
    const Wynik wynik = system.stat(*target, old);
    if (wynik != Wynik::Ok)
        return wynik == Wynik::NieMa ? std::optional(Cel{*target, std::nullopt}) : std::nullopt;
    if (old.rodzaj != RodzajPliku::Zwykly || !Otwarty(system, *target, Otwarcie::Zapis).ok())
        return std::nullopt;
    return Cel{*target, old};
}

Wynik writeTemporary(const SystemPlikow& system, const fs::path& path, std::span<const Bajt> bytes,
                     const std::optional<OpisPliku>& like) {
    Otwarty file(system, path, Otwarcie::Nowy);
    Wynik wynik = file.wynik();
    if (wynik == Wynik::Ok && like)
        wynik = file.setMode(like->mode);
    if (wynik != Wynik::Ok)
        return wynik;
    return file.writeAll(bytes) && file.flush() && file.closeNow() ? Wynik::Ok : Wynik::Blad;
}

// A name of our own beside the target, told apart by process.
fs::path temporaryPath(const fs::path& target) {
    return target.parent_path() /
           (std::string(TEMPORARY_PREFIX) + std::to_string(ownNumber()) + std::string(TEMPORARY_SUFFIX));
}

bool writeOver(const SystemPlikow& system, const fs::path& path, Otwarcie otwarcie, std::span<const Bajt> bytes) {
    Otwarty file(system, path, otwarcie);
    return file.ok() && file.writeAll(bytes) && file.flush() && file.closeNow();
}

// The way where the folder refuses new names. Not for a file with a second name, which would change along.
bool writeInPlace(const SystemPlikow& system, const Cel& cel, std::span<const Bajt> bytes) {
    OpisPliku opis;
    if (!cel.old || system.stat(cel.path, opis) != Wynik::Ok || opis.names != 1)
        return false;
    const auto old = readWhole(system, cel.path);
    if (!old)
        return false;
    if (writeOver(system, cel.path, bytes.size() < old->size() ? Otwarcie::OdNowa : Otwarcie::Zapis, bytes))
        return true;
    (void)writeOver(system, cel.path, Otwarcie::OdNowa, *old);
    return false;
}

bool replace(const SystemPlikow& system, const Cel& cel, std::span<const Bajt> bytes) {
    const fs::path temporary = temporaryPath(cel.path);
    system.remove(temporary); // left over by a killed process of the same number
    Wynik wynik = writeTemporary(system, temporary, bytes, cel.old);
    if (wynik == Wynik::Ok)
        wynik = system.rename(temporary, cel.path);
    if (wynik != Wynik::Ok) {
        system.remove(temporary);
        return wynik == Wynik::Odmowa && writeInPlace(system, cel, bytes);
    }
    // The name is in place already, so a failure here is none of the write.
    system.flushFolder(folderOf(cel.path));
    return true;
}

// Whether a name is that of a temporary file whose process is gone. Its number stands behind the prefix.
bool isLeftover(const fs::path& name) {
    const auto& text = name.native();
    const auto prefix = fs::path(TEMPORARY_PREFIX).native();
    if (!text.starts_with(prefix))
        return false;
    std::uint32_t number = 0;
    for (std::size_t i = prefix.size(); i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i)
        number = number * 10 + static_cast<std::uint32_t>(text[i] - '0');
    return number == ownNumber() || !isRunning(number);
}

// The first free name of <name>.kopia, .kopia2, .kopia3, ...
std::optional<fs::path> freeKopia(const SystemPlikow& system, const fs::path& path) {
    constexpr int KOPIE_MAX = 10000;
    for (int number = 1; number < KOPIE_MAX; ++number) {
        fs::path kopia = path;
        kopia += number == 1 ? ".kopia" : ".kopia" + std::to_string(number);
        OpisPliku opis;
        const Wynik wynik = system.lstat(kopia, opis);
        if (wynik == Wynik::Ok)
            continue;
        return wynik == Wynik::NieMa ? std::optional(kopia) : std::nullopt;
    }
    return std::nullopt;
}

// A copy of an old file under a name that is free, or was a moment ago.
Wynik copyAs(const SystemPlikow& system, const fs::path& kopia, const Bajty& old, const OpisPliku& like) {
    const fs::path temporary = temporaryPath(kopia);
    system.remove(temporary); // left over by a killed process of the same number
    Wynik wynik = writeTemporary(system, temporary, old, like);
    if (wynik != Wynik::Ok) {
        system.remove(temporary);
        return wynik;
    }
    wynik = system.link(temporary, kopia); // unlike a rename it never takes a name from another program
    if (wynik != Wynik::Ok && wynik != Wynik::Zajete && system.rename(temporary, kopia) == Wynik::Ok)
        return Wynik::Ok;
    system.remove(temporary);
    return wynik;
}

// A copy of the old file, or a second name for it where it can't be copied. A copy comes first: a second name of
// somebody else's file could never be removed from a sticky folder.
bool keepAs(const SystemPlikow& system, const Cel& cel, const fs::path& kopia, const std::optional<Bajty>& old) {
    Wynik wynik = old ? copyAs(system, kopia, *old, *cel.old) : Wynik::Blad;
    if (wynik != Wynik::Ok && wynik != Wynik::Zajete)
        wynik = system.link(cel.path, kopia);
    if (wynik == Wynik::Ok)
        system.flushFolder(folderOf(kopia));
    return wynik == Wynik::Ok;
}

// Whether a write that failed has certainly changed nothing: a rename can be carried out and still be answered by an
// error.
bool isStillOld(const SystemPlikow& system, const Cel& cel, const std::optional<Bajty>& old) {
    OpisPliku opis;
    return system.stat(cel.path, opis) == Wynik::Ok && opis.isSameFile(*cel.old) &&
           (!old || readWhole(system, cel.path) == old);
}

} // namespace

std::optional<Bajty> readOrCreate(const SystemPlikow& system, const fs::path& path, std::size_t count) {
    const Otwarty file(system, path, Otwarcie::Odczyt);
    if (file.wynik() == Wynik::NieMa)
        const Otwarty created(system, path, Otwarcie::Utworzenie);
    return file.length() ? readBytes(file, count) : std::nullopt;
}

std::optional<Bajty> readFirst(const SystemPlikow& system, const fs::path& path, std::size_t count) {
    const Otwarty file(system, path, Otwarcie::Odczyt);
    return file.length() ? readBytes(file, count) : std::nullopt;
}

std::optional<Bajty> readWhole(const SystemPlikow& system, const fs::path& path) {
    const Otwarty file(system, path, Otwarcie::Odczyt);
    const auto length = file.length();
    return length && *length <= WHOLE_MAX_BYTES ? readBytes(file, static_cast<std::size_t>(*length)) : std::nullopt;
}

std::optional<std::uintmax_t> lengthOf(const SystemPlikow& system, const fs::path& path) {
    OpisPliku opis;
    if (system.stat(path, opis) != Wynik::Ok || opis.rodzaj != RodzajPliku::Zwykly)
        return std::nullopt;
    return opis.length;
}

bool fileExists(const SystemPlikow& system, const fs::path& path) {
    OpisPliku opis;
    return system.stat(path, opis) != Wynik::NieMa;
}

bool isSameFile(const SystemPlikow& system, const fs::path& a, const fs::path& b) {
    OpisPliku first;
    OpisPliku second;
    for (const Wynik wynik : {system.stat(a, first), system.stat(b, second)})
        if (wynik != Wynik::Ok)
            return wynik != Wynik::NieMa;
    return first.isSameFile(second);
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
    if (!cel->old || cel->old->length == 0)
        return replace(system, *cel, bytes);
    const auto old = readWhole(system, cel->path);
    if (old && (old == known || std::ranges::equal(*old, bytes)))
        return replace(system, *cel, bytes);
    const auto kopia = freeKopia(system, path);
    if (!kopia || !keepAs(system, *cel, *kopia, old))
        return false;
    if (replace(system, *cel, bytes))
        return true;
    if (isStillOld(system, *cel, old))
        system.remove(*kopia);
    return false;
}

std::vector<fs::path> listNames(const SystemPlikow& system, const fs::path& folder, std::string_view suffix) {
    std::vector<fs::path> names;
    if (system.list(folder, names) != Wynik::Ok)
        return {};
    const auto end = fs::path(suffix).native();
    std::erase_if(names, [&](const fs::path& name) { return !name.native().ends_with(end); });
    std::ranges::sort(names, {}, &fs::path::native);
    return names;
}

void sweepTemporary(const SystemPlikow& system, std::span<const fs::path> files) {
    std::set<fs::path> folders;
    for (const fs::path& file : files)
        if (const auto target = resolved(system, file))
            folders.insert(folderOf(*target));
    for (const fs::path& folder : folders)
        for (const fs::path& name : listNames(system, folder, TEMPORARY_SUFFIX))
            if (isLeftover(name))
                system.remove(folder / name);
}

} // namespace dorva
