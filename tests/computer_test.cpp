// SPDX-License-Identifier: GPL-3.0-or-later
#include "at_the_table.h"

#include "computer/attach_decision.h"
#include "computer/computer_turn.h"
#include "computer/discard_decision.h"
#include "computer/hand_reading.h"
#include "computer/meld_decision.h"
#include "game/table_state.h"

#include <gtest/gtest.h>

#include <set>

namespace {

struct Caso {
    char const *prima, *dopo;
};

std::string turno(std::string const& tavola)
{
    apparecchia(tavola + " turno 2");
    EXPECT_TRUE(gioca(Gioco2())) << "the computer's turn must end by itself";
    return mostra();
}

}  // namespace

// What is laid, and where the card of the turn comes from.
TEST(Computer, LaysTheFirstRunThenTheFirstSetWithThePileThenWithTheStock)
{
    static constexpr Caso casi[] = {
        // the longest run of the suit, through the pile and with one of two copies
        {"2H 2H' 3H 5H KS pozzo 4H tallone 9C", "mano2 2H' KS calate2 2H 3H 4H 5H | tallone 9C"},
        // a run through the stock before a set through the pile
        {"7H 7C 2S 3S pozzo 7S tallone 4S", "mano2 7H 7C calate2 2S 3S 4S | pozzo 7S"},
        // a set through the pile before a set through the stock
        {"7H 7C KD 2S pozzo 7S tallone 7D", "mano2 KD 2S calate2 7H 7C 7S | tallone 7D"},
        {"7H 7C KD 2S pozzo 9S tallone 7D", "mano2 KD 2S calate2 7H 7D 7C | pozzo 9S"},
        // four of a kind at once, in codes of the first deck
        {"7H' 7C' 7D' 2S pozzo 7S' tallone KD", "mano2 2S calate2 7H 7D 7C 7S | tallone KD"},
        // a shorter run of an earlier suit, the lower of two equal ones
        {"2D 3D 4D 6D 7D 8D 2S 3S 4S 5S pozzo KH tallone KC",
         "mano2 6D 7D 8D 2S 3S 4S 5S KH calate2 2D 3D 4D | tallone KC"},
        // a meld that stands in the hand already takes the pile's top with it; the lowest rank first
        {"AH AD AC KH' KD KC pozzo 9S tallone 2C", "mano2 KH' KD KC 9S calate2 AH AD AC | tallone 2C"},
        // twins are one card of a set; no run over the King
        {"7H 7H' 7C QD KD AD pozzo 9S tallone 2C", "mano2 7H 7H' 7C QD KD AD pozzo 9S tallone 2C"},
        // the whole suit
        {"AS 2S 3S 4S 5S 6S 7S 8S 9S 10S JS QS 9H pozzo KS tallone 9C",
         "mano2 9H calate2 AS 2S 3S 4S 5S 6S 7S 8S 9S 10S JS QS KS | tallone 9C"}};
    for (auto const& [prima, dopo] : casi) {
        apparecchia("turno 2 mano2 " + std::string(prima));
        tavolo.mappa_copia = tavolo.mappa(2);
        decido_calata();
        EXPECT_EQ(mostra(), dopo) << prima;
    }
}

