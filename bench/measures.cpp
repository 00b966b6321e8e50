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
#include "computer/table_view.h"
#include "greedy_person.h"
#include "melds/meld_validation.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>

namespace {

using Clock = std::chrono::steady_clock;

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
        int seen = 0;
        gioca_partite(60, 1, [&] {
            if (finestra.computer_turns > seen)
                found.push_back({tavolo, superficie});
            seen = finestra.computer_turns;
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

// The whole turn of the computer, all turns in order. Each is played eleven times and the middle time taken,
// so that a pause of the machine is not held against it.
void computer_turn(benchmark::State& state)
{
    std::vector<double> times;
    for (auto _ : state) {
        for (auto const& turn : turns()) {
            std::vector<double> tries;
            for (int k = 0; k < 11; ++k) {
                tavolo = turn.table;
                superficie = turn.drawn;
                runner.start(Gioco2());
                auto const began = Clock::now();
                runner.resume();
                while (runner.alive()) {
                    tavolo.tempo_scaduto = true;
                    runner.resume();
                }
                tries.push_back(std::chrono::duration<double>(Clock::now() - began).count());
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

// The referee on a long row of melds: a card attached, a new meld laid, one refused.
void controllo(benchmark::State& state, char const* coda, int scelte)
{
    apparecchia("calate AS 2S 3S 4S 5S 6S | 10H 10D 10C | JC QC KC | 8H 8D 8C | " + std::string(coda));
    tavolo.n_scelte = scelte;
    auto const table = tavolo;
    for (auto _ : state) {
        tavolo = table;
        controllo_calata(x_calate(9));
    }
}
BENCHMARK_CAPTURE(controllo, calata_attach, "10S |", 1);
BENCHMARK_CAPTURE(controllo, calata_lay, "7S 8S 9S |", 3);
BENCHMARK_CAPTURE(controllo, calata_refuse, "7S 8S 9D |", 3);

// Whole hands of computer and greedy person.
void hand(benchmark::State& state)
{
    double hands = 0;
    std::uint32_t seed = 1;
    for (auto _ : state)
        hands += gioca_partite(1, seed++).hands;
    state.counters["hands"] = benchmark::Counter(hands, benchmark::Counter::kIsRate);
    state.counters["a_hand"] =
        benchmark::Counter(hands, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(hand)->Name("match_of_hands")->Unit(benchmark::kMillisecond)->MinTime(3);

Task wait_for_ever()
{
    for (;;)
        co_await eventi();
}

void wait(benchmark::State& state)
{
    runner.start(wait_for_ever());
    for (auto _ : state)
        runner.resume();
    runner.clear();
}
BENCHMARK(wait)->Name("wait_suspended_and_resumed");

}  // namespace

BENCHMARK_MAIN();
