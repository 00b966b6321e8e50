// SPDX-License-Identifier: GPL-3.0-or-later
#include "at_the_table.h"

#include "computer/computer_turn.h"
#include "game/table_state.h"

#include <gtest/gtest.h>

namespace {

std::string turno(std::string const& tavola)
{
    apparecchia(tavola + " turno 2");
    EXPECT_TRUE(gioca(Gioco2())) << "the computer's turn must end by itself";
    return mostra();
}

}  // namespace

TEST(Computer, AWholeTurnEndsWithADiscardOrAnEmptyHand)
{
    // a run of all four cards and the pile's: no discard
    EXPECT_EQ(turno("mano2 3H 4H 5H 6H pozzo 2H tallone 9C"), "calate2 2H 3H 4H 5H 6H | tallone 9C");
    EXPECT_EQ(finestra.now, 1300 + 2 * 2600);
    // the last card attaches, the provisional one does not: the drawn card is discarded
    EXPECT_EQ(turno("mano2 8C calate2 5C 6C 7C | pozzo KD tallone 9H"), "calate2 5C 6C 7C 8C | pozzo KD 9H");
    EXPECT_EQ(finestra.now, 1300 + 3 * 2600);
    EXPECT_EQ(finestra.pointer, Pointer::hourglass);
}

// Nobody owns so many cards in play; neither a lay nor an attach writes past the end of the list.
TEST(Computer, LaysAndAttachesNothingPastTheEndOfTheList)
{
    std::string const calate =
        "calate2 2H 3H 4H | 5S 6S 7S | 9H 9D 9S | 2D 3D 4D | JH JD JS | 2C 3C' 4C | 6D 7D 8D | ";
    EXPECT_EQ(turno("mano2 KH KD KS QC " + calate + "pozzo QS tallone 9C"),
              "mano2 KD KS QC 9C " + calate + "pozzo QS KH");
    auto const piena = calate.substr(0, calate.size() - 2) + "9D | ";
    EXPECT_EQ(turno("mano2 5H QC " + piena + "pozzo QS tallone 3S"), "mano2 QC 3S " + piena + "pozzo QS 5H");
}

// Whatever the computer may not know is shuffled about; it must play the same.
TEST(Computer, KnowsNothingButItsOwnCardsThePilesTopAndTheNextStockCard)
{
    auto const gioca_con = [](std::string const& resto) {
        turno("mano2 3C 7H 7C QD KD 9S 2D 8D JS 4H calate2 5C 6C 7C' | 9H 9D 9C | " + resto);
        std::string sue;
        for (int s = 1; s <= tavolo.n_carte(2); ++s)
            sue += nome_carta(tavolo.mano(2, s)) + " ";
        for (int i = 1; i <= tavolo.n_calate(2); ++i)
            sue += tavolo.calate(2, i) == segnacalata ? "| " : nome_carta(tavolo.calate(2, i)) + " ";
        return sue + nome_carta(tavolo.pozzo(tavolo.n_pozzo - 1));
    };
    EXPECT_EQ(gioca_con("mano AH 2H 3H calate 10S 10H 10D | pozzo 2C 5S AS tallone KC 6D 6S"),
              gioca_con("mano 9H' 10H' QS QS' 3S pozzo KH JD AS tallone KC 4D totale 1400 game 7"));
}
