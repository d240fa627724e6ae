// Speed of the logic. Each benchmark BM_X has a baseline BM_XPlain: the plain work that it can't do without.
// scripts/bench.sh prints the ratio of the two beside its aim.
#include "board/census.h"
#include "board/plansza.h"
#include "output/obraz_gry.h"
#include "output/szablon.h"
#include "sciezki.h"
#include "shell/start.h"
#include "stage/archiwum.h"
#include "stage/etap.h"
#include "stage/kopie_ekranu.h"
#include "stage/zbior_etapow.h"
#include "system/pliki.h"

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

namespace dorva {
namespace {

namespace fs = std::filesystem;

// A working folder with 32 stages and a template, removed at the end.
struct Praca {
    Praca() {
        std::string pattern = (fs::temp_directory_path() / "dorva-bench-XXXXXX").string();
        base = ::mkdtemp(pattern.data());
        for (const char* folder : {"ETAPY", "PLIKI", "OBIEKTY/ORN_EXPORT"})
            fs::create_directories(base / folder);
        for (const char* name : {"FNT01.ORN.ND", "FNT11.ORN.ND", "FNT21.ORN.ND"})
            put(base / "OBIEKTY/ORN_EXPORT" / name, {});
        put(base / "PLIKI/DP1.DTA", Bajty(AUTOR_GRY_SIZE_BYTES, ' '));
        put(base / "PLIKI/DP2.DTA", Bajty(GRA_SIZE_BYTES, 1));
        e.KatalogBazowy = base;
        PackEtap(e);
        for (int number = 1; number <= ETAPY_COUNT; ++number)
            put(sciezki::etap(base, number), e.image);
        e.haki.messageBox = [](const Komunikat& k) { return k.przyciski == Przyciski::OkCancel; };
        e.haki.openDialog = e.haki.saveDialog = [this](const DialogPliku&) { return std::optional(base / "wynik"); };
        e.haki.startProgram = [](const fs::path&, OknoProgramu) {};
        Form_Load(e, base, "1.0.2");
    }
    ~Praca() {
        fs::current_path("/");
        fs::remove_all(base);
    }
    static void put(const fs::path& path, const Bajty& bytes) { (void)writeWhole(SYSTEM_CALLS, path, bytes); }

