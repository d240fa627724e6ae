// Start-up until the first frame is painted: the editor with its whole working folder, the overview of it, a bare
// window of the editor's size, and such a window with one word, since the first letter loads the whole font system.
// Each run is a process of its own; the four take turns.
//
//     dorva_bench_start FOLDER        FOLDER is a program folder, for example planszownik/
#include "shell/start.h"
#include "przeglad_qt/okno.h"
#include "qt/aplikacja.h"
#include "qt/okno_glowne.h"

#include <QApplication>
#include <QLabel>
#include <QPaintEvent>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string_view>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

// Ends the process as soon as the window has painted for the first time.
class FirstFrame : public QObject {
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() != QEvent::Paint)
            return false;
        object->removeEventFilter(this);
        QMetaObject::invokeMethod(
            qApp, [] { ::_exit(0); }, Qt::QueuedConnection);
        return false;
    }
};

void showUntilPainted(QWidget& window) {
    FirstFrame firstFrame;
    window.installEventFilter(&firstFrame);
    window.show();
    QApplication::exec();
}

void runEditor(int argc, char** argv, const std::filesystem::path& folder) {
    QApplication application(argc, argv);
    dorva::setUpApplication(application);
    dorva::Edytor edytor;
    dorva::OknoGlowne okno(edytor);
    dorva::Form_Load(edytor, folder, "0.0.0");
    okno.showRecord();
    showUntilPainted(okno);
}

void runPrzeglad(int argc, char** argv, const std::filesystem::path& folder) {
    QApplication application(argc, argv);
    dorva::setUpApplication(application);
    dorva::OknoPrzegladu okno(folder, "0.0.0");
    showUntilPainted(okno);
}

void runBare(int argc, char** argv, const char* text) {
    QApplication application(argc, argv);
    QWidget window;
    window.setFixedSize(dorva::OKNO_WIDTH, dorva::OKNO_HEIGHT);
    if (text)
        new QLabel(text, &window);
    showUntilPainted(window);
}

struct Figures {
    double milliseconds;
    long peakKilobytes;
};

Figures measure(char* self, const char* mode, char* folder) {
    const auto begin = std::chrono::steady_clock::now();
    const pid_t child = ::fork();
    if (child == 0) {
        ::execl("/proc/self/exe", self, mode, folder, nullptr);
        ::_exit(127);
    }
    rusage usage{};
    int status = 0;
    ::wait4(child, &status, 0, &usage);
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - begin;
    if (status != 0)
        std::fprintf(stderr, "%s: the run failed\n", mode);
    return {took.count(), usage.ru_maxrss};
}

template <typename Member> double median(std::vector<Figures> runs, Member member) {
    std::sort(runs.begin(), runs.end(), [member](const Figures& a, const Figures& b) { return a.*member < b.*member; });
    return static_cast<double>(runs[runs.size() / 2].*member);
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !qEnvironmentVariableIsSet("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc < 2) {
        std::fprintf(stderr, "usage: dorva_bench_start FOLDER\n");
        return 2;
    }
    if (argc == 3) {
        const std::string_view mode = argv[1];
        if (mode == "editor")
            runEditor(argc, argv, std::filesystem::absolute(argv[2]));
        else if (mode == "przeglad")
            runPrzeglad(argc, argv, std::filesystem::absolute(argv[2]));
        else
            runBare(argc, argv, mode == "text" ? "Dorva" : nullptr);
        return 1;
    }
    constexpr int RUNS = 21;
    std::vector<Figures> editor, bare, text, przeglad;
    for (int run = 0; run < RUNS; ++run) {
        bare.push_back(measure(argv[0], "bare", argv[1]));
        text.push_back(measure(argv[0], "text", argv[1]));
        editor.push_back(measure(argv[0], "editor", argv[1]));
        przeglad.push_back(measure(argv[0], "przeglad", argv[1]));
    }
    const double ms = median(editor, &Figures::milliseconds), bareMs = median(bare, &Figures::milliseconds);
    const double textMs = median(text, &Figures::milliseconds);
    const double kb = median(editor, &Figures::peakKilobytes), bareKb = median(bare, &Figures::peakKilobytes);
    std::printf("start-up to first frame: %.1f ms, bare window %.1f ms, ratio %.2f\n", ms, bareMs, ms / bareMs);
    std::printf("a bare window with one word: %.1f ms, ratio %.2f; the editor beside it %.2f\n", textMs,
                textMs / bareMs, ms / textMs);
    const double przegladMs = median(przeglad, &Figures::milliseconds);
    std::printf("the overview: %.1f ms, beside the editor %.2f; aim: at most 1.5\n", przegladMs, przegladMs / ms);
    std::printf("peak memory: %.1f MiB, bare window %.1f MiB, %.1f MiB more\n", kb / 1024, bareKb / 1024,
                (kb - bareKb) / 1024);
    return 0;
}
