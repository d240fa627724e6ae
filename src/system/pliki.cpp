#include "system/pliki.h"

#include "system/system_plikow.h"

#include <algorithm>
#include <chrono>
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
constexpr std::chrono::hours LEFTOVER_AGE{1}; // by then whoever wrote it, on whatever machine, is done or gone

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
    [[nodiscard]] Wynik makeLike(const OpisPliku& other) const { return system_.makeLike(file_, other); }
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
            if (move(file_, bytes, count) != Wynik::Ok || count == 0)
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
struct Zastany {
    fs::path path;
    std::optional<OpisPliku> old;
};

// Nothing where an ordinary open for writing would fail. A rename alone would also replace read-only
// files, devices and directories.
std::optional<Zastany> findZastany(const SystemPlikow& system, const fs::path& path) {
    const auto target = resolved(system, path);
    if (!target)
        return std::nullopt;
    OpisPliku old;
    const Wynik wynik = system.stat(*target, old);
    if (wynik != Wynik::Ok)
        return wynik == Wynik::NieMa ? std::optional(Zastany{*target, std::nullopt}) : std::nullopt;
    if (old.rodzaj != RodzajPliku::Zwykly || !Otwarty(system, *target, Otwarcie::Zapis).ok())
        return std::nullopt;
    return Zastany{*target, old};
}

// A turn in a folder, till the scope ends. Where none can be had, the writers are on their own.
class Kolej {
public:
    Kolej(const SystemPlikow& system, const fs::path& folder)
        : system_(system), isHeld_(system.holdFolder(folder, hold_) == Wynik::Ok) {}
    ~Kolej() {
        if (isHeld_)
            system_.close(hold_);
    }
    Kolej(const Kolej&) = delete;
    Kolej& operator=(const Kolej&) = delete;

private:
    const SystemPlikow& system_;
    Uchwyt hold_ = Uchwyt::Zaden;
    bool isHeld_;
};

// The coming content of a file: written and flushed beside it, under a name of its own, which goes unless it gets its
// place. The number in it is the time's, so a name that someone is about to sweep never comes back. After an exchange
// of names that wasn't settled, what another program wrote may stand there: only the own content goes.
class Nowy {
public:
    Nowy(const SystemPlikow& system, const fs::path& target, std::span<const Bajt> bytes,
         const std::optional<OpisPliku>& like)
        : system_(system), bytes_(bytes) {
        constexpr int NAMES_MAX = 1000;
        const auto now = std::chrono::system_clock::now().time_since_epoch().count();
        for (int i = 0; wynik_ == Wynik::Zajete && i < NAMES_MAX; ++i) {
            path_ = target.parent_path();
            path_ /= std::string(TEMPORARY_PREFIX) + std::to_string(now + i) + std::string(TEMPORARY_SUFFIX);
            wynik_ = write(like);
        }
        if (wynik_ == Wynik::Zajete)
            wynik_ = Wynik::Odmowa;
    }
    ~Nowy() {
        if (isThere_ && (!mayHoldOther_ || holdsOwn(path_)))
            drop();
    }
    Nowy(const Nowy&) = delete;
    Nowy& operator=(const Nowy&) = delete;

    [[nodiscard]] Wynik wynik() const { return wynik_; }
    Wynik replace(const fs::path& path) { return moveTo(path, system_.rename); }
    Wynik takeFreeName(const fs::path& path) { return moveTo(path, system_.renameNew); }
    // Takes the place of a file, whose content is then what this one holds.
    Wynik swap(const fs::path& path) {
        const Wynik wynik = wynik_ == Wynik::Ok ? system_.swap(path_, path) : wynik_;
        mayHoldOther_ = mayHoldOther_ || wynik == Wynik::Ok || wynik == Wynik::Blad;
        return wynik;
    }
    [[nodiscard]] bool isGone() const { return !fileExists(system_, path_); }
    [[nodiscard]] bool holdsOwn(const fs::path& path) const {
        const auto content = readWhole(system_, path);
        return content && std::ranges::equal(*content, bytes_);
    }
    [[nodiscard]] std::optional<Bajty> content() const { return readWhole(system_, path_); }
    void drop() {
        if (isThere_)
            system_.remove(path_);
        isThere_ = false;
    }

private:
    Wynik write(const std::optional<OpisPliku>& like) {
        Otwarty file(system_, path_, Otwarcie::Nowy);
        isThere_ = file.ok();
        Wynik wynik = file.wynik();
        if (wynik == Wynik::Ok && like)
            wynik = file.makeLike(*like);
        if (wynik != Wynik::Ok)
            return wynik;
        return file.writeAll(bytes_) && file.flush() && file.closeNow() ? Wynik::Ok : Wynik::Blad;
    }
    Wynik moveTo(const fs::path& path, Wynik (*move)(const fs::path&, const fs::path&)) {
        const Wynik wynik = wynik_ == Wynik::Ok ? move(path_, path) : wynik_;
        if (wynik != Wynik::Ok)
            return wynik;
        isThere_ = false;
        // The name is in place already, so a failure here is none of the write.
        system_.flushFolder(folderOf(path));
        return Wynik::Ok;
    }

