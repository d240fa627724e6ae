// Mishaps of user and machine, and what can be had back after them.
#include "memory_disk.h"
#include "output/obraz_gry.h"
#include "stage/archiwum.h"
#include "stage/etap.h"
#include "stage/kopie_ekranu.h"
#include "stage/pola.h"
#include "stage/zbior_etapow.h"

namespace dorva::test {
namespace {

using std::chrono::hours, std::chrono::minutes;

// The copies of a file that hold the bytes.
std::vector<fs::path> copiesWith(const fs::path& file, const Bajty& bytes) {
    std::vector<fs::path> copies;
    const fs::path folder = file.parent_path() / "KOPIE" / file.filename();
    for (const auto& [name, content] : disk.files(folder.generic_string() + '/'))
        if (content == bytes)
            copies.emplace_back(name);
    return copies;
}

class Slips : public DeskInMemory {
public:
    using Desk::e, Desk::base, Desk::run;
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
    void load(const std::string& name, const Bajty& bytes, void (*operation)(Edytor&) = cmdLoad_Click) {
        disk.put(at(name), bytes);
        keepWork(e);
        run(operation, name);
    }
    void passes(minutes time) { disk.clock += time; }
    [[nodiscard]] Bajty screen() const { return packed(e.okno); }
    void kill() {
        keepWork(e); // the last that the program did
        restart();
    }
};

using Step = void (*)(Slips&);
const Step BOMB = [](Slips& d) { d.paint(BOMBA); };
const Step KEY = [](Slips& d) { d.paint(KLUCZ); };
const Step LOSE = [](Slips& d) { d.lost = d.screen(); }; // otherwise, what the file held at first
const Step KEEP = [](Slips& d) { keepWork(d.e); };
const Step CLEAR = [](Slips& d) { d.act(cmdCzysc_Click); };
const Step CLEAR_210_TIMES = [](Slips& d) {
    for (int i = 0; i < 210; ++i) {
        d.act(cmdCzysc_Click);
        d.e.okno.imgPG[246].znak = znak(i % 2);
    }
};
const Step LOAD = [](Slips& d) { d.load("inny", sampleEtap(9)); };
const Step LOAD_REFUSED = [](Slips& d) { d.load("obcy", Bajty(ETAP_SIZE_BYTES, 0)); };
const Step SAVE_ONTO_9 = [](Slips& d) { d.run(cmdSave_Click, "praca/ETAPY/DETAP.9"); };
const Step GO = [](Slips& d) { d.act([](Edytor& e) { SelectEtapNR(e, 1); }); };
const Step EXIT = [](Slips& d) { d.act(Form_QueryUnload); };
const Step SIX_MINUTES = [](Slips& d) { d.passes(minutes(6)); };
const Step DAY_BACK = [](Slips& d) { d.passes(-hours(24)); };
const Step KILL = [](Slips& d) { d.kill(); };
const Step OTHER_PROGRAM = [](Slips& d) { disk.put(at("praca/ETAPY/DETAP.1"), d.lost = sampleEtap(20)); };
const Step SECOND_EDITOR = [](Slips& d) { // stores its own stage 1
    Edytor second;
    second.system = memoryCalls();
    Form_Load(second, d.base, "1.0.2");
    second.okno.imgPG[246].znak = KLUCZ;
    SelectEtapNR(second, 1);
    d.lost = disk.files().at(at("praca/ETAPY/DETAP.1"));
};
const Step EARLY_END_OF_START = [](Slips& d) {
    std::erase_if(disk.names, [](const auto& entry) { return entry.first.ends_with(".ND"); });
    d.kill();
};

const struct {
    const char* name;
    std::vector<Step> steps;
    int number = 1; // of the stage whose copies are looked at
} SLIPS[]{
    {"clear", {BOMB, LOSE, CLEAR}},
    {"load", {BOMB, LOSE, LOAD}},
    {"refused load, then a switch", {LOAD_REFUSED, GO}},
    {"painted over and switched", {BOMB, GO}},
    {"saved by name onto another stage", {SAVE_ONTO_9}, 9},
    {"killed after six minutes", {BOMB, LOSE, SIX_MINUTES, KILL}},
    {"the same twice", {BOMB, LOSE, CLEAR, KEY, CLEAR}},
    {"another program's content", {OTHER_PROGRAM, BOMB, GO}},
    {"what a second editor stored", {BOMB, SECOND_EDITOR, GO}},
    {"what a second editor stored in between", {BOMB, GO, SECOND_EDITOR, KILL, KEY, GO}},
    {"start-up ended early, then the exit", {EARLY_END_OF_START, EXIT}},
    {"the clock a day back", {KEEP, BOMB, LOSE, DAY_BACK, KILL}},
    {"killed, started again and painted on", {BOMB, LOSE, SIX_MINUTES, KILL, KEY, GO, EXIT}},
    {"the oldest copy loaded", {BOMB, LOSE, CLEAR_210_TIMES}},
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

TEST_F(Slips, AWrongArchiveIsTakenBack) {
    restart();
    SelectEtapNR(e, 6);
    disk.names.erase(at("praca/ETAPY/DETAP.8"));
    disk.put(at("praca/ETAPY/DETAP.9"), Bajty(930, 1));
    disk.put(at("praca/ETAPY/DETAP.10"), Bajty(932, 1));
    cell(5, 5) = BOMBA;
    txt_Change(e, poleLinii(1), ascii("ala"));
    const Bajty stage = screen();
    load("zle.dpa", sampleArchiwum(), cmdLoadArch_Click);
    EXPECT_EQ(copiesWith(etap(7), stage).size(), 1U);
    for (const auto& [number, old] : {std::pair{1, sampleEtap(1)}, {9, Bajty(930, 1)}, {10, Bajty(932, 1)}})
        EXPECT_EQ(copiesWith(etap(number), old).size(), 1U) << number;

    const auto archives = disk.files(at("praca/ETAPY/KOPIE/DPArchiwum/"));
    ASSERT_EQ(archives.size(), 1U);
    run(cmdLoadArch_Click, archives.begin()->first);
    EXPECT_EQ(screen(), stage);
    EXPECT_EQ(e.okno.pola[TXT_AUTOR_GRY + 1].tekst.znaki, "ALA" + std::string(17, ' '));
    const Bajty empty = packed(defaultOkno());
    const std::map<int, Bajty> odd{{7, stage}, {8, empty}, {9, empty}, {10, Bajty(931, 1)}};
    for (int number = 1; number <= ETAPY_COUNT; ++number)
        EXPECT_EQ(disk.find(etap(number))->bytes, odd.contains(number) ? odd.at(number) : sampleEtap(number)) << number;
}

TEST_F(Slips, TitleLinesBeingTypedAreKeptAndTheBoxIsLeftAlone) {
    restart();
    keepWork(e);
    txt_Change(e, poleLinii(0), ascii("ala"));
    passes(minutes(4));
    keepWork(e);
    Bajty lines = sampleLinie();
    std::fill_n(lines.begin(), 20, ' ');
    std::ranges::copy(std::string("ALA"), lines.begin());
    const fs::path file = base / "PLIKI/DP1.DTA";
    EXPECT_TRUE(copiesWith(file, lines).empty()) << "five minutes have not passed yet";
    passes(minutes(1));
    keepWork(e);
    EXPECT_EQ(copiesWith(file, lines).size(), 1U);
    EXPECT_EQ(e.okno.pola[TXT_AUTOR_GRY].tekst, ascii("ala"));
}

TEST_F(Slips, KeepingLeavesTheScreenAloneAndOrdinaryWorkMakesNoCopies) {
    restart();
    for (int index : {1, 0, 2, 31, 2}) {
        keepWork(e);
        SelectEtapNR(e, index);
        passes(minutes(6));
        chosen = etap(e.NumerEtapu);
        act(cmdSave_Click);
        act(cmdLoad_Click);
    }
    disk.put(at("gra"), {});
    chosen = at("gra");
    act(cmdSaveArch_Click);
    act(cmdCreate_Click);
    act(Form_QueryUnload);
    EXPECT_TRUE(disk.files(at("praca/ETAPY/KOPIE/")).empty());
    cell(5, 5) = DORVA_INV;
    cell(0, 0) = BOMBA;
    passes(minutes(6));
    keepWork(e);
    EXPECT_EQ(cell(5, 5), DORVA_INV);
    EXPECT_EQ(cell(0, 0), BOMBA);
    const auto copies = disk.files(at("praca/ETAPY/KOPIE/"));
    ASSERT_EQ(copies.size(), 1U);
    PackEtap(e);
    EXPECT_EQ(copies.begin()->second, e.image);
}

TEST_F(Slips, TheExitLeavesTheNewest200) {
    const std::string time = " 2026-11-25 18.32";
    const std::pair<std::string, std::string> kinds[]{{at("praca/ETAPY/KOPIE/DETAP.32/DETAP.32."), time},
                                                      {at("praca/ETAPY/KOPIE/DPArchiwum/DPArchiwum."), time + ".dpa"},
                                                      {at("praca/PLIKI/KOPIE/DP1.DTA/DP1.DTA."), time}};
    for (const auto& [start, end] : kinds)
        for (int i = 1001; i <= 1201; ++i)
            disk.put(start + std::to_string(i) + end, {1});
    restart();
    Form_QueryUnload(e);
    for (const auto& [start, end] : kinds)
        EXPECT_EQ(disk.files(start).size(), 201U) << start;
    Form_Unload(e);
    for (const auto& [start, end] : kinds) {
        EXPECT_EQ(disk.files(start).size(), 200U) << start;
        EXPECT_FALSE(disk.find(start + "1001" + end)) << start;
    }
}

TEST_F(Slips, AClearGoesOnWithoutACopyOfTheScreen) {
    SystemCalls own = *memoryCalls();
    own.makeFolder = [](const fs::path&) { return Result::Error; };
    restart();
    e.system = &own;
    act(cmdCzysc_Click);
    EXPECT_EQ(cell(5, 5), ZIEMIA);
}

// Damaged stage files: each bit flipped, and lengths up to twice the right one.
class Damage : public DeskInMemory {
protected:
    const std::string file = at("praca/ETAPY/DETAP.2");

    // Goes to a damaged stage 2 and back. Stage 1 must not have changed, and the damaged bytes must still exist.
    void visit(const Bajty& damaged) {
        disk.put(file, damaged);
        SelectEtapNR(e, 1);
        ASSERT_EQ(e.NumerEtapu, 2);
        SelectEtapNR(e, 0);
        ASSERT_EQ(e.image, sampleEtap(1));
        ASSERT_TRUE(damaged.empty() || disk.find(file)->bytes == damaged || !copiesWith(file, damaged).empty());
    }
    bool unpack(const Bajty& image) {
        e.image = image;
        return UnpackEtap(e);
    }
};

TEST_F(Damage, EveryFlippedBitIsTakenOverOrKept) {
    start();
    int refused = 0;
    for (std::size_t bit = 0; bit < 8 * ETAP_SIZE_BYTES; ++bit) {
        SCOPED_TRACE(bit);
        Bajty damaged = sampleEtap(2);
        damaged[bit / 8] ^= static_cast<Bajt>(1U << bit % 8);
        if (bit % 8 == 0) {
            ASSERT_NO_FATAL_FAILURE(visit(damaged));
        }
        if (!unpack(damaged)) {
            ++refused;
        } else {
            PackEtap(e);
            Bajty stored = e.image;
            ASSERT_TRUE(unpack(stored));
            PackEtap(e);
            ASSERT_EQ(e.image, stored) << "what was stored once stays";
            stored[bit / 8] = damaged[bit / 8];
            ASSERT_EQ(stored, damaged) << "no other byte changes";
        }
        ASSERT_TRUE(unpack(sampleEtap(1)));
    }
    EXPECT_EQ(refused, 15);
    EXPECT_EQ(messages(), "");
}

TEST_F(Damage, EveryOtherLengthIsKept) {
    start();
    for (std::size_t length = 0; length <= 2 * ETAP_SIZE_BYTES; length += length < 900 || length > 960 ? 31 : 1) {
        SCOPED_TRACE(length);
        Bajty damaged = sampleEtap(2);
        damaged.resize(length, 9);
        ASSERT_NO_FATAL_FAILURE(visit(damaged));
        ASSERT_EQ(disk.find(file)->bytes, sampleEtap(length < ETAP_SIZE_BYTES ? 1 : 2));
        disk.put(at("obcy"), damaged);
        run(cmdLoad_Click, "obcy");
        ASSERT_EQ(messages(), length == ETAP_SIZE_BYTES ? "" : "Niewłaściwy format pliku!");
        ASSERT_EQ(disk.find(at("obcy"))->bytes, damaged);
        ASSERT_EQ(e.OstatniaSciezka, at("obcy"));
        ASSERT_TRUE(unpack(sampleEtap(1)));
    }
}

} // namespace
} // namespace dorva::test
