#include "pulpit.h"
#include "system/system_plikow.h"

namespace dorva::test {
namespace {

class Pliki : public Pulpit {};

// A call on two names that does nothing.
template <Wynik wynik> Wynik answer(const fs::path&, const fs::path&) {
    return wynik;
}

TEST_F(Pliki, WhatIsNotOnDiskIsNotWritten) {
    fs::current_path(root);
    ASSERT_TRUE(writeWhole(SYSTEM_PLIKOW, "plik", Bajty{1})) << "a name without a folder";
    SystemPlikow unflushed = SYSTEM_PLIKOW, unclosed = SYSTEM_PLIKOW;
    unflushed.flush = [](Uchwyt) { return Wynik::Blad; };
    unclosed.close = [](Uchwyt file) { return SYSTEM_PLIKOW.close(file), Wynik::Blad; };
    for (const SystemPlikow& system : {unflushed, unclosed})
        EXPECT_FALSE(writeWhole(system, root / "plik", Bajty{2}));
    EXPECT_EQ(readFile(root / "plik"), Bajty{1});
    EXPECT_EQ(listNames(SYSTEM_PLIKOW, root, "").size(), 2U);
}

TEST_F(Pliki, ListingThatBreaksOffGivesNoNames) {
    writeFile(root / "a.ND", {});
    writeFile(root / "b.ND", {});
    SystemPlikow system = SYSTEM_PLIKOW;
    system.list = [](const fs::path& folder, std::vector<fs::path>& names) {
        return SYSTEM_PLIKOW.list(folder, names), Wynik::Blad;
    };
    EXPECT_TRUE(listNames(system, root, ".ND").empty());
    EXPECT_EQ(listNames(SYSTEM_PLIKOW, root, ".ND").size(), 2U);
}

// Another program makes the file or writes to it while the new content is flushed, while a copy is named, or at the
// last moment.
TEST_F(Pliki, WhatComesBetweenIsKept) {
    static std::string moments;
    static fs::path plik;
    plik = root / "plik";
    static const auto passes = [](char moment) {
        if (moments.starts_with(moment)) {
            moments.erase(0, 1);
            writeFile(plik, {static_cast<Bajt>(moment)});
        }
    };
    SystemPlikow system = SYSTEM_PLIKOW;
    system.flush = [](Uchwyt file) { return passes('f'), SYSTEM_PLIKOW.flush(file); };
    system.renameNew = [](const fs::path& from, const fs::path& to) {
        const Wynik wynik = SYSTEM_PLIKOW.renameNew(from, to);
        return passes(to == plik ? ' ' : 'k'), wynik;
    };
    system.swap = [](const fs::path& one, const fs::path& other) {
        return passes('s'), SYSTEM_PLIKOW.swap(one, other);
    };
    moments = "fk";
    EXPECT_TRUE(writeKeepingUnknown(system, plik, Bajty{1}, {}));
    moments = POSIX ? "s" : "f"; // Windows exchanges no names
    EXPECT_TRUE(writeKeepingUnknown(system, plik, Bajty{2}, Bajty{1}));
    EXPECT_EQ(readFile(plik), Bajty{2});
    EXPECT_EQ(readFile(root / "plik.kopia"), Bajty{'f'});
    EXPECT_EQ(readFile(root / "plik.kopia2"), Bajty{'k'});
    EXPECT_EQ(readFile(root / "plik.kopia3"), Bajty{static_cast<Bajt>(POSIX ? 's' : 'f')});
    EXPECT_EQ(listNames(SYSTEM_PLIKOW, root, "").size(), 5U);
}

TEST_F(Pliki, WhatCannotBeKeptIsNotReplaced) {
    SystemPlikow swapless = SYSTEM_PLIKOW, unnamed = SYSTEM_PLIKOW;
    swapless.swap = answer<Wynik::Odmowa>;
    unnamed.renameNew = answer<Wynik::Blad>;
    writeFile(root / "plik", {1});
    EXPECT_FALSE(writeKeepingUnknown(unnamed, root / "plik", Bajty{2}, {}));
    fs::resize_file(root / "plik", 100U << 20U); // too long to be copied
    for (const SystemPlikow& system : {swapless, unnamed})
        EXPECT_FALSE(writeKeepingUnknown(system, root / "plik", Bajty{2}, {}));
    EXPECT_EQ(fs::file_size(root / "plik"), 100U << 20U);
    EXPECT_EQ(listNames(SYSTEM_PLIKOW, root, "").size(), 2U);
    static bool flushed;
    SystemPlikow watched = SYSTEM_PLIKOW;
    watched.flushFolder = [](const fs::path& folder) { return flushed = true, SYSTEM_PLIKOW.flushFolder(folder); };
    watched.swap = [](const fs::path& one, const fs::path& other) {
        EXPECT_NE(one.extension(), ".dp-tmp") << "what can't be copied would stand under a name that is swept";
        flushed = false;
        return SYSTEM_PLIKOW.swap(one, other);
    };
    EXPECT_EQ(writeKeepingUnknown(watched, root / "plik", Bajty{2}, {}), POSIX) << "under another name, as it is";
    EXPECT_EQ(fs::file_size(root / (POSIX ? "plik.kopia" : "plik")), 100U << 20U);
    EXPECT_TRUE(flushed || !POSIX);
}

// Another program writes just before the names are exchanged; then that is answered by an error, or what it wrote gets
// no name and the exchange can't be undone.
TEST_F(Pliki, WhatCameBetweenStaysWhereNothingElseCanBeDone) {
    static fs::path plik;
    static Wynik told;
    plik = root / "plik";
    for (const Wynik first : {Wynik::Blad, Wynik::Ok}) {
        SystemPlikow system = SYSTEM_PLIKOW;
        system.renameNew = answer<Wynik::Blad>;
        system.swap = [](const fs::path& one, const fs::path& other) {
            if (other == plik && readFile(other) == Bajty{1}) {
                fs::rename(one, other);
                writeFile(one, {3});
                return told;
            }
            return Wynik::Blad;
        };
        told = first;
        writeFile(plik, {1});
        EXPECT_FALSE(writeKeepingUnknown(system, plik, Bajty{2}, Bajty{1}));
        const auto left = listNames(SYSTEM_PLIKOW, root, ".dp-tmp");
        ASSERT_EQ(left.size(), 1U);
        EXPECT_EQ(readFile(root / left[0]), Bajty{3});
        fs::remove(root / left[0]);
    }
}

TEST_F(Pliki, ARenameThatIsCarriedOutAndAnsweredByAnErrorKeepsTheCopy) {
    SystemPlikow moves = SYSTEM_PLIKOW, refuses = SYSTEM_PLIKOW;
    moves.swap = refuses.swap = answer<Wynik::Odmowa>;
    moves.rename = [](const fs::path& from, const fs::path& to) { return SYSTEM_PLIKOW.rename(from, to), Wynik::Blad; };
    refuses.rename = answer<Wynik::Blad>;
    for (bool carriedOut : {true, false}) {
        writeFile(root / "plik", {1});
        EXPECT_FALSE(writeKeepingUnknown(carriedOut ? moves : refuses, root / "plik", Bajty{2}, {}));
        EXPECT_EQ(readFile(root / "plik"), Bajty{static_cast<Bajt>(carriedOut ? 2 : 1)});
        EXPECT_EQ(fs::exists(root / "plik.kopia"), carriedOut);
        fs::remove(root / "plik.kopia");
    }
}

// A folder that refuses new names, and one in which only a file's owner may replace it.
TEST_F(Pliki, InPlaceWhereTheFolderRefusesNewNames) {
    static bool full;
    SystemPlikow system = SYSTEM_PLIKOW;
    system.rename = system.swap = answer<Wynik::Odmowa>;
    system.write = [](Uchwyt file, std::span<const Bajt> bytes, std::size_t& count) {
        return full && bytes.size() == 5 ? Wynik::Blad : SYSTEM_PLIKOW.write(file, bytes, count);
    };
    for (const Bajty& bytes : {Bajty{7, 8, 9}, Bajty{6}, Bajty{1, 2, 3, 4}}) {
        writeFile(root / "plik", {1, 2, 3});
        EXPECT_TRUE(writeWhole(system, root / "plik", bytes));
        EXPECT_EQ(readFile(root / "plik"), bytes);
    }
    full = true;
    writeFile(root / "dlugi", {});
    EXPECT_FALSE(writeWhole(system, root / "plik", Bajty(5, 0)));
    fs::resize_file(root / "dlugi", 100U << 20U);
    EXPECT_FALSE(writeWhole(system, root / "dlugi", Bajty{5})) << "it could not be put back";
    EXPECT_TRUE(writeKeepingUnknown(system, root / "plik", Bajty{5}, {}));
    EXPECT_EQ(readFile(root / "plik.kopia"), (Bajty{1, 2, 3, 4})) << "a copy, no second name of somebody else's file";
    EXPECT_FALSE(writeWhole(system, root / "nowy", Bajty{6}));
    fs::create_hard_link(root / "plik", root / "drugi");
    EXPECT_FALSE(writeWhole(system, root / "plik", Bajty{6})) << "the second name would change along";
    EXPECT_EQ(readFile(root / "plik"), Bajty{5});
    EXPECT_EQ(listNames(SYSTEM_PLIKOW, root, "").size(), 5U);
}

} // namespace
} // namespace dorva::test
