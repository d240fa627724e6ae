// The system calls that the file layer is made of, as a table in words that every system has. One file a system fills
// it; a test puts its own in its place.
#pragma once

#include "podstawy.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

namespace dorva {

// How a call went.
enum class Wynik {
    Ok,
    NieMa,  // nothing stands at the path
    Zajete, // the name is taken
    Odmowa, // no right to it, or no such thing on this file system
    Blad,   // any other failure
};

enum class RodzajPliku { Zwykly, Katalog, Dowiazanie, Inny };

// What a file is like.
struct OpisPliku {
    RodzajPliku rodzaj = RodzajPliku::Inny;
    std::uintmax_t length = 0;            // in bytes
    std::uint64_t volume = 0, number = 0; // together they tell files apart
    std::uint64_t names = 1;              // hard links
    unsigned mode = 0;                    // who may do what, in the system's own bits
    unsigned owner = 0, group = 0;        // where the system has none of these three, they are always 0
    std::chrono::seconds age{0};          // since the content last changed

    [[nodiscard]] bool isSameFile(const OpisPliku& other) const {
        return volume == other.volume && number == other.number;
    }
};

enum class Otwarcie {
    Odczyt,
    Zapis,      // of a file that is there; it keeps its content
    OdNowa,     // of a file that is there; it is emptied
    Utworzenie, // of a file that is there or a new one; it keeps its content
    Nowy,       // of a new file, and only that
};

// An open file as the system numbers it.
enum class Uchwyt : std::intptr_t { Zaden = -1 };

// No call on a file is left interrupted by a signal.
struct SystemPlikow {
    using Sciezka = std::filesystem::path;

    // Never waits for anyone's other end, as a pipe would.
    Wynik (*open)(const Sciezka&, Otwarcie, Uchwyt& file);
    // `count` is how many bytes moved: all, some, at the end of a file none.
    Wynik (*read)(Uchwyt, std::span<Bajt> bytes, std::size_t& count);
    Wynik (*write)(Uchwyt, std::span<const Bajt> bytes, std::size_t& count);
    Wynik (*flush)(Uchwyt);
    Wynik (*close)(Uchwyt);
    Wynik (*describe)(Uchwyt, OpisPliku&);
    // Gives the file another's mode bits, and its owner and group where that may be. A group that may not be kept
    // leaves its rights to no other.
    Wynik (*makeLike)(Uchwyt, const OpisPliku& other);

    Wynik (*stat)(const Sciezka&, OpisPliku&);
    Wynik (*lstat)(const Sciezka&, OpisPliku&); // of a link itself
    Wynik (*readLink)(const Sciezka&, Sciezka& target);
    Wynik (*rename)(const Sciezka& from, const Sciezka& to);    // `to` is replaced
    Wynik (*renameNew)(const Sciezka& from, const Sciezka& to); // `to` is a free name, or it is told as taken
    Wynik (*swap)(const Sciezka& one, const Sciezka& other);    // the two exchange their names at once
    Wynik (*remove)(const Sciezka&);

    // The writers in a folder take turns: holds it against others who ask, until the handle is closed. Waits for
    // another some 1.3 s, then refuses.
    Wynik (*holdFolder)(const Sciezka&, Uchwyt& hold);
    // Makes new names in a folder outlive a power cut.
    Wynik (*flushFolder)(const Sciezka&);
    // Adds the names in a folder, in any order, without those of the folder itself and the one above.
    Wynik (*list)(const Sciezka& folder, std::vector<Sciezka>& names);
};

} // namespace dorva