    fs::path base;
    Edytor e;
};

// The bare system calls for one file: read `count` bytes; write through a temporary file, flushed, renamed.
void plainRead(const fs::path& path, Bajty& bytes) {
    const int file = ::open(path.c_str(), O_RDONLY);
    benchmark::DoNotOptimize(::read(file, bytes.data(), bytes.size()));
    ::close(file);
}

void plainFlush(const fs::path& folder) {
    const int file = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY);
    ::fsync(file);
    ::close(file);
}

void plainWrite(const fs::path& path, const Bajty& bytes) {
    const fs::path temporary = path.string() + ".tmp";
    const int file = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    benchmark::DoNotOptimize(::write(file, bytes.data(), bytes.size()));
    ::fsync(file);
    ::close(file);
    ::rename(temporary.c_str(), path.c_str());
    plainFlush(path.parent_path());
}

// A copy of a file's old content: the folder listed, the newest one read, a new one written and flushed.
void plainCopy(const fs::path& path, Bajty& bytes, int number) {
    const fs::path folder = path.parent_path() / "KOPIE" / path.filename();
    fs::create_directories(folder);
    fs::path newest;
    for (const auto& entry : fs::directory_iterator(folder))
        newest = std::max(newest, entry.path());
    if (!newest.empty())
        plainRead(newest, bytes);
    const int file = ::open((folder / std::to_string(100000 + number)).c_str(), O_WRONLY | O_CREAT | O_EXCL, 0666);
    benchmark::DoNotOptimize(::write(file, bytes.data(), bytes.size()));
    ::fsync(file);
    ::close(file);
    plainFlush(folder);
}

// Removes the copies now and then: a benchmark would make far more of them than a user ever has.
void forgetCopies(benchmark::State& state, const fs::path& base, int round) {
    constexpr int ROUNDS = 100;
    if (round % ROUNDS != 0)
        return;
    state.PauseTiming();
    fs::remove_all(base / "ETAPY/KOPIE");
    fs::remove_all(base / "PLIKI/KOPIE");
    state.ResumeTiming();
}

// Counts a board of 800 bytes by code, in the plainest way.
void plainCount(const Bajty& board) {
    std::array<int, 256> bins{};
    for (Bajt b : board)
        ++bins[b];
    benchmark::DoNotOptimize(bins);
}

Bajty codesOf(const Edytor& e) {
    Bajty board;
    for (const PokazanyZnak& cell : e.okno.imgPG)
        board.push_back(static_cast<Bajt>(cell.znak));
    return board;
}

void BM_RefreshInfoPlain(benchmark::State& state) {
    const Praca praca;
    const Bajty board = codesOf(praca.e);
    for (auto _ : state) {
        benchmark::ClobberMemory();
        plainCount(board);
    }
}
BENCHMARK(BM_RefreshInfoPlain);

void BM_RefreshInfo(benchmark::State& state) {
    Praca praca;
    for (auto _ : state)
        RefreshInfo(praca.e);
}
BENCHMARK(BM_RefreshInfo);

void BM_StrokePlain(benchmark::State& state) {
    const Praca praca;
    Bajty board = codesOf(praca.e);
    std::size_t cell = 0;
    for (auto _ : state) {
        board[cell = (cell + 1) % board.size()] = 1;
        benchmark::ClobberMemory();
        plainCount(board);
    }
}
BENCHMARK(BM_StrokePlain);

void BM_Stroke(benchmark::State& state) {
    Praca praca;
    int cell = 0;
    for (auto _ : state)
        imgPG_MouseDown(praca.e, cell = (cell + 1) % PLANSZA_CELLS, LEWY);
}
BENCHMARK(BM_Stroke);

// Packing and unpacking each end with a count of the board; in between the image is copied.
void BM_PackUnpackPlain(benchmark::State& state) {
    const Praca praca;
    const Bajty board = codesOf(praca.e);
    for (auto _ : state) {
        Bajty image = praca.e.image;
        benchmark::DoNotOptimize(image.data());
        benchmark::ClobberMemory();
        plainCount(board);
        plainCount(board);
    }
}
BENCHMARK(BM_PackUnpackPlain);

void BM_PackUnpack(benchmark::State& state) {
    Praca praca;
    for (auto _ : state) {
        PackEtap(praca.e);
        benchmark::DoNotOptimize(UnpackEtap(praca.e));
    }
}
BENCHMARK(BM_PackUnpack);

// Makes the stage differ from its file.
void paint(Edytor& e, int round) {
    e.okno.imgPG[100 + round % 200].znak = znak(2 + round % 40);
}

void BM_SwitchPlain(benchmark::State& state) {
    Praca praca;
    Bajty bytes(ETAP_SIZE_BYTES);
    for (int round = 0; auto _ : state) {
        forgetCopies(state, praca.base, round);
        plainRead(sciezki::etap(praca.base, 1), bytes); // what is about to be overwritten
        plainCopy(sciezki::etap(praca.base, 1), bytes, round++);
        plainWrite(sciezki::etap(praca.base, 1), bytes);
        plainRead(sciezki::etap(praca.base, 2), bytes);
    }
}
BENCHMARK(BM_SwitchPlain)->UseRealTime();

void BM_Switch(benchmark::State& state) {
    Praca praca;
    for (int round = 0; auto _ : state) {
        forgetCopies(state, praca.base, round);
        paint(praca.e, round++);
        SelectEtapNR(praca.e, 1 - praca.e.okno.optEtapNR);
    }
}
BENCHMARK(BM_Switch)->UseRealTime();

// The bare system calls of whole operations: the files that each must read and write, in order.
struct Wywolania {
    Praca praca;
    Bajty etap = Bajty(ETAP_SIZE_BYTES), autor = Bajty(AUTOR_GRY_SIZE_BYTES), gra = Bajty(GRA_SIZE_BYTES);
    Bajty archiwum = Bajty(ARCHIWUM_SIZE_BYTES);
    int round = 0; // of the copies

