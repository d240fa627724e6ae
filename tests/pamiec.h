// A disk in memory behind the file layer's table of calls. Calls of it can be made to fail, and it tells everything
// that a power cut might leave of it.
#pragma once

#include "system/pliki.h"
#include "system/system_plikow.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace dorva::test {

using Sciezka = SystemPlikow::Sciezka;
using Pliki = std::map<std::string, Bajty>; // by path

// The N-th call fails, once or from then on.
struct Awaria {
    static constexpr Wynik SHORT = Wynik::Ok; // no failure: reads and writes move half of what they were asked to
    int at = 0;                               // the failing call, counted from 1; 0: none
    Wynik error = Wynik::Blad;
    bool forGood = false;
    int calls = 0;
    bool removeFailed = false;

    [[nodiscard]] bool strikes() { return ++calls == at || (forGood && at > 0 && calls > at); }
};

struct Plik {
    Bajty bytes;
    Bajty flushed; // what the disk is sure to hold
};
using PlikRef = std::shared_ptr<Plik>;

struct Pamiec {
    struct Otwarty {
        PlikRef plik;
        std::size_t at = 0;
    };
    std::map<std::string, PlikRef> nazwy;
    std::map<std::string, std::vector<PlikRef>> niepewne; // what a name stood for since its folder was last flushed
    std::vector<Otwarty> otwarte;
    Awaria awaria;

    void put(const std::string& path, const Bajty& bytes) { nazwy[path] = std::make_shared<Plik>(Plik{bytes, bytes}); }
    [[nodiscard]] PlikRef find(const Sciezka& path) const {
        const auto found = nazwy.find(path.generic_string());
        return found == nazwy.end() ? nullptr : found->second;
    }
    void setName(const Sciezka& path, const PlikRef& plik) {
        const std::string name = path.generic_string();
        niepewne[name].push_back(find(path));
        nazwy[name] = plik;
        if (!plik)
            nazwy.erase(name);
    }
    Otwarty& at(Uchwyt file) { return otwarte[static_cast<std::size_t>(file)]; }

    [[nodiscard]] Pliki files(std::string_view prefix = "") const;
    [[nodiscard]] std::vector<Pliki> afterPowerCut() const;
};

inline Pamiec pamiec;

inline Pliki Pamiec::files(std::string_view prefix) const {
    Pliki files;
    for (const auto& [name, plik] : nazwy)
        if (name.starts_with(prefix))
            files[name] = plik->bytes;
    return files;
}

// What was written and not flushed may be missing, cut short, zeros or there.
inline std::vector<Bajty> formsOf(const Plik& plik) {
    if (plik.bytes == plik.flushed)
        return {plik.bytes};
    const auto half = static_cast<std::ptrdiff_t>(plik.bytes.size() / 2);
    return {plik.flushed, {plik.bytes.begin(), plik.bytes.begin() + half}, Bajty(plik.bytes.size(), 0), plik.bytes};
}

// Every name that changed since its folder was flushed is old or new, each by itself.
inline std::vector<Pliki> Pamiec::afterPowerCut() const {
    std::map<std::string, std::vector<PlikRef>> candidates = niepewne;
    for (const auto& [name, plik] : nazwy)
        candidates[name];
    std::vector<Pliki> states(1);
    for (auto& [name, pliki] : candidates) {
        pliki.push_back(find(name));
        std::vector<Pliki> longer;
        for (const PlikRef& plik : pliki) {
            if (!plik) {
                longer.insert(longer.end(), states.begin(), states.end());
                continue;
            }
            for (const Bajty& form : formsOf(*plik))
                for (Pliki state : states) {
                    state[name] = form;
                    longer.push_back(std::move(state));
                }
        }
        states = std::move(longer);
    }
    return states;
}

inline Wynik describe(const PlikRef& plik, OpisPliku& opis) {
    if (!plik)
        return Wynik::NieMa;
    opis = {};
    opis.rodzaj = RodzajPliku::Zwykly;
    opis.length = plik->bytes.size();
    opis.number = reinterpret_cast<std::uintptr_t>(plik.get());
    const auto isName = [&](const auto& entry) { return entry.second == plik; };
    opis.names = static_cast<std::uint64_t>(std::ranges::count_if(pamiec.nazwy, isName));
    opis.age = std::chrono::hours(2);
    return Wynik::Ok;
}

inline Wynik describeFile(Uchwyt file, OpisPliku& opis) {
    return describe(pamiec.at(file).plik, opis);
}

inline Wynik describePath(const Sciezka& path, OpisPliku& opis) {
    return describe(pamiec.find(path), opis);
}

