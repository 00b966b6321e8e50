// SPDX-License-Identifier: GPL-3.0-or-later
//
// drawing [Google Benchmark's options]: the table of a real window off the screen, and the pictures of the
// cards.
#include "at_the_table.h"
#include "game/places.h"
#include "real_window.h"
#include "window/qt/card_pixmaps.h"
#include "window/qt/main_window.h"
#include "window/qt/table_view.h"
#include "window/window.h"

#include <benchmark/benchmark.h>

#include <QApplication>

namespace {

constexpr QSize card(88, 140);  // on a screen of 1920 by 1080

void replay(benchmark::State& state)
{
    in_scena({static_cast<int>(state.range(0)), static_cast<int>(state.range(1))}, a_meta_mano);
    settle();
    for (auto _ : state)
        real_window().table().repaint();
}
BENCHMARK(replay)->Args({1920, 1080})->Args({3840, 2160})->Unit(benchmark::kMillisecond);

// What a turn of the computer paints again, at most three times.
void row_of_backs(benchmark::State& state)
{
    in_scena({static_cast<int>(state.range(0)), static_cast<int>(state.range(1))}, a_meta_mano);
    settle();
    for (auto _ : state) {
        real_window().table().repaint_box(striscia_mano(computer));
        QApplication::sendPostedEvents();
    }
}
BENCHMARK(row_of_backs)->Args({1920, 1080})->Args({3840, 2160})->Unit(benchmark::kMillisecond);

// Pictures that are not in the cache.
void pictures(benchmark::State& state, int first, int last)
{
    CardPixmaps cold;
    for (auto _ : state) {
        cold.clear();
        for (int f = first; f <= last; ++f)
            cold.get(f, card);
    }
}
BENCHMARK_CAPTURE(pictures, ace, 1, 1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(pictures, king, 13, 13)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(pictures, back, 53, 53)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(pictures, all_54, 1, 54)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    prepare_application();
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    close_real_window();
}
