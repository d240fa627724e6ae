// Every file call of every operation fails, and the power goes after every call. Whatever happens: each file is its old
// or its new bytes, nothing is left over, the work is in the editor or on disk, and the next operation works.
#include "output/obraz_gry.h"
#include "pulpit.h"
#include "shell/komunikaty.h"
#include "stage/archiwum.h"

#include <iostream>

namespace dorva::test {
namespace {

struct Scenariusz {
    const char* name;
    void (*prepare)(); // changes to the disk before the start
    void (*run)(Edytor&);
    std::vector<std::string> told;    // messages that may be shown
    std::vector<std::string> targets; // files that a run brings to their new bytes
    bool replacesWork = false;        // by the user's own wish
};

std::ostream& operator<<(std::ostream& out, const Scenariusz& s) {
    return out << s.name;
}

// The editor's stage as the next write would store it.
Bajty packed(Edytor e) {
    PackEtap(e);
    return e.image;
}

void nothing() {}

void damageTwo() {
    pamiec.put(at("praca/ETAPY/DETAP.2"), Bajty(500, 3));
}

void removeTileSets() {
    std::erase_if(pamiec.nazwy, [](const auto& entry) { return entry.first.ends_with(".ND"); });
}

void makeArchive() {
    pamiec.put(at("wybrany"), sampleArchiwum());
    damageTwo();
}

void makeStage() {
    pamiec.put(at("wybrany"), sampleEtap(9));
}

void makeOther() {
    pamiec.put(at("wybrany"), {1, 2, 3});
}

void startNew(Edytor& e) {
    Form_Load(e, fs::path(e.KatalogBazowy), "1.0.2");
}

const std::string ETAP_1 = at("praca/ETAPY/DETAP.1"), LINIE = at("praca/PLIKI/DP1.DTA"),
                  XEX = at("praca/PLIKI/TEST.XEX");
const std::string ZASTAPIC(komunikaty::ZASTAPIC.text);

const std::vector<Scenariusz> SCENARIUSZE{
    {"start", damageTwo, startNew, {}, {}, true},
    {"switch", nothing, [](Edytor& e) { SelectEtapNR(e, 1); }, {"Nie można zapisać etapu."}, {ETAP_1}},
    {"switch to a damaged file and on",
     damageTwo,
     [](Edytor& e) {
         SelectEtapNR(e, 1);
         SelectEtapNR(e, 2);
     },
     {"Nie można zapisać etapu."},
     {ETAP_1}},
    {"load", makeStage, cmdLoad_Click, {}, {}, true},
    {"save", makeOther, cmdSave_Click, {ZASTAPIC, "Dane etapu zostały pomyślnie zapisane"}, {at("wybrany")}},
    {"clear", nothing, cmdCzysc_Click, {std::string(komunikaty::CZYSZCZENIE.text)}, {}, true},
    {"archive save",
     makeOther,
     cmdSaveArch_Click,
     {ZASTAPIC, "Archiwum zostało pomyślnie zapisane"},
     {at("wybrany"), ETAP_1}},
    {"archive load", makeArchive, cmdLoadArch_Click, {}, {at("praca/ETAPY/DETAP.2"), LINIE}, true},
    {"game build",
     makeOther,
     cmdCreate_Click,
     {ZASTAPIC, std::string(komunikaty::GRA_UTWORZONA.text)},
     {at("wybrany"), XEX}},
    {"test build", nothing, cmdTest_Click, {std::string(komunikaty::TEST_UTWORZONY.text)}, {XEX}},
    {"exit", nothing, Form_QueryUnload, {}, {ETAP_1, LINIE}},
    {"exit after an early end of start", removeTileSets, Form_QueryUnload, {}, {ETAP_1, LINIE}},
};

bool isTemporary(const std::string& name) {
    return name.ends_with(".dp-tmp");
}

// A file's name without what tells its copies apart.
std::string ownName(const std::string& name) {
    return name.substr(0, name.find(".kopia"));
}

// Whether the bytes stand in the file or in a copy of it.
bool holds(const Pliki& files, const std::string& name, const Bajty& bytes) {
    return std::ranges::any_of(
        files, [&](const auto& file) { return ownName(file.first) == ownName(name) && file.second == bytes; });
}

bool isIn(const Pliki& files, const std::string& name, const Bajty& bytes) {
    const auto found = files.find(name);
    return found != files.end() && found->second == bytes;
}

class Awarie : public PulpitWPamieci, public ::testing::WithParamInterface<Scenariusz> {
protected:
    void SetUp() override { rehearse(); }

    // A fresh disk and an editor with unsaved work on it.
    void open() {
        PulpitWPamieci::SetUp();
        s.prepare();
        restart();
        cell(5, 5) = BOMBA;
        work = packed(e);
        chosen = root / "wybrany";
        shown.clear();
        pamiec.niepewne.clear();
    }

    // What a run without failures brings; the number of its calls.
    void rehearse() {
        open();
        before = pamiec.files();
        pamiec.awaria = {};
        s.run(e);
        calls = pamiec.awaria.calls;
        after = pamiec.files();
        told = shown;
    }

    // Old or new, whole; new names only those that a run without failures brings, or a copy set aside.
    void expectOldOrNew(const Pliki& now, bool mayLeaveTemporary) {
        for (const auto& [name, bytes] : now)
            EXPECT_TRUE(isIn(before, name, bytes) || isIn(after, name, bytes) || isIn(before, ownName(name), bytes) ||
                        (mayLeaveTemporary && isTemporary(name)))
                << name;
        for (const auto& [name, bytes] : before)
            EXPECT_TRUE(holds(now, name, bytes) ||
                        (!holds(after, name, bytes) && now.contains(name) && isIn(after, name, now.at(name))))
                << name;
    }