    const SystemPlikow& system_;
    std::span<const Bajt> bytes_;
    fs::path path_;
    Wynik wynik_ = Wynik::Zajete;
    bool isThere_ = false;
    bool mayHoldOther_ = false;
};

bool writeOver(const SystemPlikow& system, const fs::path& path, Otwarcie otwarcie, std::span<const Bajt> bytes) {
    Otwarty file(system, path, otwarcie);
    return file.ok() && file.writeAll(bytes) && file.flush() && file.closeNow();
}

// The way where the folder refuses new names. Not for a file with a second name, which would change along.
bool writeInPlace(const SystemPlikow& system, const Zastany& zastany, std::span<const Bajt> bytes) {
    OpisPliku opis;
    if (!zastany.old || system.stat(zastany.path, opis) != Wynik::Ok || opis.names != 1)
        return false;
    const auto old = readWhole(system, zastany.path);
    if (!old)
        return false;
    if (writeOver(system, zastany.path, bytes.size() < old->size() ? Otwarcie::OdNowa : Otwarcie::Zapis, bytes))
        return true;
    (void)writeOver(system, zastany.path, Otwarcie::OdNowa, *old);
    return false;
}

bool replace(const SystemPlikow& system, const Zastany& zastany, Nowy& nowy, std::span<const Bajt> bytes) {
    const Wynik wynik = nowy.replace(zastany.path);
    if (wynik != Wynik::Odmowa)
        return wynik == Wynik::Ok;
    nowy.drop();
    return writeInPlace(system, zastany, bytes);
}

// Whether a temporary file was left over by a program that was killed.
bool isLeftover(const SystemPlikow& system, const fs::path& path) {
    const auto name = path.filename().native();
    const auto prefix = fs::path(TEMPORARY_PREFIX).native();
    const auto isDigit = [](auto letter) { return letter >= '0' && letter <= '9'; };
    OpisPliku opis;
    return name.starts_with(prefix) &&
           std::all_of(name.begin() + std::ssize(prefix), name.end() - std::ssize(TEMPORARY_SUFFIX), isDigit) &&
           system.lstat(path, opis) == Wynik::Ok && opis.age > LEFTOVER_AGE;
}

// Gives a new file the first free name of <name>.kopia, .kopia2, .kopia3, ...
std::optional<fs::path> takeKopia(Nowy& nowy, const fs::path& path) {
    constexpr int KOPIE_MAX = 10000;
    for (int number = 1; number < KOPIE_MAX; ++number) {
        fs::path kopia = path;
        kopia += number == 1 ? ".kopia" : ".kopia" + std::to_string(number);
        const Wynik wynik = nowy.takeFreeName(kopia);
        if (wynik != Wynik::Zajete)
            return wynik == Wynik::Ok ? std::optional(kopia) : std::nullopt;
    }
    return std::nullopt;
}

// A copy under such a name, like the old file unless the file system refuses that.
std::optional<fs::path> copyAside(const SystemPlikow& system, const fs::path& path, const Bajty& old,
                                  const std::optional<OpisPliku>& like) {
    Nowy copy(system, path, old, like);
    return copy.wynik() == Wynik::Odmowa && like ? copyAside(system, path, old, std::nullopt) : takeKopia(copy, path);
}

// After a swap: what stood there goes, or stays as a copy if it isn't kept yet, by its name or, behind a link to
// another file system, as another copy. Swapped back where it can't be.
bool settle(const SystemPlikow& system, const Zastany& zastany, const fs::path& path, Nowy& nowy,
            const std::optional<Bajty>& last, bool isKept) {
    if (!isKept && !takeKopia(nowy, path) && !(last && copyAside(system, path, *last, zastany.old))) {
        (void)nowy.swap(zastany.path);
        return false;
    }
    nowy.drop();
    system.flushFolder(folderOf(zastany.path));
    return true;
}

