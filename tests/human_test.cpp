// SPDX-License-Identifier: GPL-3.0-or-later
#include "at_the_table.h"

#include "game/piles.h"
#include "game/table_state.h"
#include "human/human_turn.h"
#include "human/pointer_input.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

TEST(HumanTurn, WithTwoCardsLeftAttachesOneDiscardsTheOtherAndIsOut)
{
    apparecchia("mano 8D calate 5D 6D 7D | pozzo QS tallone 2C 9H");
    EXPECT_TRUE(gioca(Gioco1(), {pesca_tallone(), scegli("8D"), clic_calate(), scarta("2C")}));
    EXPECT_EQ(mostra(), "calate 5D 6D 7D 8D | pozzo QS 2C tallone 9H");
    EXPECT_EQ(tavolo.n_calo(0), 1);
    EXPECT_EQ(finestra.now, 1300);
}

TEST(HumanTurn, DrawsOnceAndPutsTheCardAtTheRightEnd)
{
    apparecchia("mano KH 2S pozzo 9C QS tallone 2C 9H");
    EXPECT_FALSE(gioca(Gioco1(), {pesca_pozzo(), pesca_pozzo(), pesca_tallone()}));
    EXPECT_EQ(mostra(), "mano KH 2S QS pozzo 9C tallone 2C 9H");
    EXPECT_EQ(figura_a(x_mano(3), y_mano_umano), carta_da("QS"));
    EXPECT_EQ(figura_a(posto_pozzo().x1, posto_pozzo().y1), carta_da("9C"));
}

TEST(HumanTurn, TheOnlyCardOfThePileLeavesItsPlaceEmptyUntilTheDiscard)
{
    apparecchia("mano KH 2S pozzo QS tallone 2C 9H");
    gioca(Gioco1(), {pesca_pozzo()});
    EXPECT_EQ(figura_a(posto_pozzo().x1, posto_pozzo().y1), 0);
    scarta("QS")();  // the card just taken may go back
    fino_all_attesa();
    EXPECT_EQ(mostra(), "mano KH 2S pozzo QS tallone 2C 9H");
}

TEST(HumanTurn, NothingHappensBeforeTheDrawButTheWords)
{
    apparecchia("mano KH 2S calate 5D 6D 7D | pozzo QS tallone 2C");
    auto const prima = mostra();
    gioca(Gioco1(), {scarta("KH"), clic_calate()});
    EXPECT_FALSE(si_legge("PRIMA PESCARE"));
    clic_mano(2, 1);
    fino_all_attesa();
    EXPECT_TRUE(si_legge("PRIMA PESCARE"));
    EXPECT_EQ(mostra(), prima);
    pesca_tallone()();
    EXPECT_FALSE(si_legge("PRIMA PESCARE")) << "the next redraw of the hand takes the words away";
}

// Selections that the guard stops leave the hand as it was; those that the referee refuses sort it.
TEST(HumanTurn, ASelectionGoesDownWhateverComesOfIt)
{
    struct Caso {
        char const *calate, *scelte, *mano;
    };
    for (auto const& [calate, scelte, mano] : {
             Caso{"", "3C", "3C KH 5D 4C KS"},
             Caso{"", "3C KH", "3C KH 5D 4C KS"},
             Caso{" calate 5D' 6D 7D |", "3C KH", "3C KH 5D 4C KS"},
             Caso{" calate 5D' 6D 7D |", "3C", "KH KS 5D 4C 3C"},
             Caso{"", "3C KH 5D", "KH KS 5D 4C 3C"},
         }) {
        apparecchia("mano 3C KH 5D 4C" + std::string(calate) + " pozzo QS tallone KS 9H");
        gioca(Gioco1(), {pesca_tallone(), scegli(scelte), clic_calate()});
        EXPECT_EQ(mostra(), "mano " + std::string(mano) + calate + " pozzo QS tallone 9H") << scelte;
    }
}

