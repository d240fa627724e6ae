// Every file call of every operation fails, once and for good. Whatever fails: each file is its old or its
// new bytes, nothing is left over, the work is in the editor or on disk, and the next operation works.
#include "awaria.h"
#include "output/obraz_gry.h"
#include "pulpit.h"
#include "shell/komunikaty.h"
#include "stage/archiwum.h"

namespace dorva::test {
namespace {

using Pliki = std::map<std::string, Bajty>;

struct Scenariusz {
    const char* name;
    void (*prepare)(const fs::path& base); // changes to the tree before the start
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

void nothing(const fs::path&) {}

void damageTwo(const fs::path& base) {
    writeFile(base / "ETAPY/DETAP.2", Bajty(500, 3));
}

void removeTileSets(const fs::path& base) {
    fs::remove_all(base / "OBIEKTY/ORN_EXPORT");
}

void makeArchive(const fs::path& base) {
    Bajty archive(AUTOR_GRY_SIZE_BYTES, 'A');
    for (int number = 1; number <= ETAPY_COUNT; ++number) {
        const Bajty image = sampleEtap(number % 32 + 1);
        archive.insert(archive.end(), image.begin(), image.end());
    }
    writeFile(base / "../wybrany", archive);
    damageTwo(base);
}

void makeStage(const fs::path& base) {
    writeFile(base / "../wybrany", sampleEtap(9));
}

void makeLink(const fs::path& base) {
    writeFile(base / "../cel", {1, 2, 3});
    if (POSIX)
        fs::create_symlink("cel", base / "../wybrany");
    else
        fs::rename(base / "../cel", base / "../wybrany");
}

void startNew(Edytor& e) {
    Form_Load(e, fs::path(e.KatalogBazowy), "1.0.2");
}

const std::string CEL = POSIX ? "cel" : "wybrany"; // what the dialog's choice leads to
const std::string ZASTAPIC(komunikaty::ZASTAPIC.text);

const std::vector<Scenariusz> SCENARIUSZE{
    {"start", damageTwo, startNew, {}, {}, true},
    {"switch", nothing, [](Edytor& e) { SelectEtapNR(e, 1); }, {"Nie można zapisać etapu."}, {"praca/ETAPY/DETAP.1"}},
    {"switch to a damaged file and on",
     damageTwo,
     [](Edytor& e) {
         SelectEtapNR(e, 1);
         SelectEtapNR(e, 2);
     },
     {"Nie można zapisać etapu."},
     {"praca/ETAPY/DETAP.1"}},
    {"load", makeStage, cmdLoad_Click, {}, {}, true},
    {"save", makeLink, cmdSave_Click, {ZASTAPIC, "Dane etapu zostały pomyślnie zapisane"}, {CEL}},
    {"clear", nothing, cmdCzysc_Click, {std::string(komunikaty::CZYSZCZENIE.text)}, {}, true},
    {"archive save",
     makeLink,
     cmdSaveArch_Click,
     {ZASTAPIC, "Archiwum zostało pomyślnie zapisane"},
     {CEL, "praca/ETAPY/DETAP.1"}},
    {"archive load", makeArchive, cmdLoadArch_Click, {}, {"praca/ETAPY/DETAP.2", "praca/PLIKI/DP1.DTA"}, true},
    {"game build",
     makeLink,
     cmdCreate_Click,
     {ZASTAPIC, std::string(komunikaty::GRA_UTWORZONA.text)},
     {CEL, "praca/PLIKI/TEST.XEX"}},
    {"test build", nothing, cmdTest_Click, {std::string(komunikaty::TEST_UTWORZONY.text)}, {"praca/PLIKI/TEST.XEX"}},
    {"exit", nothing, Form_QueryUnload, {}, {"praca/ETAPY/DETAP.1", "praca/PLIKI/DP1.DTA"}},
    {"exit after an early end of start",
     removeTileSets,
     Form_QueryUnload,
     {},
     {"praca/ETAPY/DETAP.1", "praca/PLIKI/DP1.DTA"}},
};

class Awarie : public Pulpit, public ::testing::WithParamInterface<Scenariusz> {
protected:
    void SetUp() override {}
    void TearDown() override {}

    // A fresh tree and an editor with unsaved work on it.
    void open(const Scenariusz& s) {
        Pulpit::SetUp();
        s.prepare(base);
        e = Edytor{};
        attach(e);
        awaria = {};
        e.system = zawodnySystem();
        start();
        cell(5, 5) = BOMBA;
        work = packed(e);
        chosen = root / "wybrany";
        shown.clear();
    }

