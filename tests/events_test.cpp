// SPDX-License-Identifier: GPL-3.0-or-later
//
// A million random events between any two waits of the game. Whatever is clicked, picked, resized or closed,
// nothing crashes or hangs, and the table stays whole.
#include "at_the_table.h"

#include "game/piles.h"
#include "game/table_check.h"
#include "game/table_state.h"
#include "human/pointer_input.h"
#include "players/player_names.h"
#include "window/help_pages.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace {

class Monkey {
  public:
    explicit Monkey(unsigned seed) : random_(seed) {}

    void event()
    {
        auto const& t = tavolo;
        switch (random(24)) {
        case 0: return menu_click(static_cast<Menu>(random(n_voci)));
        case 1: return menu_click(t.continua ? Menu::menu_continue : Menu::menu_NewGame);
        case 2: client_size({random(3000) + 1, random(2000) + 1}); return Form_Resize();
        case 3:
            set_text(TxtPlayer(1 + random(4)),
                     std::string(static_cast<std::size_t>(random(9)), static_cast<char>(random(256))));
            return TxtPlayer_Change(1 + random(2));
        case 4: return random(400) == 0 ? Form_QueryUnload() : TxtHelp_Click();
        case 5: return Form_MouseMove(0, 0, x(), y());
        case 6: return Form_MouseDown(random(5), 0, x(), y());
        case 7: return Form_MouseDown(1, 0, 512, 384);
        case 8: return Form_MouseDown(1, 0, 100, 120);
        case 9:
        case 10: return Form_MouseDown(1, 0, random(2) ? 500.0F : 520.0F, 384);
        case 11:
        case 12: return Form_MouseDown(1, 0, 312 + static_cast<Single>(random(350)), 520);
        case 13:
        case 14: return Form_MouseDown(1, 0, static_cast<Single>(random(930)), 700);
        default: return Form_MouseDown(2, 0, static_cast<Single>(random(930)), 700);
        }
    }
    int random(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }

  private:
    Single x() { return static_cast<Single>(random(1200)) - 80; }
    Single y() { return static_cast<Single>(random(900)) - 60; }
    std::mt19937 random_;
};

}  // namespace

TEST(Events, AMillionOfThemAtRandomHarmNothing)
{
    char const* const how_many = std::getenv("SOLLEVINO_EVENTS");
    int const total = how_many ? std::atoi(how_many) : 1000000;
    Monkey monkey(1);
    avvia_programma();
    int programs = 1, hands = 0;
    for (int done = 0; done < total;) {
        runner.resume();
        int const burst = 1 + monkey.random(3);
        for (int k = 0; k < burst; ++k, ++done)
            evento([&] { monkey.event(); });
        finestra.boxes.clear();
        finestra.devices.clear();
        runner.resume();
        ASSERT_EQ(guasto_tavolo(), "") << "after " << done << " events\n" << mostra_tutto();
        ASSERT_LT(superficie.marks().size(), 400U);
        if (monkey.random(3) == 0) {
            scatta_timer();
            ASSERT_EQ(guasto_tavolo(), "") << "after " << done << " events\n" << mostra_tutto();
        }
        if (finestra.ended) {
            hands += tavolo.n_game;
            finestra.answer_yes = false;
            avvia_programma();
            ++programs;
        }
        finestra.answer_yes = monkey.random(100) == 0;
    }
    EXPECT_GT(programs, 1);
    EXPECT_GT(hands, 0);
}
