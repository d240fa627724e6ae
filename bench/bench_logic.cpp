// Speed of the logic. Each operation stands beside its baseline: the plain work that it can't do without.
// The ratio of the two is the figure to look at.
#include "board/census.h"
#include "board/plansza.h"
#include "output/obraz_gry.h"
#include "output/szablon.h"
#include "shell/start.h"
#include "stage/archiwum.h"
#include "stage/etap.h"
#include "stage/zbior_etapow.h"

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
            put(etapPath(e, number), e.obrazEtapu);
        e.haki.messageBox = [](const Komunikat& k) { return k.przyciski == Przyciski::OkCancel; };
        e.haki.openDialog = e.haki.saveDialog = [this](const DialogPliku&) { return std::optional(base / "wynik"); };
        e.haki.startProgram = [](const fs::path&, OknoProgramu) {};
        Form_Load(e, base, "1.0.2");
    }
    ~Praca() {
        fs::current_path("/");
        fs::remove_all(base);
    }
    static void put(const fs::path& path, const Bajty& bytes) { (void)writeWhole(SYSTEM_PLIKOW, path, bytes); }

    fs::path base;
    Edytor e;
};

// The bare system calls for one file: read `count` bytes; write through a temporary file, flushed, renamed.
void plainRead(const fs::path& path, Bajty& bytes) {
    const int file = ::open(path.c_str(), O_RDONLY);
    benchmark::DoNotOptimize(::read(file, bytes.data(), bytes.size()));
    ::close(file);
}

void plainWrite(const fs::path& path, const Bajty& bytes) {
    const fs::path temporary = path.string() + ".tmp";
    const int file = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    benchmark::DoNotOptimize(::write(file, bytes.data(), bytes.size()));
    ::fsync(file);
    ::close(file);
    ::rename(temporary.c_str(), path.c_str());
    const int folder = ::open(path.parent_path().c_str(), O_RDONLY | O_DIRECTORY);
    ::fsync(folder);
    ::close(folder);
}

void BM_Count256(benchmark::State& state) {
    const Praca praca;
    Bajty board;
    for (const ZnakPole& cell : praca.e.okno.imgPG)
        board.push_back(static_cast<Bajt>(cell.znak));
    for (auto _ : state) {
        benchmark::DoNotOptimize(board.data());
        std::array<int, 256> bins{};
        for (Bajt b : board)
            ++bins[b];
        benchmark::DoNotOptimize(bins);
    }
}
BENCHMARK(BM_Count256);

void BM_RefreshInfo(benchmark::State& state) {
    Praca praca;
    for (auto _ : state)
        RefreshInfo(praca.e);
}
BENCHMARK(BM_RefreshInfo);

void BM_Stroke(benchmark::State& state) {
    Praca praca;
    int cell = 0;
    for (auto _ : state)
        imgPG_MouseDown(praca.e, cell = (cell + 1) % PLANSZA_CELLS, LEWY);
}
BENCHMARK(BM_Stroke);

void BM_PackUnpack(benchmark::State& state) {
    Praca praca;
    for (auto _ : state) {
        PackEtap(praca.e);
        benchmark::DoNotOptimize(UnpackEtap(praca.e));
    }
}
BENCHMARK(BM_PackUnpack);

void BM_SwitchPlain(benchmark::State& state) {
    Praca praca;
    Bajty bytes(ETAP_SIZE_BYTES);
    for (auto _ : state) {
        plainWrite(etapPath(praca.e, 1), bytes);
        plainRead(etapPath(praca.e, 2), bytes);
    }
}
BENCHMARK(BM_SwitchPlain)->UseRealTime();

void BM_Switch(benchmark::State& state) {
    Praca praca;
    for (auto _ : state)
        SelectEtapNR(praca.e, (praca.e.okno.optEtapNR + 1) % ETAPY_COUNT);
}
BENCHMARK(BM_Switch)->UseRealTime();

void BM_CreatePlain(benchmark::State& state) {
    Praca praca;
    Bajty etap(ETAP_SIZE_BYTES), gra(GRA_SIZE_BYTES);
    for (auto _ : state) {
        plainWrite(etapPath(praca.e, 1), etap);
        plainRead(praca.base / "PLIKI/DP2.DTA", gra);
        for (int number = 1; number <= ETAPY_COUNT; ++number)
            plainRead(etapPath(praca.e, number), etap);
        plainWrite(praca.base / "wynik", gra);
        plainWrite(praca.base / "PLIKI/TEST.XEX", gra);
    }
}
BENCHMARK(BM_CreatePlain)->UseRealTime();

void BM_Create(benchmark::State& state) {
    Praca praca;
    for (auto _ : state)
        cmdCreate_Click(praca.e);
}
BENCHMARK(BM_Create)->UseRealTime();

void BM_ArchivePlain(benchmark::State& state) {
    Praca praca;
    Bajty etap(ETAP_SIZE_BYTES), autor(AUTOR_GRY_SIZE_BYTES), archiwum(ARCHIWUM_SIZE_BYTES);
    for (auto _ : state) {
        plainWrite(etapPath(praca.e, 1), etap);
        plainWrite(autorGryPath(praca.e), autor);
        for (int number = 1; number <= ETAPY_COUNT; ++number)
            plainRead(etapPath(praca.e, number), etap);
        plainWrite(praca.base / "wynik", archiwum);
        plainRead(praca.base / "wynik", archiwum);
        for (int number = 1; number <= ETAPY_COUNT; ++number)
            plainWrite(etapPath(praca.e, number), etap);
        plainWrite(autorGryPath(praca.e), autor);
        plainRead(etapPath(praca.e, 1), etap);
    }
}
BENCHMARK(BM_ArchivePlain)->UseRealTime();

void BM_Archive(benchmark::State& state) {
    Praca praca;
    for (auto _ : state) {
        cmdSaveArch_Click(praca.e);
        cmdLoadArch_Click(praca.e);
    }
}
BENCHMARK(BM_Archive)->UseRealTime();

} // namespace
} // namespace dorva

BENCHMARK_MAIN();
