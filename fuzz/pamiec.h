// A file system in memory behind the file layer's table of calls, so that a fuzzer need not wait for a
// disk. One call can be made to fail.
#pragma once

#include "system/pliki.h"
#include "system/system_plikow.h"

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <utility>

namespace dorva::fuzz {

using Sciezka = SystemPlikow::Sciezka;

struct Pamiec {
    struct Otwarty {
        std::shared_ptr<Bajty> plik;
        std::size_t at = 0;
    };
    std::map<std::string, std::shared_ptr<Bajty>> pliki;
    std::vector<Otwarty> otwarte;
    int failAt = 0; // the failing call, counted down from now; 0: none

    bool fails() { return failAt > 0 && --failAt == 0; }
    Wynik answer() { return fails() ? Wynik::Blad : Wynik::Ok; }
    std::shared_ptr<Bajty> find(const Sciezka& path) {
        const auto found = pliki.find(path.native());
        return found == pliki.end() ? nullptr : found->second;
    }
    Otwarty& at(Uchwyt file) { return otwarte[static_cast<std::size_t>(file)]; }
    void put(const std::string& path, Bajty bytes) { pliki[path] = std::make_shared<Bajty>(std::move(bytes)); }
};

inline Pamiec pamiec;

inline Wynik describe(const std::shared_ptr<Bajty>& plik, OpisPliku& opis) {
    if (pamiec.fails())
        return Wynik::Blad;
    if (!plik)
        return Wynik::NieMa;
    opis = {};
    opis.rodzaj = RodzajPliku::Zwykly;
    opis.length = plik->size();
    opis.number = reinterpret_cast<std::uintptr_t>(plik.get());
    return Wynik::Ok;
}

inline Wynik statPath(const Sciezka& path, OpisPliku& opis) {
    return describe(pamiec.find(path), opis);
}

inline Wynik openPath(const Sciezka& path, Otwarcie otwarcie, Uchwyt& file) {
    if (pamiec.fails())
        return Wynik::Blad;
    auto plik = pamiec.find(path);
    if (!plik) {
        if (otwarcie != Otwarcie::Utworzenie && otwarcie != Otwarcie::Nowy)
            return Wynik::NieMa;
        plik = pamiec.pliki[path.native()] = std::make_shared<Bajty>();
    }
    if (otwarcie == Otwarcie::OdNowa)
        plik->clear();
    file = Uchwyt{static_cast<std::intptr_t>(pamiec.otwarte.size())};
    pamiec.otwarte.push_back({plik});
    return Wynik::Ok;
}

inline Wynik readFile(Uchwyt file, std::span<Bajt> bytes, std::size_t& count) {
    if (pamiec.fails())
        return Wynik::Blad;
    auto& [plik, at] = pamiec.at(file);
    count = std::min(bytes.size(), plik->size() - at);
    std::copy_n(plik->begin() + static_cast<std::ptrdiff_t>(at), count, bytes.begin());
    at += count;
    return Wynik::Ok;
}

inline Wynik writeFile(Uchwyt file, std::span<const Bajt> bytes, std::size_t& count) {
    if (pamiec.fails())
        return Wynik::Blad;
    auto& [plik, at] = pamiec.at(file);
    plik->resize(std::max(plik->size(), at + bytes.size()));
    std::ranges::copy(bytes, plik->begin() + static_cast<std::ptrdiff_t>(at));
    at += count = bytes.size();
    return Wynik::Ok;
}

inline Wynik closeFile(Uchwyt file) {
    if (static_cast<std::size_t>(file) + 1 == pamiec.otwarte.size())
        pamiec.otwarte.pop_back();
    return pamiec.answer();
}

inline Wynik linkName(const Sciezka& from, const Sciezka& to) {
    if (pamiec.fails())
        return Wynik::Blad;
    pamiec.pliki[to.native()] = pamiec.find(from);
    return Wynik::Ok;
}

inline Wynik moveName(const Sciezka& from, const Sciezka& to) {
    const Wynik wynik = linkName(from, to);
    if (wynik == Wynik::Ok)
        pamiec.pliki.erase(from.native());
    return wynik;
}

inline Wynik removeName(const Sciezka& path) {
    if (pamiec.fails())
        return Wynik::Blad;
    return pamiec.pliki.erase(path.native()) == 1 ? Wynik::Ok : Wynik::NieMa;
}

inline const SystemPlikow* systemPamieci() {
    static const SystemPlikow system{
        .open = openPath,
        .read = readFile,
        .write = writeFile,
        .flush = [](Uchwyt) { return pamiec.answer(); },
        .close = closeFile,
        .describe = [](Uchwyt file, OpisPliku& opis) { return describe(pamiec.at(file).plik, opis); },
        .setMode = [](Uchwyt, unsigned) { return pamiec.answer(); },
        .stat = statPath,
        .lstat = statPath,
        .readLink = [](const Sciezka&, Sciezka&) { return Wynik::Blad; },
        .rename = moveName,
        .link = linkName,
        .remove = removeName,
        .flushFolder = [](const Sciezka&) { return pamiec.answer(); },
        .list = [](const Sciezka&, std::vector<Sciezka>&) { return Wynik::NieMa; },
    };
    return &system;
}

} // namespace dorva::fuzz
