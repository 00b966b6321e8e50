// SPDX-License-Identifier: GPL-3.0-or-later
//
// measures [Google Benchmark's options]: the game without a screen and without its waits.
#include "at_the_table.h"
#include "computer/attach_decision.h"
#include "computer/computer_draw.h"
#include "computer/computer_turn.h"
#include "computer/discard_decision.h"
#include "computer/hand_reading.h"
#include "computer/meld_decision.h"
#include "computer/sight.h"
#include "greedy_person.h"
#include "melds/meld_validation.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <chrono>

namespace {

// The table as the computer's turn finds it, and what is drawn of it.
struct Turn {
    TableState table;
    Surface drawn;
};

// All turns of a series of played matches.
std::vector<Turn> const& turns()
{
    static auto const all = [] {
        std::vector<Turn> found;
        bool was = false;
        gioca_partite(60, 1, [&] {
            bool const now = finestra.pointer == Pointer::hourglass;
            if (now && !was)
                found.push_back({tavolo, superficie});
            was = now;
        });
        return found;
    }();
    return all;
}

// A step of the turn on table after table. Laying the table out is part of the time: the first row is that
// alone.
void step(benchmark::State& state, void (*decide)())
{
    auto const& all = turns();
    noted = false;
    superficie = all.front().drawn;
    std::size_t k = 0;
    for (auto _ : state) {
        tavolo = all[k++ % all.size()].table;
        tavolo.mappa_copia = tavolo.mappa(computer);
        tavolo.n_decise = 0;
        tavolo.pescato = false;
        decide();
    }
}
BENCHMARK_CAPTURE(step, table_laid_out, [] {});
BENCHMARK_CAPTURE(step, draw, [] { pesco_carta(dal_tallone); });
BENCHMARK_CAPTURE(step, meld, decido_calata);
BENCHMARK_CAPTURE(step, attach, [] {
    ++tavolo.n_carte(computer);
    tavolo.mano(computer, tavolo.n_carte(computer)) = cima_pozzo();
    rifaccio_mappa(computer);
    Provo_Attacco(computer, computer);
});
BENCHMARK_CAPTURE(step, discard, [] { benchmark::DoNotOptimize(scelgo_scarto()); });

// Each of the turns is played eleven times and the middle time taken, so that a pause of the machine is not
// held against it. The time is the median turn's.
void computer_turn(benchmark::State& state)
{
    noted = false;
    std::vector<double> times;
    for (auto _ : state) {
        for (auto const& turn : turns()) {
            std::array<double, 11> tries{};
            for (double& seconds : tries) {
                tavolo = turn.table;
                superficie = turn.drawn;
                runner.start(Gioco2());
                auto const began = std::chrono::steady_clock::now();
                for (runner.resume(); runner.alive(); runner.resume())
                    tavolo.tempo_scaduto = true;
                seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
            }
            std::ranges::nth_element(tries, tries.begin() + 5);
            times.push_back(tries[5]);
        }
        std::ranges::sort(times);
        state.SetIterationTime(times[times.size() / 2]);
    }
    state.counters["turns"] = static_cast<double>(times.size());
    state.counters["p99_us"] = times[times.size() * 99 / 100] * 1e6;
    state.counters["worst_us"] = times.back() * 1e6;
}
BENCHMARK(computer_turn)->UseManualTime()->Iterations(1)->Unit(benchmark::kMicrosecond);

// The referee on a long row of melds.
void controllo_calata(benchmark::State& state, char const* tail, int cards)
{
    apparecchia("calate AS 2S 3S 4S 5S 6S | 10H 10D 10C | JC QC KC | 8H 8D 8C | " + std::string(tail));
    tavolo.n_scelte = cards;
    auto const table = tavolo;
    for (auto _ : state) {
        tavolo = table;
        ::controllo_calata(x_calate(9));
    }
}
BENCHMARK_CAPTURE(controllo_calata, attach, "10S |", 1);
BENCHMARK_CAPTURE(controllo_calata, lay, "7S 8S 9S |", 3);
BENCHMARK_CAPTURE(controllo_calata, refuse, "7S 8S 9D |", 3);

// Whole matches of computer and greedy person; with the log and the numbers of played_hands, or the game alone.
void match(benchmark::State& state, bool with_numbers)
{
    noted = with_numbers;
    int hands = 0;
    std::uint32_t seed = 1;
    for (auto _ : state)
        hands += gioca_partite(1, seed++).hands;
    state.counters["hands"] = benchmark::Counter(hands, benchmark::Counter::kIsRate);
}
BENCHMARK_CAPTURE(match, played, false)->Unit(benchmark::kMillisecond)->MinTime(3);
BENCHMARK_CAPTURE(match, noted, true)->Unit(benchmark::kMillisecond)->MinTime(3);

Task wait_for_ever()
{
    for (;;)
        co_await eventi();
}

void suspend_and_resume(benchmark::State& state)
{
    runner.start(wait_for_ever());
    for (auto _ : state)
        runner.resume();
}
BENCHMARK(suspend_and_resume);

}  // namespace

BENCHMARK_MAIN();
