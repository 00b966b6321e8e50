// SPDX-License-Identifier: GPL-3.0-or-later
#include "at_the_table.h"

#include "game/piles.h"
#include "game/table_state.h"
#include "scoring/hand_scoring.h"

#include <gtest/gtest.h>

#include <algorithm>

TEST(Scoring, MeldsAreWorthTheirCardsOrMore)
{
    struct Caso {
        char const* calate;
        int valore;
    };
    for (auto const& [calate, valore] :
         {Caso{"2H 2D 2C |", 15}, Caso{"AH AD AC |", 45}, Caso{"5H 5D 5C 5S |", 40},
          Caso{"KH KD KC KS |", 80}, Caso{"4H 5H 6H 7H |", 30}, Caso{"2H 3H 4H 5H 6H 7H |", 40},
          Caso{"2H 3H 4H 5H 6H 7H 8H |", 100}, Caso{"AH 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH |", 230},
          Caso{"AH 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH AH' |", 650},
          // fifteen cards are no Sollevinone; mixed steps go by the last two cards and the length
          Caso{"2H' 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH AH AH' 2H |", 135}, Caso{"QS QH KH AH 2H |", 50},
          Caso{"5H 6H 7H 7S |", 70}, Caso{"KH KD KC KS | 2H 3H 4H 5H 6H 7H 8H | AH AD AC |", 225}}) {
        apparecchia("calate " + std::string(calate));
        EXPECT_EQ(valore_calate(1), valore) << calate;
    }
}

TEST(Scoring, BonusAndPenaltyOfTheEndOfAHand)
{
    struct Caso {
        char const* tavola;
        int azioni[2], punti[2], penali[2];
    };
    for (auto const& [tavola, azioni, punti, penali] :
         {// an ordinary closing, in both directions
          Caso{"mano 8H 3S calate KH KD KC KS | calate2 5H 6H 7H |", {1, 2}, {80, 25}, {15, 0}},
          Caso{"mano2 8H 3S AH calate 5H 6H 7H | calate2 KH KD KC KS |", {2, 1}, {25, 80}, {0, 30}},
          // the opponent has not opened
          Caso{"mano2 8H 3S calate 5H 6H 7H |", {2, 0}, {25, -200}, {0, 15}},
          Caso{"mano 8H 3S calate2 5H 6H 7H |", {0, 2}, {-200, 25}, {15, 0}},
          // closed in one go
          Caso{"mano2 KS calate 5H 6H 7H | calate2 2S 3S 4S |", {1, 1}, {250, 15}, {0, 10}}}) {
        apparecchia(tavola + std::string(" game 1"));
        tavolo.n_calo(0) = azioni[0];
        tavolo.n_calo(1) = azioni[1];
        ASSERT_TRUE(gioca(risultato()));
        for (int p : {0, 1}) {
            EXPECT_EQ(tavolo.punti(p + 1, 1), punti[p]) << tavola;
            EXPECT_EQ(tavolo.penali(p + 1, 1), penali[p]) << tavola;
            EXPECT_EQ(tavolo.totale(p + 1), punti[p] - penali[p]) << tavola;
        }
    }
}

TEST(Scoring, TheTableOfGamesStandsInColumns)
{
    apparecchia("mano2 8H 3S calate 5H 6H 7H | game 2 totale 95 totale2 -215");
    tavolo.n_calo(0) = 2;
    tavolo.punti(1, 1) = 1030;
    tavolo.penali(1, 1) = 15;
    tavolo.punti(2, 1) = -120;
    tavolo.nomi(0) = "ANNA";
    gioca(risultato());
    auto const x = [](std::string const& testo) {
        auto const tutte = scritte();
        auto const quella = std::ranges::find(tutte, testo, &Mark::testo);
        EXPECT_NE(quella, tutte.end()) << testo;
        return quella == tutte.end() ? 0 : quella->box.x1;
    };
    EXPECT_LT(x("Game    ANNA"), x("Player2"));
    EXPECT_EQ(x(" 25 "), x(" 1030 "));
    EXPECT_EQ(x("-200 "), x("-120 "));
    EXPECT_EQ(x("-200 "), x("-430 "));
    EXPECT_EQ(x("-200 "), tavolo.centro_x + 80);
    EXPECT_GT(x(" 120 "), x(" 25 "));
    EXPECT_EQ(finestra.now, 68 * 65);
}

TEST(Scoring, AChangeOfSpeedMakesThePanelGrowAgain)
{
    apparecchia("calate 5H 6H 7H | game 1");
    runner.start(risultato());
    runner.resume();
    for (int k = 0; k < 40; ++k)
        scatta_timer();
    EXPECT_EQ(tavolo.i, 118);
    menu(velocità(3));
    scatta_timer();
    EXPECT_EQ(tavolo.i, 7);
    fino_all_attesa();
    EXPECT_FALSE(runner.alive());
}

TEST(Scoring, TheComputersCardsAreShown)
{
    apparecchia("mano2 8H 3S' KD");
    scopro_carte();
    EXPECT_EQ(figura_a(x_mano(2), y_mano_computer), carta_da("3S"));
}
