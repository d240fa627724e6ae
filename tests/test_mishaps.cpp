// Mishaps of user and machine, and what can be had back after them.
#include "memory_disk.h"
#include "output/obraz_gry.h"
#include "stage/archiwum.h"
#include "stage/etap.h"
#include "stage/kopie_ekranu.h"
#include "stage/pola.h"
#include "stage/zbior_etapow.h"
#include "system/kopie.h"

namespace dorva::test {
namespace {

using std::chrono::hours, std::chrono::minutes;

// The copies of a file that hold the bytes.
std::vector<fs::path> copiesWith(const fs::path& file, const Bajty& bytes) {
    std::vector<fs::path> copies;
    for (const auto& [name, content] : disk.files(copiesOf(file)))
        if (content == bytes)
            copies.emplace_back(name);
    return copies;
}

class Slips : public DeskInMemory {
public:
    using Desk::e, Desk::run, Desk::restart;
    Bajty lost; // what would be
    // Runs an operation as the window does.
    void act(void (*operation)(Edytor&)) {
        keepWork(e);
        operation(e);
    }
    void paint(Znak z) {
        keepWork(e);
        cell(5, 5) = z;
    }
    void load(const Bajty& bytes) {
        disk.put(at("inny"), bytes);
        keepWork(e);
        run(cmdLoad_Click, "inny");
    }
    [[nodiscard]] Bajty screen() const { return packed(e.okno); }
};

using Step = void (*)(Slips&);
const Step BOMB = [](Slips& d) { d.paint(BOMBA); };
const Step KEY = [](Slips& d) { d.paint(KLUCZ); };
const Step LOSE = [](Slips& d) { d.lost = d.screen(); }; // otherwise, what the file held at first
const Step KEEP = [](Slips& d) { keepWork(d.e); };
const Step CLEAR = [](Slips& d) { d.act(cmdCzysc_Click); };
const Step LOAD = [](Slips& d) { d.load(sampleEtap(9)); };
const Step SAVE_ONTO_9 = [](Slips& d) { d.run(cmdSave_Click, "praca/ETAPY/DETAP.9"); };
const Step GO = [](Slips& d) { d.act([](Edytor& e) { SelectEtapNR(e, 1); }); };
const Step SIX_MINUTES = [](Slips&) { disk.clock += minutes(6); };
const Step DAY_BACK = [](Slips&) { disk.clock -= hours(24); };
const Step KILL = [](Slips& d) {
    keepWork(d.e); // the last that the program did
    d.restart();
};
const Step OTHER_PROGRAM = [](Slips& d) { disk.put(at("praca/ETAPY/DETAP.1"), d.lost = sampleEtap(20)); };

const struct {
    const char* name;
    std::vector<Step> steps;
    int number = 1; // of the stage whose copies are looked at
} SLIPS[]{
    {"clear", {BOMB, LOSE, CLEAR}},
    {"load", {BOMB, LOSE, LOAD}},
    {"painted over and switched", {BOMB, GO}},
    {"saved by name onto another stage", {SAVE_ONTO_9}, 9},
    {"killed after six minutes", {BOMB, LOSE, SIX_MINUTES, KILL}},
    {"the same twice", {BOMB, LOSE, CLEAR, KEY, CLEAR}},
    {"another program's content", {OTHER_PROGRAM, BOMB, GO}},
    {"the clock a day back", {KEEP, BOMB, LOSE, DAY_BACK, KILL}},
    {"killed, started again and painted on", {BOMB, LOSE, SIX_MINUTES, KILL, KEY, GO}},
};

TEST_F(Slips, EveryLostStageComesBackByTheDialog) {
    for (const auto& slip : SLIPS) {
        SCOPED_TRACE(slip.name);
        SetUp();
        restart();
        lost = sampleEtap(slip.number);
        for (const Step step : slip.steps)
            step(*this);
        const auto copies = copiesWith(etap(slip.number), lost);
        ASSERT_FALSE(copies.empty());
        run(cmdLoad_Click, copies[0]);
        EXPECT_EQ(screen(), lost);
    }
}

TEST_F(Slips, AFileOfAnotherLengthIsRefused) {
    restart();
    for (const std::size_t length : {ETAP_SIZE_BYTES - 1, ETAP_SIZE_BYTES + 1}) {
        load(Bajty(length, 9));
        EXPECT_EQ(messages(), "Niewłaściwy format pliku!");
        EXPECT_EQ(screen(), sampleEtap(1));
    }
}

TEST_F(Slips, AWrongArchiveIsTakenBack) {
    restart();
    SelectEtapNR(e, 6);
    disk.names.erase(at("praca/ETAPY/DETAP.8"));
    disk.put(at("praca/ETAPY/DETAP.9"), Bajty(930, 1));
    disk.put(at("praca/ETAPY/DETAP.10"), Bajty(932, 1));
    cell(5, 5) = BOMBA;
    txt_Change(e, poleLinii(1), ascii("ala"));
    const Bajty stage = screen();
    disk.clock += hours(24 * 365);
    disk.put(at("zle.dpa"), sampleArchiwum());
    run(cmdLoadArch_Click, "zle.dpa");
    EXPECT_EQ(copiesWith(etap(7), stage).size(), 1U);
    EXPECT_EQ(listCopies(*e.system, etap(1)).at(0).made.substr(0, 4), "2019") << "when the file was last changed";
    const auto archives = disk.files(at("praca/ETAPY/KOPIE/DPArchiwum/"));
    ASSERT_EQ(archives.size(), 1U);
    run(cmdLoadArch_Click, archives.begin()->first);
    EXPECT_EQ(screen(), stage);
    EXPECT_EQ(e.okno.pola[TXT_AUTOR_GRY + 1].tekst.znaki, "ALA" + std::string(17, ' '));
    const Bajty empty = packed(defaultOkno());
    const std::map<int, Bajty> odd{{7, stage}, {8, empty}, {9, empty}, {10, Bajty(931, 1)}};
    const Files files = disk.files();
    for (int number = 1; number <= ETAPY_COUNT; ++number)
        EXPECT_EQ(files.at(etap(number).generic_string()), odd.contains(number) ? odd.at(number) : sampleEtap(number))
            << number;
}

TEST_F(Slips, TitleLinesBeingTypedAreKeptAndTheBoxIsLeftAlone) {
    restart();
    keepWork(e);
    txt_Change(e, poleLinii(0), ascii("ala"));
    const fs::path file = base / "PLIKI/DP1.DTA";
    for (const auto& [time, copies] : {std::pair(minutes(4), 0U), {minutes(1), 1U}}) {
        disk.clock += time;
        keepWork(e);
        EXPECT_EQ(copiesWith(file, packedAutorGry(e.okno)).size(), copies);
    }
    EXPECT_EQ(e.okno.pola[TXT_AUTOR_GRY].tekst, ascii("ala"));
}

TEST_F(Slips, OrdinaryWorkMakesNoCopiesAndKeepingLeavesTheScreenAlone) {
    restart();
    for (int index : {1, 0, 31}) {
        act(cmdSave_Click);
        SelectEtapNR(e, index);
        chosen = etap(e.NumerEtapu);
        disk.clock += minutes(6);
        act(cmdLoad_Click);
    }
    chosen = at("gra");
    act(cmdSaveArch_Click);
    act(cmdCreate_Click);
    act(Form_QueryUnload);
    EXPECT_TRUE(disk.files(at("praca/ETAPY/KOPIE/")).empty());
    cell(5, 5) = DORVA_INV;
    cell(0, 0) = BOMBA;
    disk.clock += minutes(6);
    keepWork(e);
    EXPECT_EQ(cell(5, 5), DORVA_INV);
    EXPECT_EQ(cell(0, 0), BOMBA);
    PackEtap(e);
    EXPECT_EQ(copiesWith(etap(32), e.image).size(), 1U);
}

TEST_F(Slips, TheExitLeavesTheNewest200CopiesAndOtherFiles) {
    const std::string time = " 2026-11-25 18.32";
    const std::pair<std::string, std::string> kinds[]{{at("praca/ETAPY/KOPIE/DETAP.32/DETAP.32."), time},
                                                      {at("praca/ETAPY/KOPIE/DPArchiwum/DPArchiwum."), time + ".dpa"},
                                                      {at("praca/PLIKI/KOPIE/DP1.DTA/DP1.DTA."), time}};
    for (const auto& [start, end] : kinds) {
        for (int i = 9801; i <= 10001; ++i)
            disk.put(start + std::to_string(i) + end, {1});
        disk.put(start + "najlepsza", {1});
    }
    restart();
    Form_Unload(e);
    for (const auto& [start, end] : kinds) {
        EXPECT_EQ(disk.files(start).size(), 201U) << start;
        EXPECT_FALSE(disk.find(start + "9801" + end)) << start;
        EXPECT_TRUE(disk.find(start + "najlepsza")) << start;
    }
}

} // namespace
} // namespace dorva::test
