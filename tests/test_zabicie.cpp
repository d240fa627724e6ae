// A process that writes as fast as it can is killed at any instant: every file is whole, and the next start
// leaves nothing over.
#include "dziecko.h"
#include "output/obraz_gry.h"
#include "pulpit.h"
#include "stage/archiwum.h"
#include "system/system_plikow.h"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <random>
#include <thread>

namespace dorva::test {

// Walks, builds and loads in the tree below the current folder.
void workUntilKilled(unsigned seed) {
    const fs::path root = fs::current_path();
    Edytor e;
    const auto choose = [&](const char* name) {
        return [=](const DialogPliku&) { return std::optional(root / name); };
    };
    e.haki.messageBox = [](const Komunikat&) { return true; };
    e.haki.openDialog = choose("gra.dpa");
    e.haki.saveDialog = choose("wynik");
    Form_Load(e, root / "praca", "1.0.2");
    writeFile(root / "pisze", {});
    std::mt19937 random(seed);
    for (;;) {
        SelectEtapNR(e, static_cast<int>(random() % ETAPY_COUNT));
        e.okno.imgPG[246].znak = e.okno.imgPG[247].znak = znak(static_cast<int>(random() % 50));
        if (random() % 8 == 0)
            cmdLoadArch_Click(e);
        if (random() % 8 == 0)
            cmdCreate_Click(e);
        if (random() % 8 == 0)
            cmdTest_Click(e);
    }
}

namespace {

using std::chrono::milliseconds, std::chrono::microseconds;

class Zabicie : public Pulpit {
protected:
    static constexpr std::size_t PARA = uklad::PLANSZA + 246; // two cells that are always painted alike

    void SetUp() override {
        Pulpit::SetUp();
        Bajty archive(AUTOR_GRY_SIZE_BYTES, 'A');
        for (int number = 1; number <= ETAPY_COUNT; ++number) {
            const Bajty image = painted(sampleEtap(33 - number), 1);
            writeFile(etap(number), painted(sampleEtap(number), 1));
            archive.insert(archive.end(), image.begin(), image.end());
        }
        writeFile(root / "gra.dpa", archive);
    }

    static Bajty painted(Bajty image, Bajt code) {
        image[uklad::OSTATNI] = 0;
        image[PARA] = image[PARA + 1] = code;
        return image;
    }

    [[nodiscard]] bool isWhole(int number, const Bajty& image) const {
        if (image.size() != ETAP_SIZE_BYTES || image[PARA] != image[PARA + 1])
            return false;
        Bajty plain = image;
        plain[uklad::OSTATNI] = 0; // stage 32 always gets the flag
        return plain == painted(sampleEtap(number), image[PARA]) ||
               plain == painted(sampleEtap(33 - number), image[PARA]);
    }

    void expectWhole() {
        for (int number = 1; number <= ETAPY_COUNT; ++number)
            ASSERT_TRUE(isWhole(number, readFile(etap(number)))) << number;
        const Bajty lines = readFile(base / "PLIKI/DP1.DTA");
        ASSERT_TRUE(lines == Bajty(60, 'X') || lines == Bajty(60, 'A'));
        for (const auto& game : {root / "wynik", base / "PLIKI/TEST.XEX"}) {
            const Bajty bytes = readFile(game);
            const auto tail = sampleSzablon().end() - 2187;
            ASSERT_TRUE(bytes.empty() || (bytes.size() == GRA_SIZE_BYTES &&
                                          std::equal(tail, sampleSzablon().end(), bytes.end() - 2187)));
        }
    }

    // Lets a process write for a while.
    void workAndDie(unsigned seed, microseconds time) {
        fs::current_path(root);
        fs::remove("pisze");
        const Dziecko child(seed);
        for (int waited = 0; !fs::exists(root / "pisze") && waited < 10000; ++waited)
            std::this_thread::sleep_for(milliseconds(1));
        std::this_thread::sleep_for(time);
    }

    void kill(int times) {
        std::mt19937 random(2024);
        for (int i = 0; i < times; ++i) {
            workAndDie(static_cast<unsigned>(i), microseconds(random() % 9000));
            ASSERT_NO_FATAL_FAILURE(expectWhole()) << "kill " << i;
            leftovers += namesIn("ETAPY").size() - ETAPY_COUNT;
            e = Edytor{};
            attach(e);
            start();
            ASSERT_EQ(namesIn("ETAPY").size(), 32U) << "kill " << i;
            ASSERT_TRUE(listNames(SYSTEM_PLIKOW, base / "PLIKI", ".dp-tmp").empty()) << "kill " << i;
        }
        chosen = root / "wynik";
        cmdCreate_Click(e);
        EXPECT_TRUE(listNames(SYSTEM_PLIKOW, root, ".dp-tmp").empty());
        RecordProperty("leftovers", static_cast<int>(leftovers));
        std::cout << times << " kills, " << leftovers << " temporary files swept from the stages' folder\n";
    }

    std::size_t leftovers = 0;
};

TEST_F(Zabicie, EveryFileIsWhole) {
    kill(POSIX ? 50 : 20);
}

TEST_F(Zabicie, DISABLED_EveryFileIsWholeAThousandTimes) {
    kill(1200);
}

} // namespace
} // namespace dorva::test
