// SPDX-License-Identifier: GPL-3.0-or-later
//
// computer_turn [MATCHES]: how long the computer's whole turn takes without its waits, over all its turns of
// a series of played matches. Each turn is played eleven times and the middle time taken, so that a pause of
// the machine is not held against it. Prints turns, median, 99 % and worst in microseconds.
#include "computer/computer_turn.h"
#include "game/table_state.h"
#include "greedy_person.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

double microseconds(TableState const& tavola)
{
    std::vector<double> times;
    for (int k = 0; k < 11; ++k) {
        tavolo = tavola;
        superficie = {};
        runner.start(Gioco2());
        auto const began = std::chrono::steady_clock::now();
        runner.resume();
        while (runner.alive()) {
            tavolo.tempo_scaduto = true;
            runner.resume();
        }
        times.push_back(
            std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - began).count());
    }
    std::ranges::nth_element(times, times.begin() + 5);
    return times[5];
}

}  // namespace

int main(int argc, char** argv)
{
    std::vector<TableState> turns;
    int seen = 0;
    gioca_partite(argc > 1 ? std::atoi(argv[1]) : 100, 1, [&] {
        if (tavolo.turno == 2 && finestra.computer_turns != seen)
            turns.push_back(tavolo);
        seen = finestra.computer_turns;
    });
    std::vector<double> times;
    for (auto const& tavola : turns)
        times.push_back(microseconds(tavola));
    std::ranges::sort(times);
    auto const at = [&](double share) {
        return times[static_cast<std::size_t>(share * static_cast<double>(times.size() - 1))];
    };
    std::printf("%zu turns: median %.1f, 99 %% %.1f, worst %.1f microseconds\n", times.size(), at(0.5),
                at(0.99), at(1));
}