inline Wynik openPath(const Sciezka& path, Otwarcie otwarcie, Uchwyt& file) {
    auto plik = pamiec.find(path);
    if (plik && otwarcie == Otwarcie::Nowy)
        return Wynik::Zajete;
    if (!plik) {
        if (otwarcie != Otwarcie::Utworzenie && otwarcie != Otwarcie::Nowy)
            return Wynik::NieMa;
        plik = std::make_shared<Plik>();
        pamiec.setName(path, plik);
    }
    if (otwarcie == Otwarcie::OdNowa)
        plik->bytes.clear();
    file = Uchwyt{static_cast<std::intptr_t>(pamiec.otwarte.size())};
    pamiec.otwarte.push_back({plik});
    return Wynik::Ok;
}

// How many of the bytes a transfer moves: half of them when a disk fills up, or where it is made to.
inline std::size_t moved(std::size_t count, Wynik& wynik) {
    if (!pamiec.awaria.strikes())
        return count;
    wynik = pamiec.awaria.error;
    return (count + 1) / 2;
}

inline Wynik readBytes(Uchwyt file, std::span<Bajt> bytes, std::size_t& count) {
    auto& [plik, at] = pamiec.at(file);
    Wynik wynik = Wynik::Ok;
    count = moved(std::min(bytes.size(), plik->bytes.size() - at), wynik);
    std::copy_n(plik->bytes.begin() + static_cast<std::ptrdiff_t>(at), count, bytes.begin());
    at += count;
    return wynik;
}

inline Wynik writeBytes(Uchwyt file, std::span<const Bajt> bytes, std::size_t& count) {
    auto& [plik, at] = pamiec.at(file);
    Wynik wynik = Wynik::Ok;
    count = moved(bytes.size(), wynik);
    plik->bytes.resize(std::max(plik->bytes.size(), at + count));
    std::ranges::copy(bytes.first(count), plik->bytes.begin() + static_cast<std::ptrdiff_t>(at));
    at += count;
    return wynik;
}

inline Wynik flushFile(Uchwyt file) {
    Plik& plik = *pamiec.at(file).plik;
    plik.flushed = plik.bytes;
    return Wynik::Ok;
}

inline Wynik closeFile(Uchwyt file) {
    if (static_cast<std::size_t>(file) + 1 == pamiec.otwarte.size())
        pamiec.otwarte.pop_back();
    return pamiec.awaria.strikes() ? pamiec.awaria.error : Wynik::Ok;
}

inline Wynik moveName(const Sciezka& from, const Sciezka& to) {
    pamiec.setName(to, pamiec.find(from));
    pamiec.setName(from, nullptr);
    return Wynik::Ok;
}

inline Wynik moveNewName(const Sciezka& from, const Sciezka& to) {
    return pamiec.find(to) ? Wynik::Zajete : moveName(from, to);
}

inline Wynik swapNames(const Sciezka& one, const Sciezka& other) {
    const PlikRef plik = pamiec.find(one);
    pamiec.setName(one, pamiec.find(other));
    pamiec.setName(other, plik);
    return Wynik::Ok;
}

inline Wynik removeName(const Sciezka& path) {
    if (!pamiec.find(path))
        return Wynik::NieMa;
    pamiec.setName(path, nullptr);
    return Wynik::Ok;
}

inline Wynik flushNames(const Sciezka& folder) {
    std::erase_if(pamiec.niepewne, [&](const auto& entry) { return Sciezka(entry.first).parent_path() == folder; });
    return Wynik::Ok;
}

inline Wynik listFolder(const Sciezka& folder, std::vector<Sciezka>& names) {
    for (const auto& [name, plik] : pamiec.nazwy)
        if (const Sciezka path = name; path.parent_path() == folder)
            names.push_back(path.filename());
    return Wynik::Ok;
}

template <auto Call, class... Args> Wynik mayFail(Args... args) {
    return pamiec.awaria.strikes() && pamiec.awaria.error != Awaria::SHORT ? pamiec.awaria.error : Call(args...);
}

inline const SystemPlikow* systemPamieci() {
    static const SystemPlikow system{
        .open = mayFail<openPath>,
        .read = readBytes,
        .write = writeBytes,
        .flush = mayFail<flushFile>,
        .close = closeFile,
        .describe = mayFail<describeFile>,
        .makeLike = [](Uchwyt, const OpisPliku&) { return Wynik::Ok; },
        .stat = mayFail<describePath>,
        .lstat = mayFail<describePath>,
        .readLink = nullptr, // there are no links
        .rename = mayFail<moveName>,
        .renameNew = mayFail<moveNewName>,
        .swap = mayFail<swapNames>,
        .remove =
            [](const Sciezka& path) {
                const Wynik wynik = mayFail<removeName>(path);
                pamiec.awaria.removeFailed |= wynik == pamiec.awaria.error;
                return wynik;
            },
        .holdFolder = [](const Sciezka&, Uchwyt&) { return Wynik::Odmowa; }, // nobody else is there
        .flushFolder = mayFail<flushNames>,
        .list = mayFail<listFolder>,
    };
    return &system;
}

} // namespace dorva::test
