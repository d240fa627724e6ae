// Each file call of each operation is made to fail, and the power goes at each call. Whatever happens: every file holds
// its old or its new bytes, the old content of the working set is in its files or in copies, nothing else is left over,
// the user's work is on the screen or on the disk, and the next operation succeeds.
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

void startAnother(Edytor& e) {
    Edytor other;
    other.system = e.system;
    Form_Load(other, e.KatalogBazowy, "1.0.2");
}

const std::vector<Scenario> SCENARIOS{
    {"Start", damageTwo, startAnother, {}},
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
    {"Exit", [] {}, Form_QueryUnload, {ETAP_1}},
    {"ExitAfterAnEarlyEndOfStart", removeTileSets, Form_QueryUnload, {ETAP_1, LINIE}},
};

bool isCopy(const std::string& name) {
    return name.find("/KOPIE/") != std::string::npos;
}

// Whether the file or a copy of it holds the bytes.
bool holds(const Files& files, const std::string& name, const Bajty& bytes) {
    const std::string copies = copiesOf(name);
    return std::ranges::any_of(files, [&](const auto& entry) {
        return (entry.first == name || entry.first.starts_with(copies)) && entry.second == bytes;
    });
}

bool isIn(const Files& files, const std::string& name, const Bajty& bytes) {
    const auto found = files.find(name);
    return found != files.end() && found->second == bytes;
}

class Failures : public DeskInMemory, public ::testing::WithParamInterface<Scenario> {
protected:
    // Runs without failures, to know the disk, the messages and the number of calls afterwards.
    void SetUp() override {
        runFailing(0, false);
        after = disk.files();
        newScreen = packed(e.okno);
        said = shown;
        callCount = disk.calls;
        for (const std::string& name : s.targets)
            EXPECT_FALSE(before.contains(name) && isOld(after, name)) << name << " is no target";
    }

    void restartAndPaint() {
        restart();
        cell(5, 5) = BOMBA;
    }

    // Runs the operation on a fresh disk with unsaved work in the editor, and makes a call fail.
    void runFailing(int call, bool forGood) {
        DeskInMemory::SetUp();
        s.prepare();
        restartAndPaint();
        work = packed(e.okno);
        chosen = root / "chosen";
        shown.clear();
        before = disk.files();
        disk.unsure.clear();
        disk.calls = 0;
        disk.failing = call;
        disk.forGood = forGood;
        s.run(e);
        disk.failing = 0;
        disk.forGood = false;
    }

    bool isOld(const Files& now, const std::string& name) { return isIn(now, name, before.at(name)); }
    bool isNew(const Files& now, const std::string& name) { return isIn(now, name, after.at(name)); }
    // Whether the old content of a file is still there. Only files of the working set are kept.
    bool isKept(const Files& now, const std::string& name) {
        return name == CHOSEN || name == XEX || before.at(name).empty() || holds(now, name, before.at(name));
    }

    void expectWhole(const Files& now, bool mayLeaveHalves) {
        for (const auto& [name, bytes] : before)
            EXPECT_TRUE(isOld(now, name) || (isNew(now, name) && isKept(now, name))) << name;
        for (const auto& [name, bytes] : now)
            EXPECT_TRUE(before.contains(name) || (after.contains(name) && isNew(now, name)) ||
                        (isCopy(name) && !bytes.empty()) ||
                        (mayLeaveHalves && (isCopy(name) || name.ends_with(".dp-tmp"))))
                << name;
        for (std::size_t i = 1; i < s.targets.size(); ++i)
            EXPECT_TRUE(isNew(now, s.targets[i - 1]) || !isNew(now, s.targets[i])) << s.targets[i] << " too early";
    }

    void expectWritten() {
        for (const std::string& name : s.targets)
            EXPECT_TRUE(isNew(disk.files(), name)) << name << " is not written";
    }

    void expectWorkSafe() {
        const Bajty screen = packed(e.okno);
        EXPECT_TRUE(screen == work || (s.replacesScreen ? screen == newScreen : holds(disk.files(), ETAP_1, work)));
    }

    // The operation succeeds, and nothing is lost by it, by another stage and by the exit.
    void expectGoodRun() {
        s.run(e);
        expectWritten();
        expectWorkSafe();
        SelectEtapNR(e, 9);
        Form_QueryUnload(e);
        for (const auto& [name, bytes] : before)
            EXPECT_TRUE(isKept(disk.files(), name)) << name;
    }

    const Scenario& s = GetParam();
    Bajty work, newScreen;
    Files before, after;
    std::vector<std::string> said;
    int callCount = 0;
};

TEST_P(Failures, NoFailingCallAndNoPowerCutLosesAnything) {
    // An archive has the same calls for each of 32 stages, so a prime step meets every kind of call.
    const int step = callCount < 500 ? 1 : 7;
    for (int call = 1; call <= callCount; call += step) {
        SCOPED_TRACE("call " + std::to_string(call) + " of " + std::to_string(callCount));
        runFailing(call, false);
        expectWhole(disk.files(), false);
        if (s.run != Form_QueryUnload)
            expectWorkSafe();
        if (!said.empty() && shown == said)
            expectWritten();
        expectGoodRun();

        runFailing(call, true); // from where the power goes, no call does anything
        for (const Files& files : disk.afterPowerCut()) {
            ASSERT_FALSE(HasFailure());
            expectWhole(files, true);
            disk = {};
            for (const auto& [name, bytes] : files)
                disk.put(name, bytes);
            restartAndPaint();
            expectGoodRun();
        }
    }
    runFailing(0, false);
    for (const Files& files : disk.afterPowerCut())
        for (const auto& [name, bytes] : after)
            EXPECT_TRUE(bytes.empty() || isIn(files, name, bytes)) << name << " is not there to stay";
}

INSTANTIATE_TEST_SUITE_P(EveryOperation, Failures, ::testing::ValuesIn(SCENARIOS),
                         [](const auto& test) { return test.param.name; });

} // namespace
} // namespace dorva::test
