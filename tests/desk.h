// A desk for the tests: a temporary folder tree, an editor that works on it, and answers to what it asks.
#pragma once

#include "edytor.h"
#include "output/szablon.h"
#include "shell/start.h"
#include "stage/autor_gry.h"
#include "system/pliki.h"

#include <deque>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <random>
#include <utility>

namespace dorva::test {

namespace fs = std::filesystem;

// Whether symbolic links are for everyone, and names may hold any character but '/'.
inline constexpr bool POSIX = fs::path::preferred_separator == '/';

// A new folder, in memory if the system has a place for that.
inline fs::path makeFolder() {
    const fs::path place = POSIX && fs::exists("/dev/shm") ? "/dev/shm" : fs::temp_directory_path();
    fs::path folder = place;
    while (!fs::create_directory(folder))
        folder = place / ("dorva-" + std::to_string(std::random_device{}()));
    return folder;
}

inline Bajty readFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void writeFile(const fs::path& path, const Bajty& bytes) {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

inline Tekst ascii(std::string_view text) {
    return {std::string(text)};
}

// The stored form of a stage that packing leaves as it is. Every number gives a different one.
inline Bajty sampleEtap(int number) {
    Bajty image(ETAP_SIZE_BYTES, 0);
    for (std::size_t i = 0; i < SLOTY_COUNT; ++i)
        image[uklad::KOLORY + i] = static_cast<Bajt>(number * 7 + static_cast<int>(i));
    for (int i = 0; i < PLANSZA_CELLS; ++i)
        image[uklad::PLANSZA + i] = isEdge(i) ? 5 : static_cast<Bajt>((i * number) % 50);
    image[uklad::CEL_MASEK] = static_cast<Bajt>(number);
    image[uklad::OSTATNI] = number == 32 ? 1 : 0;
    image[uklad::SWIAT] = static_cast<Bajt>(number % 3);
    image[uklad::NAZWA + 3] = static_cast<Bajt>(33 + number % 26);
    image[uklad::AUTOR] = 16;
    return image;
}

inline const Bajty& sampleSzablon() {
    static const Bajty szablon = [] {
        Bajty bytes(GRA_SIZE_BYTES);
        for (std::size_t i = 0; i < bytes.size(); ++i)
            bytes[i] = static_cast<Bajt>((i * 31) >> 3);
        return bytes;
    }();
    return szablon;
}

// Three title lines: 20 X, 20 Y, 20 Z.
inline Bajty sampleLinie() {
    Bajty lines;
    for (const Bajt letter : {'X', 'Y', 'Z'})
        lines.insert(lines.end(), LINIA_WIDTH, letter);
    return lines;
}

// The files in the base folder of a desk.
inline std::map<std::string, Bajty> sampleTree() {
    std::map<std::string, Bajty> files{{"PLIKI/DP1.DTA", sampleLinie()},
                                       {"PLIKI/DP2.DTA", sampleSzablon()},
                                       {"OBIEKTY/ORN_EXPORT/FNT01.ORN.ND", {}},
                                       {"OBIEKTY/ORN_EXPORT/FNT11.ORN.ND", {}},
                                       {"OBIEKTY/ORN_EXPORT/FNT21.ORN.ND", {}}};
    for (int number = 1; number <= ETAPY_COUNT; ++number)
        files["ETAPY/DETAP." + std::to_string(number)] = sampleEtap(number);
    return files;
}

// An archive of the sample stages in reverse order, with title lines of its own.
inline Bajty sampleArchiwum() {
    Bajty archive(AUTOR_GRY_SIZE_BYTES, 'A');
    for (int number = 1; number <= ETAPY_COUNT; ++number) {
        const Bajty image = sampleEtap(33 - number);
        archive.insert(archive.end(), image.begin(), image.end());
    }
    return archive;
}

class Desk : public ::testing::Test {
protected:
    void SetUp() override {
        root = makeFolder();
        base = root / "praca";
        for (const auto& [name, bytes] : sampleTree()) {
            fs::create_directories((base / name).parent_path());
            writeFile(base / name, bytes);
        }
        attach(e);
    }

    void TearDown() override {
        fs::current_path(fs::temp_directory_path());
        std::error_code error;
        fs::remove_all(root, error);
    }

    void attach(Edytor& edytor) {
        edytor.system = calls;
        edytor.haki.messageBox = [this](const Komunikat& k) {
            shown.emplace_back(k.text);
            const bool answer = answers.empty() || answers.front();
            if (!answers.empty())
                answers.pop_front();
            return answer;
        };
        edytor.haki.openDialog = edytor.haki.saveDialog = [this](const DialogPliku& d) -> std::optional<fs::path> {
            dialogs.push_back(d);
            return chosen;
        };
        edytor.haki.startProgram = [this](const fs::path& p, OknoProgramu o) { started.emplace_back(p, o); };
        edytor.haki.loadPicture = [this](const fs::path& p, int, int) -> std::optional<Bitmapa> {
            EXPECT_EQ(p.parent_path().filename(), "ORN_EXPORT");
            const auto found = strips.find(p.filename().string());
            return found == strips.end() ? std::nullopt : std::optional(found->second);
        };
    }

    void start() { Form_Load(e, base, "1.0.2"); }
    void restart() {
        e = Edytor{};
        attach(e);
        start();
    }
    // Runs an operation whose file dialog is answered with a name, taken from `root` on.
    void run(void (*operation)(Edytor&), const fs::path& name) {
        chosen = root / name;
        operation(e);
    }
    // The texts of the message boxes since the last call, with bars in between.
    std::string messages() {
        std::string all;
        for (const std::string& text : std::exchange(shown, {}))
            all += (all.empty() ? "" : "|") + text;
        return all;
    }
    [[nodiscard]] fs::path etap(int number) const { return base / "ETAPY" / ("DETAP." + std::to_string(number)); }
    Znak& cell(int row, int column) { return e.okno.imgPG[row * 40 + column].znak; }
    [[nodiscard]] std::vector<std::string> namesIn(const fs::path& folder) const {
        std::vector<std::string> names;
        for (const fs::path& name : listNames(SYSTEM_CALLS, base / folder, ""))
            names.push_back(name.string());
        return names;
    }

    const SystemCalls* calls = &SYSTEM_CALLS;
    fs::path root, base;
    Edytor e;
    std::vector<std::string> shown;   // texts of the message boxes
    std::deque<bool> answers;         // to the message boxes; when used up, OK and Yes
    std::vector<DialogPliku> dialogs; // the file dialogs
    std::optional<fs::path> chosen;   // in the file dialogs
    std::vector<std::pair<fs::path, OknoProgramu>> started;
    std::map<std::string, Bitmapa> strips; // pictures by file name
};

} // namespace dorva::test