// The way for a file that can't be copied: the new content takes the copy's name, then the two exchange theirs. So the
// old one never stands under a name that is swept.
bool swapWithKopia(const SystemPlikow& system, const Zastany& zastany, Nowy& nowy) {
    const auto kopia = takeKopia(nowy, zastany.path);
    if (!kopia)
        return false;
    if (system.swap(*kopia, zastany.path) == Wynik::Ok) {
        system.flushFolder(folderOf(zastany.path));
        return true;
    }
    if (nowy.holdsOwn(*kopia))
        system.remove(*kopia);
    return false;
}

} // namespace

std::optional<Bajty> readOrCreate(const SystemPlikow& system, const fs::path& path, std::size_t count) {
    const Otwarty file(system, path, Otwarcie::Odczyt);
    if (file.wynik() == Wynik::NieMa)
        const Otwarty created(system, path, Otwarcie::Utworzenie);
    return file.length() ? readBytes(file, count) : std::nullopt;
}

std::optional<Bajty> readFirst(const SystemPlikow& system, const fs::path& path, std::size_t count) {
    auto bytes = readUpTo(system, path, count);
    return bytes && bytes->size() == count ? std::move(bytes) : std::nullopt;
}

std::optional<Bajty> readUpTo(const SystemPlikow& system, const fs::path& path, std::size_t count) {
    const Otwarty file(system, path, Otwarcie::Odczyt);
    const auto length = file.length();
    return length ? readBytes(file, std::min<std::uintmax_t>(*length, count)) : std::nullopt;
}

std::optional<Bajty> readWhole(const SystemPlikow& system, const fs::path& path) {
    const Otwarty file(system, path, Otwarcie::Odczyt);
    const auto length = file.length();
    return length && *length <= WHOLE_MAX_BYTES ? readBytes(file, *length) : std::nullopt;
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
    const auto zastany = findZastany(system, path);
    if (!zastany)
        return false;
    Nowy nowy(system, zastany->path, bytes, zastany->old);
    return replace(system, *zastany, nowy, bytes);
}

bool writeKeepingUnknown(const SystemPlikow& system, const fs::path& path, std::span<const Bajt> bytes,
                         const std::optional<Bajty>& known) {
    const auto zastany = findZastany(system, path);
    if (!zastany)
        return false;
    Nowy nowy(system, zastany->path, bytes, zastany->old);
    if (nowy.wynik() != Wynik::Ok && nowy.wynik() != Wynik::Odmowa)
        return false;
    // Where names can't be exchanged, this alone keeps two editors safe from each other.
    const Kolej kolej(system, folderOf(zastany->path));
    if (!zastany->old && nowy.takeFreeName(zastany->path) == Wynik::Ok)
        return true;

    const auto isKnown = [&](const Bajty& content) {
        return content.empty() || content == known || std::ranges::equal(content, bytes);
    };
    std::optional<fs::path> kopia;
    std::optional<Bajty> kept;
    auto old = readWhole(system, zastany->path);
    while (old && !isKnown(*old) && old != kept) {
        kopia = copyAside(system, path, *old, zastany->old);
        if (!kopia)
            return false;
        kept = std::exchange(old, readWhole(system, zastany->path));
    }
    if (!old && fileExists(system, zastany->path))
        return swapWithKopia(system, *zastany, nowy);
    const Wynik swapped = nowy.swap(zastany->path);
    if (swapped == Wynik::Ok) {
        // Another program may have written since the look. What is gone was old enough to be swept, so it was known.
        const auto last = nowy.content();
        return settle(system, *zastany, path, nowy, last, last ? isKnown(*last) || last == old : nowy.isGone());
    }
    const bool mayReplace = swapped == Wynik::Odmowa || swapped == Wynik::NieMa;
    if (mayReplace && replace(system, *zastany, nowy, bytes))
        return true;
    // A rename can be carried out and still be answered by an error: the copy goes only if the old content stands
    // there.
    if (kopia && readWhole(system, zastany->path) == old)
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
            if (isLeftover(system, folder / name))
                system.remove(folder / name);
}

} // namespace dorva