    Pliki snapshot() {
        Pliki files;
        for (const auto& entry : fs::recursive_directory_iterator(root))
            if (entry.is_regular_file() && !entry.is_symlink())
                files[entry.path().lexically_relative(root).generic_string()] = readFile(entry.path());
        return files;
    }

    // Old or new, whole; new names only those that a run without failures brings, or a copy set aside.
    void expectOldOrNew() {
        const Pliki now = snapshot();
        for (const auto& [name, bytes] : before)
            EXPECT_TRUE(now.contains(name) && (now.at(name) == bytes || now.at(name) == after.at(name))) << name;
        for (const auto& [name, bytes] : now) {
            if (before.contains(name) || (name.ends_with(".dp-tmp") && awaria.removeFailed))
                continue;
            const auto kept = before.find(name.substr(0, name.find(".kopia")));
            EXPECT_TRUE((after.contains(name) && after.at(name) == bytes) ||
                        (kept != before.end() && kept->second == bytes))
                << name;
        }
    }

    static bool holds(const Pliki& files, const std::string& name, const Bajty& bytes) {
        for (const auto& [file, content] : files)
            if (file.substr(0, file.find(".kopia")) == name && content == bytes)
                return true;
        return false;
    }

    bool workIsSafe() { return packed(e) == work || holds(snapshot(), "praca/ETAPY/DETAP.1", work); }

    // Runs the operation with one failing call, then once more without, then leaves the program.
    void expectNothingLost(const Scenariusz& s, const Awaria& plan) {
        open(s);
        awaria = plan;
        s.run(e);
        expectOldOrNew();
        for (const std::string& text : shown)
            EXPECT_TRUE(std::ranges::count(s.told, text)) << text;
        EXPECT_TRUE(s.replacesWork || s.run == Form_QueryUnload || workIsSafe());
        if (plan.error == Awaria::SHORT) {
            EXPECT_EQ(snapshot(), after) << "short transfers are no failures";
            EXPECT_EQ(shown, told);
        }

        awaria = {};
        s.run(e);
        const Pliki again = snapshot();
        for (const std::string& name : s.targets)
            EXPECT_TRUE(again.contains(name) && again.at(name) == after.at(name)) << name;
        SelectEtapNR(e, 9);
        Form_QueryUnload(e);
        const Pliki last = snapshot();
        for (int number = 2; number <= ETAPY_COUNT; ++number) {
            const std::string name = "praca/ETAPY/DETAP." + std::to_string(number);
            const bool kept = holds(after, name, before.at(name));
            EXPECT_TRUE(holds(last, name, (kept ? before : after).at(name))) << name;
        }
        EXPECT_TRUE(s.replacesWork || workIsSafe());
        Pulpit::TearDown();
    }

    // What a run without failures brings; the number of its calls.
    int rehearse(const Scenariusz& s) {
        open(s);
        before = snapshot();
        awaria = {};
        s.run(e);
        const int calls = awaria.calls;
        after = snapshot();
        told = shown;
        Pulpit::TearDown();
        return calls;
    }

    void fail(const Scenariusz& s, const Awaria& plan, int calls) {
        SCOPED_TRACE(std::string(s.name) + ", call " + std::to_string(plan.at) + " of " + std::to_string(calls) +
                     ", error " + std::to_string(static_cast<int>(plan.error)) +
                     (plan.forGood ? ", for good" : ", once"));
        expectNothingLost(s, plan);
    }

    Bajty work;
    Pliki before, after;
    std::vector<std::string> told;
};

constexpr std::array BLEDY{Wynik::Blad, Wynik::Odmowa};

TEST_P(Awarie, NothingIsLost) {
    const Scenariusz& s = GetParam();
    const int calls = rehearse(s);
    RecordProperty("calls", calls);
    fail(s, {1, Awaria::SHORT, true}, calls);
    for (int at = 1; at <= calls && !HasFailure(); ++at)
        for (bool forGood : {false, true})
            fail(s, {at, BLEDY[static_cast<std::size_t>(at) % BLEDY.size()], forGood}, calls);
}

// Every error at every call: half a minute and more.
TEST_P(Awarie, DISABLED_NothingIsLostByAnyError) {
    const Scenariusz& s = GetParam();
    const int calls = rehearse(s);
    for (int at = 1; at <= calls && !HasFailure(); ++at)
        for (Wynik error : {Wynik::Blad, Wynik::Odmowa, Awaria::SHORT})
            for (bool forGood : {false, true})
                fail(s, {at, error, forGood}, calls);
}

INSTANTIATE_TEST_SUITE_P(KazdaOperacja, Awarie, ::testing::ValuesIn(SCENARIUSZE),
                         [](const auto& test) { return "S" + std::to_string(test.index); });

} // namespace
} // namespace dorva::test
