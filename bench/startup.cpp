// SPDX-License-Identifier: GPL-3.0-or-later
//
// startup [RUNS]: milliseconds from exec to the painted opening page, in turn with a bare Qt window; each
// measured start comes right behind one that is not counted. Needs a display.
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

double run(std::string const& program)
{
    auto const now = std::chrono::steady_clock::now().time_since_epoch();
    auto const ns = std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
    FILE* const out = popen(("exec " + program + " " + std::to_string(ns)).c_str(), "r");
    double ms = 0;
    if (!out || std::fscanf(out, "%lf", &ms) != 1)
        std::exit(1);
    pclose(out);
    return ms;
}

double median(std::vector<double> times)
{
    std::ranges::sort(times);
    return times[times.size() / 2];
}

}  // namespace

int main(int argc, char** argv)
{
    std::string const folder = std::string(argv[0]).substr(0, std::string(argv[0]).rfind('/') + 1);
    int const runs = argc > 1 ? std::atoi(argv[1]) : 15;
    std::vector<double> bare, game, ratio;
    for (int k = 0; k < runs; ++k) {
        run(folder + "bare_window");
        bare.push_back(run(folder + "bare_window"));
        run(folder + "game_window");
        game.push_back(run(folder + "game_window"));
        ratio.push_back(game.back() / bare.back());
    }
    std::printf("bare %.1f ms, game %.1f ms, ratio %.2f (medians of %d)\n", median(bare), median(game),
                median(ratio), runs);
}