// The last card of the hand is the provisional one, also on top of the pile.
TEST(Computer, AttachesWhatFitsUnlessALargeHandHoldsItsNeighbour)
{
    static constexpr Caso casi[] = {
        // fits and stands alone; its neighbour is held; three cards or fewer: everything goes
        {"4C 9C KD KH AS calate2 5C 6C 7C | pozzo AS", "9C KD KH AS calate2 4C 5C 6C 7C | pozzo AS"},
        {"8C 9C KD KH AS calate2 5C 6C 7C | pozzo AS", "8C 9C KD KH AS calate2 5C 6C 7C | pozzo AS"},
        {"8C 9C AS calate2 5C 6C 7C | pozzo AS", "9C AS calate2 5C 6C 7C 8C | pozzo AS"},
        // Ace behind a King, King in front of an Ace, with and without neighbours
        {"AH 9C 9D 8S 2S calate2 JH QH KH | pozzo 2S", "9C 9D 8S 2S calate2 JH QH KH AH | pozzo 2S"},
        {"AH 3H 9D 8S 2S calate2 JH QH KH | pozzo 2S", "AH 3H 9D 8S 2S calate2 JH QH KH | pozzo 2S"},
        {"KH 9C 9D 8S 2S calate2 AH 2H 3H | pozzo 2S", "9C 9D 8S 2S calate2 KH AH 2H 3H | pozzo 2S"},
        {"KH JH 9D 8S 2S calate2 AH 2H 3H | pozzo 2S", "KH JH 9D 8S 2S calate2 AH 2H 3H | pozzo 2S"},
        // the missing suit of a tris, whatever stands beside it; a poker takes nothing
        {"9C' 8C KD KH AS calate2 9H 9D 9S | pozzo AS", "8C KD KH AS calate2 9H 9D 9C' 9S | pozzo AS"},
        {"9H' 8C KD KH AS calate2 9H 9D 9S | pozzo AS", "9H' 8C KD KH AS calate2 9H 9D 9S | pozzo AS"},
        {"9C' 8C KD AS calate2 9H 9D 9C 9S | pozzo AS", "9C' 8C KD AS calate2 9H 9D 9C 9S | pozzo AS"},
        // the provisional card, taken from the pile in earnest; a copy of it in an earlier slot goes first
        {"KD KH 4C AC 10S calate2 7S 8S 9S | pozzo 2H 10S", "KD KH 4C AC calate2 7S 8S 9S 10S | pozzo 2H"},
        {"10S' KH 4C 3H 10S calate2 7S 8S 9S | pozzo 10S", "KH 4C 3H 10S calate2 7S 8S 9S 10S' | pozzo 10S"},
        // three melds, a card each; each attach to a run turns the sets too
        {"4C KH 4S QD 3H 6D 10S calate2 5C 6C 7C | 7S 8S 9S | 4D 4H 4C' | pozzo 2H 10S",
         "KH QD 3H 6D calate2 4C 5C 6C 7C | 7S 8S 9S 10S | 4C' 4D 4S 4H | pozzo 2H"}};
    for (auto const& [prima, dopo] : casi) {
        apparecchia("turno 2 mano2 " + std::string(prima));
        int const carte = tavolo.n_calate(2);
        Provo_Attacco(computer, computer);
        EXPECT_EQ(mostra(), "mano2 " + std::string(dopo)) << prima;
        EXPECT_EQ(finestra.beeps, tavolo.n_calate(2) - carte) << prima;
    }
}

// The starred one goes: of equal suits from the first, of equal cards that in the first slot. How far it must
// stand from the next is another number at either end of the suit; two copies are one rank.
TEST(Computer, DiscardsTheMostIsolatedCardOfItsShortestSuit)
{
    for (std::string mano : {"*7H",
                             "*AH 5H",
                             "*AH 6H",
                             "*AH KH",
                             "6H *KH",
                             "8H *KH",
                             "9H *KH",
                             "*10H KH",
                             "*6S",
                             "*5S",
                             "*4S",
                             "3H' *7H'",
                             "*3S",
                             "*2S",
                             "*AS",
                             "*7C 7C'",
                             "5H 6H *9D 9D'",
                             "*9D' 9D 5H 6H",
                             "*KC 9C 8D KD 5S 6S 7S",
                             "AH *4H 2C 3C 4C 2S 3S 4S"}) {
        auto const stella = mano.find('*');
        auto const scarto = mano.substr(stella + 1, mano.find(' ', stella) - stella - 1);
        apparecchia("turno 2 mano2 " + mano.erase(stella, 1) + " 2D 3D 4D");
        EXPECT_EQ(nome_carta(tavolo.mano(2, scelgo_scarto())), scarto) << mano;
    }

    // None is: any card of the hand, by chance.
    std::set<int> slots;
    apparecchia("mano2 5H 6H 2D 3D 4D turno 2");
    for (int k = 0; k < 200; ++k)
        slots.insert(scelgo_scarto());
    EXPECT_EQ(slots, (std::set{1, 2, 3, 4, 5}));
}

TEST(Computer, AWholeTurnEndsWithADiscardOrAnEmptyHand)
{
    static constexpr Caso casi[] = {
        // three of a kind in a hand of three stay there
        {"mano2 7H 7C 7S pozzo KD tallone 9C", "mano2 7C 7S 9C pozzo KD 7H"},
        // a run of all four cards and the pile's: no discard
        {"mano2 3H 4H 5H 6H pozzo 2H tallone 9C", "calate2 2H 3H 4H 5H 6H | tallone 9C"},
        // the last card attaches, the provisional one does not: the drawn card is discarded
        {"mano2 8C calate2 5C 6C 7C | pozzo KD tallone 9H", "calate2 5C 6C 7C 8C | pozzo KD 9H"},
        // the provisional card attaches too: nothing is left to discard
        {"mano2 8C calate2 5C 6C 7C | 9H 9D 9S | pozzo 9C", "calate2 5C 6C 7C 8C | 9D 9S 9C 9H |"},
        // nothing to lay or attach: the provisional card is dropped, a stock card drawn
        {"mano2 7H 2D 3D pozzo KS tallone 9C", "mano2 2D 3D 9C pozzo KS 7H"}};
    for (auto const& [prima, dopo] : casi)
        EXPECT_EQ(turno(prima), dopo) << prima;
    EXPECT_EQ(finestra.pointer, Pointer::hourglass);
    EXPECT_EQ(finestra.now, 1300 + 3 * 2600);
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
