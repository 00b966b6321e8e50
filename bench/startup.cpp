// SPDX-License-Identifier: GPL-3.0-or-later
//
// startup [RUNS]: milliseconds from exec to the painted opening page, on the clock and of the processor, in turn with a
// bare Qt window; each measured start comes right behind one that is not counted. Needs a display.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

struct Milliseconds {
    double clock = 0, processor = 0;
};

// Of all programs that have ended.
double processor_time()
{
    rusage used{};
    getrusage(RUSAGE_CHILDREN, &used);
    auto const ms = [](timeval t) {
        return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_usec) / 1e3;
    };
    return ms(used.ru_utime) + ms(used.ru_stime);
}

Milliseconds run(std::string const& program)
{
    double const before = processor_time();
    auto const now = std::chrono::steady_clock::now().time_since_epoch();
    auto const ns = std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
    FILE* const out = popen(("exec " + program + " " + std::to_string(ns)).c_str(), "r");
    double ms = 0;
    if (!out || std::fscanf(out, "%lf", &ms) != 1)
        std::exit(1);
    pclose(out);
    return {ms, processor_time() - before};
}

double median(std::vector<double> times)
{
    std::ranges::sort(times);
    return times[times.size() / 2];
}

void tell(char const* what, double Milliseconds::*which, std::vector<Milliseconds> const& bare,
          std::vector<Milliseconds> const& game)
{
    std::vector<double> b, g, ratio;
    for (std::size_t k = 0; k < bare.size(); ++k) {
        b.push_back(bare[k].*which);
        g.push_back(game[k].*which);
        ratio.push_back(g.back() / b.back());
    }
    std::printf("%s: bare %.1f ms, game %.1f ms, ratio %.2f (medians of %zu)\n", what, median(b), median(g),
                median(ratio), bare.size());
}

}  // namespace

int main(int argc, char** argv)
{
    std::string const folder = std::string(argv[0]).substr(0, std::string(argv[0]).rfind('/') + 1);
    int const runs = argc > 1 ? std::atoi(argv[1]) : 15;
    std::vector<Milliseconds> bare, game;
    for (int k = 0; k < runs; ++k) {
        run(folder + "bare_window");
        bare.push_back(run(folder + "bare_window"));
        run(folder + "game_window");
        game.push_back(run(folder + "game_window"));
    }
    tell("clock", &Milliseconds::clock, bare, game);
    tell("processor", &Milliseconds::processor, bare, game);
}
