#include "system/pliki.h"
#include "system/proces.h"
#include "system/system_plikow.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <ratio>
#include <span>
#include <string>
#include <string_view>
#include <vector>
#include <windows.h>

namespace dorva {
namespace {

namespace fs = std::filesystem;

Wynik lastWynik() {
    switch (::GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME: // such a name can't be anyone's
    case ERROR_BAD_PATHNAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_INVALID_DRIVE:
    case ERROR_DIRECTORY:
        return Wynik::NieMa;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return Wynik::Zajete;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
        return Wynik::Odmowa;
    default:
        return Wynik::Blad;
    }
}

Wynik done(::BOOL answer) {
    return answer ? Wynik::Ok : lastWynik();
}

// A virus scanner or a cloud folder's program holds a file for a moment, and mostly right after a write to it. The
// whole wait is short enough not to be felt.
template <typename Call> Wynik patiently(Call call, bool alsoWhenDenied) {
    constexpr std::array<::DWORD, 5> WAITS_MS{10, 20, 40, 80, 160};
    Wynik wynik = call();
    for (::DWORD wait : WAITS_MS) {
        const ::DWORD error = wynik == Wynik::Ok ? ERROR_SUCCESS : ::GetLastError();
        if (error != ERROR_SHARING_VIOLATION && error != ERROR_LOCK_VIOLATION &&
            !(alsoWhenDenied && error == ERROR_ACCESS_DENIED))
            break;
        ::Sleep(wait);
        wynik = call();
    }
    return wynik;
}

::HANDLE handle(Uchwyt file) {
    return reinterpret_cast<::HANDLE>(file);
}

// Others may read, replace or remove the file meanwhile.
Wynik openAs(const fs::path& path, ::DWORD access, ::DWORD creation, ::DWORD attributes, Uchwyt& file) {
    constexpr ::DWORD SHARE_ALL = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    file = Uchwyt{reinterpret_cast<std::intptr_t>(
        ::CreateFileW(path.c_str(), access, SHARE_ALL, nullptr, creation, attributes, nullptr))};
    return file == Uchwyt::Zaden ? lastWynik() : Wynik::Ok;
}

Wynik open(const fs::path& path, Otwarcie otwarcie, Uchwyt& file) {
    const ::DWORD access = otwarcie == Otwarcie::Odczyt ? GENERIC_READ : GENERIC_WRITE;
    const ::DWORD creation = otwarcie == Otwarcie::Nowy         ? CREATE_NEW
                             : otwarcie == Otwarcie::Utworzenie ? OPEN_ALWAYS
                             : otwarcie == Otwarcie::OdNowa     ? TRUNCATE_EXISTING
                                                                : OPEN_EXISTING;
    // Told by the flag itself: who may do everything would be let in all the same.
    const ::DWORD attributes = ::GetFileAttributesW(path.c_str());
    if (access == GENERIC_WRITE && otwarcie != Otwarcie::Nowy && attributes != INVALID_FILE_ATTRIBUTES &&
        (attributes & FILE_ATTRIBUTE_READONLY) != 0)
        return Wynik::Odmowa;
    // A name whose file is removed and still held by someone is denied to a new one for a moment.
    return patiently([&] { return openAs(path, access, creation, FILE_ATTRIBUTE_NORMAL, file); },
                     otwarcie == Otwarcie::Nowy);
}

::DWORD atMost(std::size_t count) {
    constexpr std::size_t MAX = 1U << 30U;
    return static_cast<::DWORD>(std::min(count, MAX));
}

Wynik read(Uchwyt file, std::span<Bajt> bytes, std::size_t& count) {
    ::DWORD moved = 0;
    const Wynik wynik = done(::ReadFile(handle(file), bytes.data(), atMost(bytes.size()), &moved, nullptr));
    count = moved;
    return wynik;
}

Wynik write(Uchwyt file, std::span<const Bajt> bytes, std::size_t& count) {
    ::DWORD moved = 0;
    const Wynik wynik = done(::WriteFile(handle(file), bytes.data(), atMost(bytes.size()), &moved, nullptr));
    count = moved;
    return wynik;
}

std::uint64_t joined(::DWORD high, ::DWORD low) {
    return std::uint64_t{high} << 32U | low;
}

std::chrono::seconds ageOf(const ::FILETIME& time) {
    using Ticks = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;
    const auto ticks = [](const ::FILETIME& t) {
        return static_cast<std::int64_t>(joined(t.dwHighDateTime, t.dwLowDateTime));
    };
    ::FILETIME now{};
    ::GetSystemTimeAsFileTime(&now);
    return std::chrono::duration_cast<std::chrono::seconds>(Ticks(ticks(now) - ticks(time)));
}

Wynik describe(Uchwyt file, OpisPliku& opis) {
    opis = {};
    if (::GetFileType(handle(file)) != FILE_TYPE_DISK)
        return Wynik::Ok; // a device, a pipe
    ::BY_HANDLE_FILE_INFORMATION info{};
    if (!::GetFileInformationByHandle(handle(file), &info))
        return lastWynik();
    const bool folder = (info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    opis = {folder ? RodzajPliku::Katalog : RodzajPliku::Zwykly,
            joined(info.nFileSizeHigh, info.nFileSizeLow),
            info.dwVolumeSerialNumber,
            joined(info.nFileIndexHigh, info.nFileIndexLow),
            info.nNumberOfLinks,
            0,
            0,
            0,
            ageOf(info.ftLastWriteTime)};
    return Wynik::Ok;
}

Wynik stat(const fs::path& path, OpisPliku& opis) {
    constexpr ::DWORD ALSO_FOLDERS = FILE_FLAG_BACKUP_SEMANTICS;
    Uchwyt file{};
    const Wynik opened = patiently([&] { return openAs(path, 0, OPEN_EXISTING, ALSO_FOLDERS, file); }, false);
    if (opened != Wynik::Ok)
        return opened;
    const Wynik wynik = describe(file, opis);
    ::CloseHandle(handle(file));
    return wynik;
}

// A target that someone holds open is told as access denied, like one that may not be touched.
Wynik moveAs(const fs::path& from, const fs::path& to, ::DWORD how) {
    const ::DWORD flags = how | MOVEFILE_WRITE_THROUGH;
    const Wynik wynik = patiently([&] { return done(::MoveFileExW(from.c_str(), to.c_str(), flags)); }, true);
    return wynik == Wynik::Odmowa ? Wynik::Blad : wynik;
}

Wynik remove(const fs::path& path) {
    return patiently([&] { return done(::DeleteFileW(path.c_str())); }, false);
}

Wynik list(const fs::path& folder, std::vector<fs::path>& names) {
    ::WIN32_FIND_DATAW entry{};
    ::HANDLE listing = ::FindFirstFileW((folder / L"*").c_str(), &entry);
    if (listing == INVALID_HANDLE_VALUE)
        return lastWynik();
    do {
        if (const std::wstring_view name = entry.cFileName; name != L"." && name != L"..")
            names.emplace_back(name);
    } while (::FindNextFileW(listing, &entry));
    const Wynik wynik = ::GetLastError() == ERROR_NO_MORE_FILES ? Wynik::Ok : lastWynik();
    ::FindClose(listing);
    return wynik;
}

} // namespace

// Owners and mode bits are not there, and symbolic links, which take rights of their own here, are files like others.
const SystemPlikow SYSTEM_PLIKOW{
    .open = open,
    .read = read,
    .write = write,
    .flush = [](Uchwyt file) { return done(::FlushFileBuffers(handle(file))); },
    .close = [](Uchwyt file) { return done(::CloseHandle(handle(file))); },
    .describe = describe,
    .makeLike = [](Uchwyt, const OpisPliku&) { return Wynik::Ok; },
    .stat = stat,
    .lstat = stat,
    .readLink = [](const fs::path&, fs::path&) { return Wynik::Blad; },
    .rename = [](const fs::path& from, const fs::path& to) { return moveAs(from, to, MOVEFILE_REPLACE_EXISTING); },
    .renameNew = [](const fs::path& from, const fs::path& to) { return moveAs(from, to, 0); },
    .swap = [](const fs::path&, const fs::path&) { return Wynik::Odmowa; },
    .remove = remove,
    .holdFolder = [](const fs::path&, Uchwyt&) { return Wynik::Odmowa; },
    .flushFolder = [](const fs::path&) { return Wynik::Ok; }, // renaming writes through
    .list = list,
};

fs::path ownExecutable() {
    std::wstring name(32768, L'\0'); // no path is longer
    name.resize(::GetModuleFileNameW(nullptr, name.data(), static_cast<::DWORD>(name.size())));
    return name;
}

} // namespace dorva
