// SPDX-License-Identifier: GPL-3.0-or-later
#include "random_events.h"

#include "game/table_check.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

// Between any two waits of the game: nothing crashes or hangs, and the table stays whole.
TEST(Events, AMillionOfThemAtRandomHarmNothing)
{
    char const* const how_many = std::getenv("SOLLEVINO_EVENTS");
    int const total = how_many ? std::atoi(how_many) : 1000000;
    std::mt19937 random(1);
    auto const byte = [&random] { return static_cast<int>(random() % 256U); };
    avvia_programma();
    int programs = 1, hands = 0;
    for (int done = 0; done < total;) {
        runner.resume();
        for (int burst = 1 + byte() % 3; burst > 0; --burst, ++done)
            evento([&] { random_event(byte); });
        finestra.boxes.clear();
        finestra.log.clear();
        runner.resume();
        if (byte() % 3 == 0)
            scatta_timer();
        ASSERT_EQ(guasto_tavolo(), "") << "after " << done << " events\n" << mostra_tutto();
        ASSERT_LT(superficie.marks().size(), 400U);
        if (finestra.ended) {
            hands += tavolo.n_game;
            avvia_programma();
            ++programs;
        }
    }
    EXPECT_GT(programs, 1);
    EXPECT_GT(hands, 0);
}