    // Replaces a changed stage: its file is read, copied and written.
    void replaceEtap(int number) {
        readEtap(number);
        plainCopy(sciezki::etap(praca.base, number), etap, round);
        writeEtap(number);
    }
    void replaceAutor() {
        plainRead(praca.base / sciezki::AUTOR_GRY, autor);
        plainCopy(praca.base / sciezki::AUTOR_GRY, autor, round);
        plainWrite(praca.base / sciezki::AUTOR_GRY, autor);
    }
    void writeEtap(int number) { plainWrite(sciezki::etap(praca.base, number), etap); }
    void writeTest() { plainWrite(praca.base / sciezki::TEST_XEX, gra); }
    void writeChosen(const Bajty& bytes) { plainWrite(praca.base / "wynik", bytes); }
    void readEtap(int number) { plainRead(sciezki::etap(praca.base, number), etap); }
    void readTemplate() { plainRead(praca.base / sciezki::SZABLON_GRY, gra); }
    void everyEtap(void (Wywolania::*step)(int)) {
        for (int number = 1; number <= ETAPY_COUNT; ++number)
            (this->*step)(number);
    }
};

void BM_GameBuildPlain(benchmark::State& state) {
    Wywolania w;
    for (auto _ : state) {
        w.readEtap(1); // to see that it needn't be written
        w.readTemplate();
        w.everyEtap(&Wywolania::readEtap);
        w.writeChosen(w.gra);
        w.writeTest();
    }
}
BENCHMARK(BM_GameBuildPlain)->UseRealTime();

void BM_TestBuildPlain(benchmark::State& state) {
    Wywolania w;
    for (auto _ : state) {
        w.readTemplate();
        w.writeTest();
    }
}
BENCHMARK(BM_TestBuildPlain)->UseRealTime();

void BM_ArchiveSavePlain(benchmark::State& state) {
    Wywolania w;
    for (auto _ : state) {
        w.readEtap(1);
        plainRead(w.praca.base / sciezki::AUTOR_GRY, w.autor);
        w.everyEtap(&Wywolania::readEtap);
        w.writeChosen(w.archiwum);
    }
}
BENCHMARK(BM_ArchiveSavePlain)->UseRealTime();

void BM_ArchiveLoadPlain(benchmark::State& state) {
    Wywolania w;
    w.writeChosen(w.archiwum);
    for (auto _ : state) {
        forgetCopies(state, w.praca.base, w.round);
        plainRead(w.praca.base / "wynik", w.archiwum);
        w.everyEtap(&Wywolania::readEtap); // for the copy of the whole game
        plainCopy(w.praca.base / sciezki::ARCHIWUM, w.archiwum, w.round);
        w.everyEtap(&Wywolania::replaceEtap);
        w.replaceAutor();
        w.readEtap(1);
        ++w.round;
    }
}
BENCHMARK(BM_ArchiveLoadPlain)->UseRealTime();

template <void (*Operation)(Edytor&)> void BM_Operation(benchmark::State& state) {
    Praca praca;
    cmdSaveArch_Click(praca.e);
    for (auto _ : state)
        Operation(praca.e);
}
BENCHMARK(BM_Operation<cmdCreate_Click>)->Name("BM_GameBuild")->UseRealTime();
BENCHMARK(BM_Operation<cmdTest_Click>)->Name("BM_TestBuild")->UseRealTime();
BENCHMARK(BM_Operation<cmdSaveArch_Click>)->Name("BM_ArchiveSave")->UseRealTime();

// Two archives in turns, so that every stage is replaced.
void BM_ArchiveLoad(benchmark::State& state) {
    Praca praca;
    std::array<Bajty, 2> archiwa{Bajty(ARCHIWUM_SIZE_BYTES, 1), Bajty(ARCHIWUM_SIZE_BYTES, 2)};
    for (int round = 0; auto _ : state) {
        forgetCopies(state, praca.base, round);
        state.PauseTiming();
        Praca::put(praca.base / "wynik", archiwa[round++ % 2]);
        state.ResumeTiming();
        cmdLoadArch_Click(praca.e);
    }
}
BENCHMARK(BM_ArchiveLoad)->UseRealTime();

void BM_ExitPlain(benchmark::State& state) {
    Wywolania w;
    for (auto _ : state) {
        forgetCopies(state, w.praca.base, w.round);
        w.replaceEtap(1);
        plainRead(w.praca.base / sciezki::AUTOR_GRY, w.autor);
        for (const auto& entry : fs::directory_iterator(w.praca.base / "ETAPY/KOPIE/DETAP.1"))
            benchmark::DoNotOptimize(entry.path());
        ++w.round;
    }
}
BENCHMARK(BM_ExitPlain)->UseRealTime();

void BM_Exit(benchmark::State& state) {
    Praca praca;
    for (int round = 0; auto _ : state) {
        forgetCopies(state, praca.base, round);
        paint(praca.e, round++);
        Form_QueryUnload(praca.e);
        Form_Unload(praca.e);
    }
}
BENCHMARK(BM_Exit)->UseRealTime();

} // namespace
} // namespace dorva

BENCHMARK_MAIN();
