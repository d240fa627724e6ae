// Each file call of each operation is made to fail, and the power is cut after each call. Whatever happens: every file
// holds its old or its new bytes, the old content of the working set is in its files or in copies, nothing else is left
// over, the user's work is on the screen or on the disk, and the next operation succeeds.
#include "memory_disk.h"
#include "output/obraz_gry.h"
#include "stage/archiwum.h"
#include "stage/etap.h"
#include "stage/kopie_ekranu.h"
#include "stage/zbior_etapow.h"

namespace dorva::test {
namespace {

const std::string ETAP_1 = at("praca/ETAPY/DETAP.1"), ETAP_2 = at("praca/ETAPY/DETAP.2"),
                  LINIE = at("praca/PLIKI/DP1.DTA"), XEX = at("praca/PLIKI/TEST.XEX"), CHOSEN = at("chosen");

struct Scenario {
    const char* name;
    void (*prepare)(); // changes to the disk before the start
    void (*run)(Edytor&);
    std::vector<std::string> targets; // files that get new bytes, in this order
    bool replacesScreen = false;      // then a failing call may cost what was on it
};

void damageTwo() {
    disk.put(ETAP_2, Bajty(500, 3));
}

void removeTileSets() {
    std::erase_if(disk.names, [](const auto& entry) { return entry.first.ends_with(".ND"); });
}

void makeArchive() {
    disk.put(CHOSEN, sampleArchiwum());
    damageTwo();
}

void makeOther() {
    disk.put(CHOSEN, {1, 2, 3});
}

const std::vector<Scenario> SCENARIOS{
    {"Start", damageTwo, [](Edytor& e) { Form_Load(e, fs::path(e.KatalogBazowy), "1.0.2"); }, {}, true},
    {"WorkKept", [] {}, keepWork, {}},
    {"Switch", [] {}, [](Edytor& e) { SelectEtapNR(e, 1); }, {ETAP_1}},
    {"SwitchToADamagedFileAndOn",
     damageTwo,
     [](Edytor& e) {
         SelectEtapNR(e, 1);
         SelectEtapNR(e, 2);
     },
     {ETAP_1}},
    {"Load", [] { disk.put(CHOSEN, sampleEtap(9)); }, cmdLoad_Click, {}, true},
    {"Save", makeOther, cmdSave_Click, {CHOSEN}},
    {"Clear", [] {}, cmdCzysc_Click, {}, true},
    {"ArchiveSave", makeOther, cmdSaveArch_Click, {ETAP_1, CHOSEN}},
    {"ArchiveLoad", makeArchive, cmdLoadArch_Click, {ETAP_2, LINIE}, true},
    {"GameBuild", makeOther, cmdCreate_Click, {ETAP_1, CHOSEN, XEX}},
    {"TestBuild", [] {}, cmdTest_Click, {XEX}},
    {"Exit", [] {}, Form_QueryUnload, {ETAP_1, LINIE}},
    {"ExitAfterAnEarlyEndOfStart", removeTileSets, Form_QueryUnload, {ETAP_1, LINIE}},
};

bool isTemporary(const std::string& name) {
    return name.ends_with(".dp-tmp");
}

bool isCopy(const std::string& name) {
    return name.find("/KOPIE/") != std::string::npos;
}

// The file that a name belongs to: itself, or the one that it is a copy of.
std::string fileOf(const std::string& name) {
    const fs::path path = name;
    return isCopy(name)
               ? (path.parent_path().parent_path().parent_path() / path.parent_path().filename()).generic_string()
               : name;
}

// Whether the file or a copy of it holds the bytes.
bool holds(const Files& files, const std::string& name, const Bajty& bytes) {
    return std::ranges::any_of(
        files, [&](const auto& entry) { return fileOf(entry.first) == fileOf(name) && entry.second == bytes; });
}

bool isIn(const Files& files, const std::string& name, const Bajty& bytes) {
    const auto found = files.find(name);
    return found != files.end() && found->second == bytes;
}

class Failures : public DeskInMemory, public ::testing::WithParamInterface<Scenario> {
protected:
    // Runs without failures, to know the disk and the messages afterwards and the number of calls.
    void SetUp() override {
        open();
        before = disk.files();
        disk.failure = {};
        s.run(e);
        callCount = disk.failure.calls;
        step = callCount < 500 ? 1 : 7;
        after = disk.files();
        said = shown;
    }

    // A fresh disk and an editor with unsaved work on it.
    void open() {
        DeskInMemory::SetUp();
        s.prepare();
        restart();
        cell(5, 5) = BOMBA;
        work = packed(e.okno);
        chosen = root / "chosen";
        shown.clear();
        disk.unsure.clear();
    }

    bool isOld(const Files& now, const std::string& name) { return isIn(now, name, before.at(name)); }
    bool isNew(const Files& now, const std::string& name) {
        return now.contains(name) && isIn(after, name, now.at(name));
    }
    // Whether the old content of a file is still there. Only files of the working set are kept.
    bool isKept(const Files& now, const std::string& name) {
        return name == CHOSEN || name == XEX || before.at(name).empty() || holds(now, name, before.at(name));
    }
    // Whether a copy holds what its file held, or what a run without failures copies. A copy of the whole game may
    // differ: a stage that could not be read is a default one in it.
    bool isRightCopy(const std::string& name, const Bajty& bytes) {
        return isCopy(name) &&
               (isIn(before, fileOf(name), bytes) || holds(after, name, bytes) || bytes.size() == ARCHIWUM_SIZE_BYTES);
    }
    bool isWorkSafe() { return packed(e.okno) == work || holds(disk.files(), ETAP_1, work); }