    bool workIsSafe() { return packed(e) == work || holds(pamiec.files(), ETAP_1, work); }

    // Runs the operation with one failing call, then once more without, then leaves the program.
    void expectNothingLost(const Awaria& plan) {
        open();
        pamiec.awaria = plan;
        s.run(e);
        // What can't be read any more, nobody can tell whose it is: it stays.
        expectOldOrNew(pamiec.files(), pamiec.awaria.removeFailed || plan.forGood);
        for (const std::string& text : shown)
            EXPECT_TRUE(std::ranges::count(s.told, text)) << text;
        EXPECT_TRUE(s.replacesWork || s.run == Form_QueryUnload || workIsSafe());
        if (plan.error == Awaria::SHORT) {
            EXPECT_EQ(pamiec.files(), after) << "short transfers are no failures";
            EXPECT_EQ(shown, told);
        }

        pamiec.awaria = {};
        s.run(e);
        for (const std::string& name : s.targets)
            EXPECT_TRUE(isIn(pamiec.files(), name, after.at(name))) << name;
        SelectEtapNR(e, 9);
        Form_QueryUnload(e);
        const Pliki last = pamiec.files();
        for (int number = 2; number <= ETAPY_COUNT; ++number) {
            const std::string name = at("praca/ETAPY/DETAP." + std::to_string(number));
            const bool kept = holds(after, name, before.at(name));
            EXPECT_TRUE(holds(last, name, (kept ? before : after).at(name))) << name;
        }
        EXPECT_TRUE(s.replacesWork || workIsSafe());
    }

    // The next start on a disk: it works, and with a visit of stages and the exit it loses nothing.
    void expectGoodStart(const Pliki& disk) {
        pamiec = {};
        for (const auto& [name, bytes] : disk)
            pamiec.put(name, bytes);
        Edytor next;
        next.system = systemPamieci();
        Form_Load(next, base, "1.0.2");
        EXPECT_TRUE(s.prepare == removeTileSets || next.image == disk.at(ETAP_1));
        for (int index : {1, 4})
            SelectEtapNR(next, index);
        Form_QueryUnload(next);
        const Pliki now = pamiec.files();
        for (const auto& [name, bytes] : disk)
            EXPECT_TRUE(bytes.empty() || isTemporary(name) || holds(now, name, bytes)) << name;
        for (const auto& [name, bytes] : now)
            EXPECT_FALSE(isTemporary(name) && name.starts_with(base.generic_string())) << name;
    }

    // The power goes now.
    void expectEveryCutWhole() {
        constexpr std::size_t UNSURE_MAX = 5; // the states would double with each
        ASSERT_LT(pamiec.niepewne.size(), UNSURE_MAX) << "names whose folder was never flushed";
        const Pamiec now = pamiec;
        for (const Pliki& disk : now.afterPowerCut()) {
            ++cuts;
            expectOldOrNew(disk, true);
            expectGoodStart(disk);
        }
        pamiec = now;
    }

    // The calls that change the disk, with a look at it after each.
    template <auto Call, class... Args> static Wynik traced(Args... args) {
        const Wynik wynik = (systemPamieci()->*Call)(args...);
        if (!HasFailure())
            running->expectEveryCutWhole();
        return wynik;
    }

    const Scenariusz& s = GetParam();
    Bajty work;
    Pliki before, after;
    std::vector<std::string> told;
    int calls = 0, cuts = 0;
    inline static Awarie* running = nullptr;
};

TEST_P(Awarie, NoFailureLosesAnything) {
    expectNothingLost({1, Awaria::SHORT, true});
    for (int at = 1; at <= calls; ++at)
        for (Wynik error : {Wynik::Blad, Wynik::Odmowa})
            for (bool forGood : {false, true}) {
                expectNothingLost({at, error, forGood});
                ASSERT_FALSE(HasFailure()) << "call " << at << " of " << calls << ", error " << static_cast<int>(error)
                                           << (forGood ? ", for good" : ", once");
            }
}

TEST_P(Awarie, NoPowerCutLosesAnything) {
    running = this;
    SystemPlikow watched = *systemPamieci();
    watched.open = traced<&SystemPlikow::open>;
    watched.write = traced<&SystemPlikow::write>;
    watched.flush = traced<&SystemPlikow::flush>;
    watched.rename = traced<&SystemPlikow::rename>;
    watched.renameNew = traced<&SystemPlikow::renameNew>;
    watched.swap = traced<&SystemPlikow::swap>;
    watched.remove = traced<&SystemPlikow::remove>;
    watched.flushFolder = traced<&SystemPlikow::flushFolder>;
    for (bool swaps : {true, false}) {
        open();
        e.system = &watched;
        if (!swaps)
            watched.swap = [](const Sciezka&, const Sciezka&) { return Wynik::Odmowa; };
        s.run(e);
        ASSERT_FALSE(HasFailure());
        for (const Pliki& disk : pamiec.afterPowerCut())
            for (const auto& [name, bytes] : after)
                EXPECT_TRUE(bytes.empty() || isIn(disk, name, bytes)) << name << " is told as written and isn't there";
    }
    std::cout << s.name << ": " << calls << " calls, " << cuts << " power cuts\n";
}

INSTANTIATE_TEST_SUITE_P(KazdaOperacja, Awarie, ::testing::ValuesIn(SCENARIUSZE),
                         [](const auto& test) { return "S" + std::to_string(test.index); });

} // namespace
} // namespace dorva::test
