// Copies of what the editor replaces, and the mishaps that they undo.
#include "desk_in_memory.h"
#include "output/obraz_gry.h"
#include "stage/archiwum.h"
#include "stage/etap.h"
#include "stage/kopie_ekranu.h"
#include "stage/pola.h"
#include "stage/zbior_etapow.h"
#include "system/kopie.h"

#include <array>
#include <chrono>
#include <ctime>

namespace dorva::test {
namespace {

using std::chrono::hours, std::chrono::minutes;

class Copies : public Desk {
protected:
    void SetUp() override {
        Desk::SetUp();
        file = root / "plik";
        folder = root / "KOPIE/plik";
    }
    [[nodiscard]] std::vector<fs::path> names() const { return listNames(SYSTEM_CALLS, folder, ""); }
    // What the copies hold, in the order of their names.
    [[nodiscard]] std::vector<Bajty> kept() const {
        std::vector<Bajty> contents;
        for (const fs::path& name : names())
            contents.push_back(readFile(folder / name));
        return contents;
    }
    fs::path file, folder;
};

// One program is about to replace a file when another one writes to it.
TEST_F(Copies, WhatComesBetweenIsKept) {
    static fs::path replaced;
    static Bajt next;
    replaced = file;
    next = 7;
    SystemCalls own = SYSTEM_CALLS;
    own.flush = [](Handle handle) { // first called for the new content, then for a copy
        if (next < 9)
            writeFile(replaced, {next++});
        return SYSTEM_CALLS.flush(handle);
    };
    EXPECT_TRUE(writeKeeping(own, file, Bajty{1}));
    EXPECT_EQ(readFile(file), Bajty{1});
    EXPECT_EQ(kept(), (std::vector<Bajty>{{7}, {8}}));
}

TEST_F(Copies, WhatCannotBeKeptIsNotReplaced) {
    writeFile(file, {1});
    writeFile(root / "KOPIE", {});
    EXPECT_FALSE(writeKeeping(SYSTEM_CALLS, file, Bajty{2})) << "no folder can be made";
    fs::remove(root / "KOPIE");
    SystemCalls full = SYSTEM_CALLS, unlisted = SYSTEM_CALLS, liar = SYSTEM_CALLS;
    full.write = [](Handle handle, std::span<const Bajt> bytes, std::size_t& count) {
        return bytes.size() == 1 ? Result::Error : SYSTEM_CALLS.write(handle, bytes, count); // the copy
    };
    unlisted.list = [](const fs::path&, std::vector<fs::path>&) { return Result::Error; };
    for (const SystemCalls& broken : {full, unlisted})
        EXPECT_FALSE(writeKeeping(broken, file, Bajty{2, 2}));
    EXPECT_EQ(readFile(file), Bajty{1});
    EXPECT_TRUE(kept().empty()) << "nor is half a copy left";
    fs::resize_file(file, 100U << 20U);
    EXPECT_FALSE(writeKeeping(SYSTEM_CALLS, file, Bajty{2})) << "too long to be copied";
    EXPECT_EQ(fs::file_size(file), 100U << 20U);
    EXPECT_EQ(listNames(SYSTEM_CALLS, root, "").size(), 3U) << "no temporary file is left";
    liar.rename = [](const fs::path& from, const fs::path& to) { return SYSTEM_CALLS.rename(from, to), Result::Error; };
    writeFile(file, {1});
    EXPECT_FALSE(writeKeeping(liar, file, Bajty{2}));
    EXPECT_EQ(kept(), (std::vector<Bajty>{{1}})) << "the rename was carried out";
}

TEST_F(Copies, TheSameBytesNeedNoCopyAndLeaveTheFileAsItIs) {
    writeFile(file, {1});
    fs::last_write_time(file, fs::file_time_type::clock::now() - hours(48));
    const auto old = fs::last_write_time(file); // as exact as the system keeps it
    EXPECT_TRUE(writeKeeping(SYSTEM_CALLS, file, Bajty{1}));
    EXPECT_EQ(fs::last_write_time(file), old);
    writeFile(root / "pusty", {});
    EXPECT_TRUE(writeKeeping(SYSTEM_CALLS, root / "pusty", Bajty{1})) << "an empty file";
    EXPECT_FALSE(fs::exists(root / "KOPIE"));
    for (const Bajt content : {1, 1, 2, 1})
        EXPECT_TRUE(keepCopy(SYSTEM_CALLS, file, Bajty{content}, Time()));
    EXPECT_EQ(kept(), (std::vector<Bajty>{{1}, {2}, {1}}));
    SystemCalls late = SYSTEM_CALLS; // another program has made copies since the folder was read
    late.list = [](const fs::path&, std::vector<fs::path>&) { return Result::Ok; };
    EXPECT_TRUE(keepCopy(late, file, Bajty{3}, Time()));
    EXPECT_EQ(kept(), (std::vector<Bajty>{{1}, {2}, {1}, {3}})) << "no copy replaces another";
}

// Only the number decides what is newer, and names of another form don't count.
TEST_F(Copies, NamesAndNumbers) {
    const auto made = Time(hours(24 * 20000) + minutes(62));
    const std::time_t seconds = std::chrono::system_clock::to_time_t(made);
    std::array<char, 40> time{};
    std::strftime(time.data(), time.size(), " %Y-%m-%d %H.%M", std::localtime(&seconds));
    fs::create_directories(folder);
    for (const char* name :
         {"plik.123 2026-11-25 18.32", "plik.0200 2026-11-25 18.32.dpa", "plik.0200 2026-11-25 18:32", "plik.0200",
          "plik.0x00 2026-11-25 18.32", "plik.99999999999 2026-11-25 18.32"})
        writeFile(folder / (POSIX ? name : std::string(name).substr(0, 20)), {1});
    for (auto [newest, next] : {std::pair("plik.0041 2099-01-01 00.00", "plik.0042"), // 0041 is the newest so far
                                {"plik.9999 2020-01-01 00.00", "plik.10000"}}) {
        writeFile(folder / newest, {1});
        EXPECT_TRUE(keepCopy(SYSTEM_CALLS, file, Bajty{2}, made));
        EXPECT_TRUE(fs::exists(folder / (next + std::string(time.data()))));
    }
    EXPECT_TRUE(keepCopy(SYSTEM_CALLS, root / "gra", Bajty{3}, Time::min(), ".dpa"));
    folder = root / "KOPIE/gra";
    EXPECT_EQ(names().at(0).string().substr(0, 9), "gra.0001 ");
    EXPECT_EQ(names().at(0).extension(), ".dpa");
}

TEST_F(Copies, TheNewest200Stay) {
    for (int i = 0; i < 203; ++i)
        ASSERT_TRUE(keepCopy(SYSTEM_CALLS, file, Bajty{static_cast<Bajt>(i)}, Time(hours(1000 - i))));
    fs::rename(folder / names()[0], folder / "najlepsza");
    trimCopies(SYSTEM_CALLS, file);
    ASSERT_EQ(kept().size(), 201U);
    EXPECT_EQ(kept()[1], Bajty{3});
    EXPECT_EQ(readFile(folder / "najlepsza"), Bajty{0});
}

// Mishaps of user and machine, and what can be had back after them.
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
    // The copies of a file that hold the bytes.
    [[nodiscard]] std::vector<fs::path> copiesWith(const fs::path& file, const Bajty& bytes) const {
        std::vector<fs::path> copies;
        const fs::path folder = file.parent_path() / "KOPIE" / file.filename();
        for (const auto& [name, content] : disk.files(folder.generic_string() + '/'))
            if (content == bytes)
                copies.emplace_back(name);
        return copies;
    }
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
    const auto fill = [](const std::string& folder, const std::string& name, const std::string& ending) {
        for (int i = 1001; i <= 1201; ++i)
            disk.put(at("praca/" + folder + '/' + name + '.' + std::to_string(i) + " 2026-11-25 18.32" + ending), {1});
    };
    fill("ETAPY/KOPIE/DETAP.32", "DETAP.32", "");
    fill("ETAPY/KOPIE/DPArchiwum", "DPArchiwum", ".dpa");
    fill("PLIKI/KOPIE/DP1.DTA", "DP1.DTA", "");
    restart();
    Form_QueryUnload(e);
    EXPECT_EQ(disk.files(at("praca/ETAPY/KOPIE/")).size(), 402U);
    Form_Unload(e);
    const Files left = disk.files();
    for (const char* first : {"ETAPY/KOPIE/DETAP.32/DETAP.32.1001 2026-11-25 18.32",
                              "ETAPY/KOPIE/DPArchiwum/DPArchiwum.1001 2026-11-25 18.32.dpa",
                              "PLIKI/KOPIE/DP1.DTA/DP1.DTA.1001 2026-11-25 18.32"})
        EXPECT_FALSE(left.contains(at(std::string("praca/") + first))) << first;
    EXPECT_EQ(disk.files(at("praca/ETAPY/KOPIE/")).size(), 400U);
    EXPECT_EQ(disk.files(at("praca/PLIKI/KOPIE/")).size(), 200U);
}

TEST_F(Slips, WhereNoCopyCanBeMadeTheScreenStays) {
    static SystemCalls own;
    own = *memoryCalls();
    own.makeFolder = [](const fs::path&) { return Result::Error; };
    restart();
    e.system = &own;
    cell(5, 5) = BOMBA;
    const Bajty work = screen();
    SelectEtapNR(e, 1);
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_TRUE(shown[0].starts_with("Nie można zapisać etapu.\n"));
    EXPECT_EQ(e.okno.optEtapNR, 0);
    EXPECT_EQ(screen(), work);
    EXPECT_EQ(disk.find(etap(1))->bytes, sampleEtap(1));
    act(cmdCzysc_Click);
    EXPECT_NE(screen(), work) << "a clear goes on without a copy of the screen";
}

// They take turns, as somebody uses two windows on one folder.
TEST_F(Slips, TwoEditorsThatStoreInTurnsLoseNothing) {
    restart();
    Edytor second;
    attach(second);
    Form_Load(second, base, "1.0.2");
    std::vector<Bajty> stored;
    for (int i = 0; i < 210; ++i) {
        Edytor& editor = i % 2 == 0 ? e : second;
        SelectEtapNR(editor, 0);
        txt_Change(editor, POLE_AUTOR, ascii(std::to_string(i)));
        stored.push_back(packed(editor.okno));
        SelectEtapNR(editor, 1);
    }
    Form_Unload(e);
    for (std::size_t i = 0; i + 1 < stored.size(); ++i)
        EXPECT_EQ(copiesWith(etap(1), stored[i]).size(), i < 9 ? 0U : 1U) << i << ": the newest 200 stay";
    EXPECT_EQ(disk.find(etap(1))->bytes, stored.back());
}

} // namespace
} // namespace dorva::test