TEST(HumanTurn, ALeftClickWithASelectionOnlyCancelsIt)
{
    apparecchia("mano 3C KH 5D pozzo QS tallone KS 9H");
    gioca(Gioco1(), {pesca_tallone(), scegli("KH 5D")});
    EXPECT_EQ(mostra(), "mano 3C *KH *5D KS pozzo QS tallone 9H");
    EXPECT_EQ(figura_a(x_mano(2), y_scelta_alta), carta_da("KH"));
    scegli("KH")();
    scarta("3C")();
    fino_all_attesa();
    EXPECT_EQ(mostra(), "mano 3C KH 5D KS pozzo QS tallone 9H");
    scarta("3C")();
    fino_all_attesa();
    EXPECT_EQ(mostra(), "mano KH KS 5D pozzo QS 3C tallone 9H") << "the discard sorts the hand";
    EXPECT_FALSE(runner.alive());
}

TEST(HumanTurn, ThreeSelectedCardsAreANewMeldWhereverInTheRowTheClickFalls)
{
    apparecchia("mano 3C 3H 3S KD calate 5D 6D 7D | pozzo QS tallone KS 9H");
    gioca(Gioco1(), {pesca_tallone(), scegli("3C 3H 3S"), clic_calate(2)});
    EXPECT_EQ(mostra(), "mano KD KS calate 5D 6D 7D | 3S 3C 3H | pozzo QS tallone 9H");
}

TEST(HumanTurn, ALayOfTheWholeHandEndsTheTurnAtOnce)
{
    apparecchia("mano 5C 6C pozzo QS tallone 7C 9H");
    EXPECT_TRUE(gioca(Gioco1(), {pesca_tallone(), scegli("5C 6C 7C"), clic_calate()}));
    EXPECT_EQ(mostra(), "calate 5C 6C 7C | pozzo QS tallone 9H");
}

TEST(HumanTurn, TheLastCardCannotBeSelected)
{
    apparecchia("mano 8D 9D calate 5D 6D 7D | pozzo QS tallone 2C 9H");
    gioca(Gioco1(), {pesca_tallone(), scegli("8D"), clic_calate(), scegli("9D"), clic_calate()});
    EXPECT_EQ(mostra(), "mano 2C calate 5D 6D 7D 8D 9D | pozzo QS tallone 9H");
    scegli("2C")();
    EXPECT_EQ(mostra(), "mano 2C calate 5D 6D 7D 8D 9D | pozzo QS tallone 9H");
}

// Nobody owns so many cards in play; the guard keeps list and hand whole.
TEST(HumanTurn, ATailThatWouldPassTheEndOfTheListIsRefused)
{
    apparecchia("mano 3C 3H 3S KD calate 2H 3H' 4H | 5S 6S 7S | 9H 9D 9S | 2D 3D 4D | JH JD JS | 2C 3C' 4C | "
                "6D 7D 8D | pozzo QS tallone KS 9H");
    gioca(Gioco1(), {pesca_tallone()});
    auto const prima = mostra();
    scegli("3C 3H 3S")();
    clic_calate()();
    EXPECT_EQ(mostra(), prima);
}

TEST(HumanTurn, TheDiscardThatEmptiesTheStockSetsOffTheReshuffle)
{
    apparecchia("mano KH pozzo QS tallone 2C");
    for (int i = 0; i < 76; ++i)
        tavolo.pozzo(i) = i + 1;
    tavolo.pozzo(76) = 104;
    tavolo.n_pozzo = 77;
    for (int i = 1; i <= 26; ++i)
        tavolo.mazzo(i) = i;
    gioca(Gioco1(), {pesca_tallone()});
    EXPECT_EQ(tavolo.cima_tallone, 105);
    scarta("KH")();
    ASSERT_TRUE(scatta_timer());  // behind the discard
    EXPECT_EQ(tavolo.n_pozzo, 78);
    EXPECT_EQ(figura_a(posto_tallone().x1, posto_tallone().y1), 0);
    ASSERT_TRUE(scatta_timer());  // in front of the message
    EXPECT_TRUE(si_legge("Rimescolo le carte del Pozzo"));
    EXPECT_EQ(finestra.last_wait, 6500);
    clic_mano(1, 1);  // a click meanwhile is nothing
    fino_all_attesa();

    EXPECT_FALSE(si_legge("Rimescolo le carte del Pozzo"));
    EXPECT_EQ(tavolo.n_pozzo, 1);
    EXPECT_EQ(tavolo.cima_tallone, 28);
    EXPECT_EQ(tavolo.pozzo(0), tavolo.mazzo(27));
    std::multiset<int> carte;
    for (int i = 27; i <= 104; ++i)
        carte.insert(tavolo.mazzo(i));
    EXPECT_EQ(carte.count(carta_da("KH")), 2U) << "thirteen in the pile, and the discard itself";
    EXPECT_EQ(carte.count(104), 1U);
    EXPECT_EQ(carte.count(0), 0U);
    for (int i = 1; i <= 26; ++i)
        EXPECT_EQ(tavolo.mazzo(i), i);
    EXPECT_FALSE(runner.alive());
}

