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

TEST(HumanTurn, DrawsLaysAndDiscardsAsTheClicksSay)
{
    struct Caso {
        char const* prima;
        std::vector<Azione> azioni;
        char const* dopo;
        bool finito = false;
    };
    auto const pozzo = pesca_pozzo(), tallone = pesca_tallone(), cala = clic_calate();
    for (auto const& [prima, azioni, dopo, finito] : std::vector<Caso>{
             // one draw a turn, and nothing before it
             {"mano KH pozzo 9C QS tallone 2C", {pozzo, pozzo, tallone}, "mano KH QS pozzo 9C tallone 2C"},
             {"mano KH 2S calate 5D 6D 7D | pozzo QS", {scarta("KH"), scegli("KH"), cala}, ""},
             // the card just taken may go back
             {"mano KH 2S pozzo QS", {pozzo, scarta("QS")}, "mano KH 2S pozzo QS", true},
             // a selection is cancelled by a click on the hand, and only then a discard sorts the hand
             {"mano 3C 5D KH tallone KS", {tallone, scegli("5D KH"), scegli("KH")}, "mano 3C *5D KH KS"},
             {"mano 3C 5D KH tallone KS", {tallone, scegli("5D KH"), scarta("3C")}, "mano 3C 5D KH KS"},
             {"mano 3C 5D KH tallone KS",
              {tallone, scegli("5D"), scarta("3C"), scarta("3C")},
              "mano KH KS 5D pozzo 3C",
              true},
             // the guard leaves the hand as it was, the referee sorts it
             {"mano 3C KH 5D tallone KS", {tallone, scegli("3C"), cala}, "mano 3C KH 5D KS"},
             {"mano 3C KH calate 5D 6D 7D | tallone KS",
              {tallone, scegli("3C KH"), cala},
              "mano 3C KH KS calate 5D 6D 7D |"},
             {"mano 3C KH calate 5D 6D 7D | tallone KS",
              {tallone, scegli("3C"), cala},
              "mano KH KS 3C calate 5D 6D 7D |"},
             {"mano 3C KH 5D tallone KS", {tallone, scegli("3C KH 5D"), cala}, "mano KH KS 5D 3C"},
             // a new meld goes behind the others, wherever in the row the click falls
             {"mano 3C 3H 3S KD calate 5D 6D 7D | tallone KS",
              {tallone, scegli("3C 3H 3S"), clic_calate(2)},
              "mano KD KS calate 5D 6D 7D | 3S 3C 3H |"},
             // a lay of the whole hand ends the turn at once
             {"mano 5C 6C tallone 7C", {tallone, scegli("5C 6C 7C"), cala}, "calate 5C 6C 7C |", true},
             // the referee judges pairs, not melds
             {"mano QS QH KH AH tallone 2H",
              {tallone, scegli("QS QH KH AH 2H"), cala},
              "calate QS QH KH AH 2H |",
              true},
             // each marker is asked once: the first comes too early for what the second joins
             {"mano 4H 5H KS calate AH 2H 3H | 7H 8H 9H | tallone 6H",
              {tallone, scegli("4H 5H 6H"), cala},
              "mano KS calate AH 2H 3H | 4H 5H 6H 7H 8H 9H |"},
             // a fifteenth card is attached, and no new meld passes any more
             {"mano 2H' 5D 5C calate AH 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH AH' | tallone 5S",
              {tallone, scegli("2H'"), cala, scegli("5D 5C 5S"), cala},
              "mano 5D 5C 5S calate AH 2H 2H' 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH AH' |"},
             // the last card cannot be selected
             {"mano 8D calate 5D 6D 7D | tallone 2C",
              {tallone, scegli("8D"), cala, scegli("2C"), cala},
              "mano 2C calate 5D 6D 7D 8D |"},
         }) {
        apparecchia(prima);
        EXPECT_EQ(gioca(Gioco1(), azioni), finito) << prima;
        EXPECT_EQ(mostra(), *dopo ? dopo : prima);
    }
}

TEST(HumanTurn, ShowsTheCardsWhereTheyAre)
{
    apparecchia("mano KH 2S pozzo 9C QS tallone 2C");
    auto const pozzo = [] { return figura_a(posto_pozzo().x1, posto_pozzo().y1); };
    gioca(Gioco1(), {[] { clic_mano(2, 1); }});
    EXPECT_TRUE(si_legge("PRIMA PESCARE"));
    pesca_pozzo()();
    EXPECT_FALSE(si_legge("PRIMA PESCARE")) << "the next redraw of the hand takes the words away";
    EXPECT_EQ(figura_a(x_mano(3), y_mano_umano), carta_da("QS"));
    EXPECT_EQ(pozzo(), carta_da("9C"));
    scegli("2S")();
    EXPECT_EQ(figura_a(x_mano(2), y_scelta_alta), carta_da("2S"));

    apparecchia("mano KH pozzo QS");
    gioca(Gioco1(), {pesca_pozzo()});
    EXPECT_EQ(pozzo(), 0) << "the only card of the pile leaves its place empty";
}

