// The window at work: a stroke until its repaint has finished, and a change to another world; and the boards of the
// overview. Each benchmark X has a baseline XPlain, the barest widget that does the same. DORVA_DATA is the built data
// tree.
#include "edytor.h"
#include "przeglad/zrodla.h"
#include "przeglad_qt/rysownik.h"
#include "qt/aplikacja.h"
#include "qt/okno_glowne.h"
#include "qt/widoki_znakow.h"
#include "shell/start.h"
#include "tiles/zestaw.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr QSize BOARD(dorva::PLANSZA_COLUMNS* dorva::KRATKA_SIDE, dorva::PLANSZA_ROWS* dorva::KRATKA_SIDE);

// A window on a copy of the built working folder.
struct OknoPomiaru {
    OknoPomiaru() {
        std::string pattern = (fs::temp_directory_path() / "dorva-XXXXXX").string();
        folder = ::mkdtemp(pattern.data());
        fs::copy(DORVA_DATA, folder, fs::copy_options::recursive);
        dorva::Form_Load(edytor, folder, "0.0.0");
        okno.showRecord();
        okno.show();
        QApplication::processEvents();
    }
    ~OknoPomiaru() { fs::remove_all(folder); }

    fs::path folder;
    dorva::Edytor edytor;
    dorva::OknoGlowne okno{edytor};
};

// The least that a widget can do: paint one picture into the cell of a press.
class PustaPlansza : public QWidget {
public:
    PustaPlansza() : picture_(dorva::KRATKA_SIDE, dorva::KRATKA_SIDE, QImage::Format_RGB32) {
        setFixedSize(BOARD);
        setAttribute(Qt::WA_OpaquePaintEvent);
        picture_.fill(Qt::darkGreen);
    }

protected:
    void mousePressEvent(QMouseEvent* event) override {
        const QPoint corner = event->pos() / dorva::KRATKA_SIDE * dorva::KRATKA_SIDE;
        update(QRect(corner, picture_.size()));
    }
    void paintEvent(QPaintEvent* event) override { QPainter(this).drawImage(event->rect().topLeft(), picture_); }

private:
    QImage picture_;
};

void press(QWidget* board, int cell) {
    const QPointF at(cell % dorva::PLANSZA_COLUMNS * dorva::KRATKA_SIDE + 3,
                     cell / dorva::PLANSZA_COLUMNS * dorva::KRATKA_SIDE + 3);
    QMouseEvent event(QEvent::MouseButtonPress, at, board->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(board, &event);
    QApplication::processEvents();
}

// Runs `step` with a counter and reports the median and the 99th percentile in microseconds.
template <typename Step> void measure(benchmark::State& state, Step step) {
    std::vector<double> micros;
    int n = 0;
    for (auto _ : state) {
        const auto begin = std::chrono::steady_clock::now();
        step(n++);
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
        state.SetIterationTime(took.count());
        micros.push_back(took.count() * 1e6);
    }
    std::sort(micros.begin(), micros.end());
    state.counters["median_us"] = micros[micros.size() / 2];
    state.counters["p99_us"] = micros[micros.size() * 99 / 100];
}

int nextCell(int n) {
    return (n * 37 + 41) % dorva::PLANSZA_CELLS;
}

void BM_OknoStrokePlain(benchmark::State& state) {
    PustaPlansza board;
    board.show();
    QApplication::processEvents();
    measure(state, [&](int n) { press(&board, nextCell(n)); });
}
BENCHMARK(BM_OknoStrokePlain)->UseManualTime();

void BM_OknoStroke(benchmark::State& state) {
    OknoPomiaru s;
    auto* board = s.okno.findChild<QWidget*>("imgPG");
    measure(state, [&](int n) {
        s.edytor.okno.imgBufor = s.edytor.okno.imgZnak[n % 8];
        press(board, nextCell(n));
    });
}
BENCHMARK(BM_OknoStroke)->UseManualTime();

// A bare widget that paints one picture of the board's size.
void BM_OknoSwiatPlain(benchmark::State& state) {
    class Obraz : public QWidget {
        QImage image{BOARD, QImage::Format_RGB32};
        void paintEvent(QPaintEvent*) override { QPainter(this).drawImage(0, 0, image); }
    } widget;
    widget.setFixedSize(BOARD);
    widget.show();
    QApplication::processEvents();
    measure(state, [&](int) {
        widget.update();
        QApplication::processEvents();
    });
}
BENCHMARK(BM_OknoSwiatPlain)->UseManualTime();

void BM_OknoSwiat(benchmark::State& state) {
    OknoPomiaru s;
    measure(state, [&](int n) {
        (void)dorva::SelectObiektyNR(s.edytor, (s.edytor.okno.optObiektyNR + 1 + n % 2) % dorva::SWIATY_COUNT);
        s.okno.showRecord();
        QApplication::processEvents();
    });
}
BENCHMARK(BM_OknoSwiat)->UseManualTime();

// The 32 boards of the overview, each composed anew.
constexpr int KRATKA_ARKUSZA = 8;

void BM_PlanszeArkuszaPlain(benchmark::State& state) {
    QImage tile(KRATKA_ARKUSZA, KRATKA_ARKUSZA, QImage::Format_ARGB32_Premultiplied);
    tile.fill(Qt::darkGreen);
    measure(state, [&](int) {
        for (int n = 0; n < dorva::ETAPY_COUNT; ++n) {
            QImage board(BOARD / 2, QImage::Format_RGB32);
            QPainter painter(&board);
            for (int cell = 0; cell < dorva::PLANSZA_CELLS; ++cell)
                painter.drawImage(cell % dorva::PLANSZA_COLUMNS * KRATKA_ARKUSZA,
                                  cell / dorva::PLANSZA_COLUMNS * KRATKA_ARKUSZA, tile);
        }
    });
}
BENCHMARK(BM_PlanszeArkuszaPlain)->UseManualTime();

void BM_PlanszeArkusza(benchmark::State& state) {
    const OknoPomiaru s; // loads the tile sets
    const dorva::Gra gra = dorva::readZestaw(dorva::SYSTEM_CALLS, DORVA_DATA);
    dorva::Rysownik rysownik(s.edytor.frmZestawy);
    measure(state, [&](int) {
        for (const dorva::Karta& karta : gra.karty)
            benchmark::DoNotOptimize(rysownik.plansza(karta.image, KRATKA_ARKUSZA));
    });
}
BENCHMARK(BM_PlanszeArkusza)->UseManualTime();

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !qEnvironmentVariableIsSet("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    QApplication application(argc, argv);
    dorva::setUpApplication(application);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
