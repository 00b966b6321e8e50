// SPDX-License-Identifier: GPL-3.0-or-later
//
// played_hands [MATCHES] [SEED] [SCRIPT]: whole matches of the computer against a simple greedy person, without a
// screen. Prints what was played and, last, one number over all tables and one over all that was shown and
// heard, each in order; as messages the memory at the end and its peak, which do not depend on the number of
// matches. The file SCRIPT tells another window what the person did.
#include "greedy_person.h"

#include <cstdlib>
#include <fstream>
#include <iostream>

int main(int argc, char** argv)
{
    int const matches = argc > 1 ? std::atoi(argv[1]) : 20;
    auto const seed = static_cast<std::uint32_t>(argc > 2 ? std::atoi(argv[2]) : 1);
    std::ofstream file;
    if (argc > 3) {
        file.open(argv[3]);
        script = &file;
    }
    auto const played = gioca_partite(matches, seed);
    std::cout << to_text(played) << '\n' << shown(played, seed) << '\n';

    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmRSS") || line.starts_with("VmHWM"))
            std::cerr << line << '\n';
}
