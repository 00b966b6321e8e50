// SPDX-License-Identifier: GPL-3.0-or-later
//
// played_hands [MATCHES] [SEED]: whole matches of the computer against a simple greedy person, without a
// screen. Prints what was played and, last, one number over all tables in order.
#include "greedy_person.h"

#include <cstdlib>
#include <iostream>

int main(int argc, char** argv)
{
    int const matches = argc > 1 ? std::atoi(argv[1]) : 20;
    auto const seed = static_cast<std::uint32_t>(argc > 2 ? std::atoi(argv[2]) : 1);
    std::cout << to_text(gioca_partite(matches, seed)) << '\n';
}
