// SPDX-License-Identifier: GPL-3.0-or-later
#include "at_the_table.h"

#include "computer/computer_turn.h"
#include "game/table_state.h"

#include <gtest/gtest.h>

// Whatever the computer may not know is shuffled about; it must play the same.
TEST(Computer, KnowsNothingButItsOwnCardsThePilesTopAndTheNextStockCard)
{
    auto const play = [](std::string const& rest) {
        apparecchia("turno 2 mano2 3C 7H 7C QD KD 9S 2D 8D JS 4H calate2 5C 6C 7C' | 9H 9D 9C | " + rest);
        EXPECT_TRUE(gioca(Gioco2()));
        auto const all = mostra();
        return all.substr(all.find("mano2"), all.find("calate ") - all.find("mano2")) +
               all.substr(all.find("calate2"), all.find("pozzo") - all.find("calate2")) +
               nome_carta(tavolo.pozzo(tavolo.n_pozzo - 1));
    };
    EXPECT_EQ(
        play("mano AH 2H 3H calate 10S 10H 10D | pozzo 2C 5S AS tallone KC 6D 6S"),
        play("mano 9H' 10H' QS QS' 3S calate AC AD AS' | pozzo KH JD AS tallone KC 4D totale 1400 game 7"));
}