// Edges of the places; those of the hand to the right count, all others do not.
TEST(Pointer, TestsThePlacesByTheirEdges)
{
    apparecchia("mano KH 2S 3S pozzo QS tallone 2C pescato 1");
    auto& t = tavolo;
    Single const r = 13 * t.larg_carta / 3.6F + 376.7F + 26.0F / 36 * t.larg_carta;
    Single const piles = t.centro_y, row = t.centro_y + 120;
    struct Caso {
        int tasto;
        Single x, y;
        int azione;
    };
    for (auto const& [tasto, x, y, azione] : {
             Caso{1, 512, piles, 0},
             Caso{1, 511.9F, piles, 1},
             Caso{1, 512 - t.larg_carta, piles, 0},
             Caso{1, 512.1F, piles, 2},
             Caso{1, 512 + t.larg_carta, piles, 0},
             Caso{1, 511, piles - t.alt_carta / 2, 0},
             Caso{2, 511, piles, 0},
             Caso{1, 312, row + 1, 0},
             Caso{1, 313, row, 0},
             Caso{1, 313, row + 1, 4},
             Caso{1, r - 0.1F, row + t.alt_carta - 0.1F, 4},
             Caso{1, r, row + 1, 0},
             Caso{2, 313, row + 1, 0},
             Caso{1, 0, 700, 0},
             Caso{1, 0.1F, 645.1F, 5},
             Caso{1, 1, 645, 0},
             Caso{1, 1, 630, 0},
             Caso{1, 3 * t.larg_carta, 700, 5},
             Caso{1, 3 * t.larg_carta + 0.1F, 700, 0},
             Caso{2, 1, 700, 3},
             Caso{2, 1, 640, 0},
             Caso{4, 1, 700, 0},
             Caso{1, -1e9F, 1e9F, 0},
             Caso{1, std::nanf(""), std::nanf(""), 0},
         }) {
        t.azione = 0;
        Form_MouseDown(tasto, 0, x, y);
        EXPECT_EQ(t.azione, azione) << tasto << " at " << x << ' ' << y;
    }

    t.azione = 0;
    t.turno = 2;
    Form_MouseDown(1, 0, 1, 700);
    EXPECT_EQ(t.azione, 0);
    Form_MouseDown(2, 0, 1, 700);
    EXPECT_EQ(t.azione, 3) << "the right button does not ask whose turn it is";
    t.azione = 15;
    Form_MouseDown(2, 0, 1, 700);
    EXPECT_EQ(t.azione, 15);
}

TEST(Pointer, ShowsTheUpArrowOverTheRowInTheHumansTurnOnly)
{
    apparecchia("mano KH pozzo QS tallone 2C");
    Form_MouseMove(0, 0, 400, tavolo.centro_y + 130);
    EXPECT_EQ(finestra.pointer, Pointer::up_arrow);
    Form_MouseMove(0, 0, 400, 20);
    EXPECT_EQ(finestra.pointer, Pointer::arrow);
    tavolo.turno = 2;
    Form_MouseMove(0, 0, 400, tavolo.centro_y + 130);
    EXPECT_EQ(finestra.pointer, Pointer::arrow);
}