// Nobody owns so many cards in play; the guard keeps list and hand whole.
TEST(HumanTurn, ATailThatWouldPassTheEndOfTheListIsRefused)
{
    auto const* const tavola = "mano 3C 3H 3S calate 2H 3H' 4H | 5S 6S 7S | 9H 9D 9S | 2D 3D 4D | "
                               "JH JD JS | 2C 3C' 4C | 6D 7D 8D |";
    apparecchia(tavola + std::string(" tallone KS"));
    gioca(Gioco1(), {pesca_tallone(), scegli("3C 3H 3S"), clic_calate()});
    EXPECT_EQ(mostra(), "mano 3C 3H 3S KS" + std::string(tavola).substr(13));
    EXPECT_EQ(tavolo.calate(1, 30), carta_da("3H"))
        << "selected cards are written behind the list, as far as it goes";
}

TEST(HumanTurn, TheDiscardThatEmptiesTheStockSetsOffTheReshuffle)
{
    apparecchia("mano KH tallone 2C");
    for (int i = 0; i < 77; ++i)
        tavolo.pozzo(i) = i + 1;
    tavolo.n_pozzo = 77;
    for (int i = 1; i <= 26; ++i)
        tavolo.mazzo(i) = i;
    gioca(Gioco1(), {pesca_tallone()});
    scarta("KH")();
    ASSERT_TRUE(scatta_timer());  // behind the discard
    EXPECT_EQ(figura_a(posto_tallone().x1, posto_tallone().y1), 0);
    ASSERT_TRUE(scatta_timer());  // in front of the message
    EXPECT_TRUE(si_legge("Rimescolo le carte del Pozzo"));
    EXPECT_EQ(finestra.last_wait, 6500);
    clic_mano(1, 1);  // a click meanwhile is nothing
    fino_all_attesa();

    EXPECT_EQ(tavolo.n_pozzo, 1);
    EXPECT_EQ(tavolo.cima_tallone, 28);
    EXPECT_EQ(tavolo.pozzo(0), tavolo.mazzo(27));
    std::multiset<int> const carte(&tavolo.mazzo(27), &tavolo.mazzo(104) + 1);
    EXPECT_EQ(std::set(carte.begin(), carte.end()).size(), 77U);
    EXPECT_EQ(carte.count(carta_da("KH")), 2U) << "thirteen in the pile, and the discard itself";
    for (int i = 1; i <= 26; ++i)
        EXPECT_EQ(tavolo.mazzo(i), i);
    EXPECT_FALSE(runner.alive());
}

// Edges of the places; those of the hand to the right count, all others do not.
TEST(Pointer, TestsThePlacesByTheirEdges)
{
    apparecchia("mano KH 2S 3S pozzo QS tallone 2C pescato 1");
    auto& t = tavolo;
    Single const larg = t.larg_carta, alt = t.alt_carta, r = 13 * larg / 3.6F + 376.7F + 26.0F / 36 * larg;
    Single const piles = t.centro_y, row = t.centro_y + 120;
    auto const azione = [&](int tasto, Single x, Single y) {
        t.azione = 0;
        Form_MouseDown(tasto, 0, x, y);
        return int{t.azione};
    };
    struct Caso {
        int tasto;
        Single x, y;
        int atteso;
    };
    for (auto const& [tasto, x, y, atteso] : {Caso{1, 512, piles, 0},
                                              Caso{1, 511.9F, piles, 1},
                                              Caso{1, 512 - larg, piles, 0},
                                              Caso{1, 512.1F, piles, 2},
                                              Caso{1, 512 + larg, piles, 0},
                                              Caso{1, 511, piles - alt / 2, 0},
                                              Caso{2, 511, piles, 0},
                                              Caso{1, 312, row + 1, 0},
                                              Caso{1, 313, row, 0},
                                              Caso{1, 313, row + 1, 4},
                                              Caso{1, r - 0.1F, row + alt - 0.1F, 4},
                                              Caso{1, r, row + 1, 0},
                                              Caso{2, 313, row + 1, 0},
                                              Caso{1, 0, 700, 0},
                                              Caso{1, 0.1F, 645.1F, 5},
                                              Caso{1, 1, 645, 0},
                                              Caso{1, 3 * larg, 700, 5},
                                              Caso{1, 3 * larg + 0.1F, 700, 0},
                                              Caso{2, 1, 700, 3},
                                              Caso{2, 1, 640, 0},
                                              Caso{4, 1, 700, 0},
                                              Caso{1, NAN, NAN, 0}})
        EXPECT_EQ(azione(tasto, x, y), atteso) << tasto << " at " << x << ' ' << y;

    t.turno = 2;
    EXPECT_EQ(azione(1, 1, 700), 0);
    EXPECT_EQ(azione(2, 1, 700), 3) << "the right button does not ask whose turn it is";
}

TEST(Pointer, ShowsTheUpArrowOverTheRowInTheHumansTurnOnly)
{
    apparecchia("mano KH");
    auto const pointer = [](Single y) {
        Form_MouseMove(0, 0, 400, y);
        return finestra.pointer;
    };
    EXPECT_EQ(pointer(tavolo.centro_y + 130), Pointer::up_arrow);
    EXPECT_EQ(pointer(20), Pointer::arrow);
    tavolo.turno = 2;
    EXPECT_EQ(pointer(tavolo.centro_y + 130), Pointer::arrow);
}