    void expectOldOrNewAndKept(const Files& now, bool mayLeaveHalves) {
        for (const auto& [name, bytes] : before)
            EXPECT_TRUE(isOld(now, name) || (isNew(now, name) && isKept(now, name))) << name;
        for (const auto& [name, bytes] : now)
            EXPECT_TRUE(before.contains(name) || isNew(now, name) || isRightCopy(name, bytes) ||
                        (mayLeaveHalves && (isTemporary(name) || isCopy(name))))
                << name;
        const auto isDone = [&](const std::string& name) { return isIn(now, name, after.at(name)); };
        for (std::size_t i = 1; i < s.targets.size(); ++i) {
            const bool isChanged =
                !before.contains(s.targets[i]) || !isIn(after, s.targets[i], before.at(s.targets[i]));
            EXPECT_TRUE(!isChanged || !isDone(s.targets[i]) || isDone(s.targets[i - 1]))
                << s.targets[i] << " too early";
        }
    }

    // Runs the operation with one failing call, then again without one, and then ends the program.
    void expectNothingLost(const Failure& plan) {
        open();
        disk.failure = plan;
        s.run(e);
        expectOldOrNewAndKept(disk.files(), disk.failure.removeFailed);
        for (const std::string& text : shown)
            EXPECT_TRUE(std::ranges::count(said, text) || text.starts_with("Nie można zapisać etapu.")) << text;
        EXPECT_TRUE(s.replacesScreen || s.run == Form_QueryUnload || isWorkSafe());
        for (const std::string& name : s.targets)
            EXPECT_TRUE(said.empty() || shown != said || isIn(disk.files(), name, after.at(name)))
                << name << " is not written";
        if (plan.error == Failure::SHORT) {
            EXPECT_EQ(disk.files(), after) << "short transfers are no failures";
            EXPECT_EQ(shown, said);
        }

        disk.failure = {};
        s.run(e);
        for (const std::string& name : s.targets)
            EXPECT_TRUE(isIn(disk.files(), name, after.at(name))) << name;
        SelectEtapNR(e, 9);
        Form_QueryUnload(e);
        for (const auto& [name, bytes] : before)
            EXPECT_TRUE(isKept(disk.files(), name)) << name;
        EXPECT_TRUE(s.replacesScreen || isWorkSafe());
    }

    // A start on this disk succeeds, and nothing is lost by it, by visiting stages and by the exit.
    void expectGoodStart(const Files& files) {
        disk = {};
        for (const auto& [name, bytes] : files)
            disk.put(name, bytes);
        Edytor next;
        next.system = memoryCalls();
        Form_Load(next, base, "1.0.2");
        EXPECT_TRUE(s.prepare == removeTileSets || next.image == files.at(ETAP_1));
        for (int index : {1, 4})
            SelectEtapNR(next, index);
        Form_QueryUnload(next);
        for (const auto& [name, bytes] : files)
            EXPECT_TRUE(bytes.empty() || isTemporary(name) || holds(disk.files(), name, bytes)) << name;
    }

    // Cuts the power at this moment: every state in which the disk may be is a good one.
    void expectEveryCutWhole() {
        constexpr std::size_t UNSURE_MAX = 5; // the states would double with each
        ASSERT_LT(disk.unsure.size(), UNSURE_MAX) << "names whose folder was never flushed";
        const MemoryDisk now = disk;
        for (const Files& files : now.afterPowerCut()) {
            ++cuts;
            expectOldOrNewAndKept(files, true);
            expectGoodStart(files);
        }
        disk = now;
    }

    // Makes a call that changes the disk, and cuts the power after it.
    template <auto Call, class... Args> static Result watched(Args... args) {
        const Result result = (memoryCalls()->*Call)(args...);
        if (!HasFailure() && ++running->changes % running->step == 0)
            running->expectEveryCutWhole();
        return result;
    }

    const Scenario& s = GetParam();
    Bajty work;
    Files before, after;
    std::vector<std::string> said;
    int callCount = 0, changes = 0, cuts = 0;
    int step = 1; // an archive has the same calls for each of 32 stages, so a prime step meets every kind of call
    inline static Failures* running = nullptr;
};

TEST_P(Failures, NoFailingCallLosesAnything) {
    expectNothingLost({1, Failure::SHORT, true});
    for (int at = 1; at <= callCount; at += step)
        for (const bool forGood : {false, true}) {
            expectNothingLost({at, Result::Error, forGood});
            ASSERT_FALSE(HasFailure()) << "call " << at << " of " << callCount << (forGood ? ", for good" : ", once");
        }
}

TEST_P(Failures, NoPowerCutLosesAnything) {
    running = this;
    SystemCalls tracing = *memoryCalls();
    tracing.open = watched<&SystemCalls::open>;
    tracing.write = watched<&SystemCalls::write>;
    tracing.flush = watched<&SystemCalls::flush>;
    tracing.rename = watched<&SystemCalls::rename>;
    tracing.remove = watched<&SystemCalls::remove>;
    tracing.makeFolder = watched<&SystemCalls::makeFolder>;
    tracing.flushFolder = watched<&SystemCalls::flushFolder>;
    open();
    e.system = &tracing;
    s.run(e);
    ASSERT_FALSE(HasFailure());
    EXPECT_TRUE(cuts > 0 || after == before);
    for (const Files& files : disk.afterPowerCut())
        for (const auto& [name, bytes] : after)
            EXPECT_TRUE(bytes.empty() || isIn(files, name, bytes))
                << name << " was reported as written and is not there";
}

INSTANTIATE_TEST_SUITE_P(EveryOperation, Failures, ::testing::ValuesIn(SCENARIOS),
                         [](const auto& test) { return test.param.name; });

} // namespace
} // namespace dorva::test
