// SPDX-License-Identifier: GPL-3.0-or-later
#include "at_the_table.h"

#include "game/table_state.h"
#include "melds/meld_validation.h"
#include "melds/table_melds.h"

#include <gtest/gtest.h>

namespace {

std::string const rifiuto = "refused";

// Lays the whole hand, or attaches its one card by a click at x, as the human's turn does. The list
// afterwards, or the refusal.
std::string cala(std::string const& calate, std::string const& nuova, Single x)
{
    apparecchia("mano " + nuova + " calate " + calate);
    int const n = tavolo.n_scelte = tavolo.n_carte(1);
    for (int k = 1; k <= n; ++k)
        tavolo.calate(1, tavolo.n_calate(1) + k) = tavolo.mano(1, k);
    chiudi_coda(1, n);
    controllo_calata(x);
    if (!tavolo.esito_attacco) {
        togli_coda(1, n);
        EXPECT_TRUE(n > 1 || mostra() == "mano " + nuova + " calate " + calate)
            << "a refusal leaves the list";
        return rifiuto;
    }
    ord_crescente_calata(1);
    tavolo.n_carte(1) = 0;
    return mostra().substr(std::string("calate ").size());
}

// A case tells what is laid, behind the melds that lie there, and what comes of it if it is not refused:
// "2H 3H 4H | 5H 6H 7H = 2H 3H 4H 5H 6H 7H |".
void prova(std::vector<std::string> const& casi)
{
    for (auto const& caso : casi) {
        auto const uguale = caso.find(" = ");
        auto const tutto = caso.substr(0, uguale);
        auto const nuova = tutto.rfind("| ") == std::string::npos ? 0 : tutto.rfind("| ") + 2;
        EXPECT_EQ(cala(tutto.substr(0, nuova - (nuova > 0)), tutto.substr(nuova), tavolo.centro_x - 195),
                  uguale == std::string::npos ? rifiuto : caso.substr(uguale + 3))
            << caso;
    }
}

}  // namespace

TEST(Melds, NewMeldsAreAcceptedInTableOrderOrRefused)
{
    avvia_programma();
    prova({"7H 5H 6H = 5H 6H 7H |", "AH QH KH = QH KH AH |", "AH 2H KH = KH AH 2H |", "3H 2H AH = AH 2H 3H |",
           "5H 6H 8H", "AH 3H KH", "AH AH' 2H", "AH AH' KH", "5H 6H 6H'",
           // A set turns by one card at each of the two passes.
           "6H 6S 6D = 6D 6H 6S |", "6H 6S 6D 6C 6H'", "6H 6H' 6S", "6H 6S 6H'", "6S 6H 6H'", "5H 6H 6S",
           "6S 6H 7H"});
    prova({"AH 2H QH KH = QH KH AH 2H |", "6H 6S 6D 6C = 6D 6C 6H 6S |",
           // Pairs are judged, not melds.
           "QS QH KH AH 2H = QS QH KH AH 2H |", "QH QS KH AH 2H",
           // Runs that carry each other on join, but only neighbours, and each marker once.
           "2H 3H 4H | 5H 6H 7H = 2H 3H 4H 5H 6H 7H |", "5H 6H 7H | 2H 3H 4H = 2H 3H 4H 5H 6H 7H |",
           "JH QH KH | AH 2H 3H = JH QH KH AH 2H 3H |"});
    prova({"AH 2H 3H | 7H 8H 9H | 4H 5H 6H = AH 2H 3H | 4H 5H 6H 7H 8H 9H |",
           "2H 3H 4H | 9S 9D 9C | 5H 6H 7H = 2H 3H 4H | 9C 9S 9D | 5H 6H 7H |",
           "AH AH' 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH = AH 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH AH' |",
           "AH 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH QH' KH = QH KH AH 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH' |",
           "AH 2H 3H 4H 5H 6H | 7H 8H 9H 10H JH QH KH = AH 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH |"});
}

TEST(Melds, AttachesFitTheEndsOfRunsAndTheMissingSuitOfSets)
{
    avvia_programma();
    prova({"6H 6D 6C | 6S = 6D 6S 6C 6H |", "6H 6S 6C | 6D' = 6S 6D' 6C 6H |", "6H 6D 6C | 6H'",
           "6H 6D 6C | 7S", "6H 6D 6C 6S | 6H'", "5D 6D 7D | 8D = 5D 6D 7D 8D |",
           "5D 6D 7D | 4D' = 4D' 5D 6D 7D |", "5D 6D 7D | 9D", "5D 6D 7D | 6D'", "5D 6D 7D | 8H",
           "JH QH KH | AH = JH QH KH AH |", "JH QH KH AH | 2H = JH QH KH AH 2H |",
           "AH 2H 3H | KH = KH AH 2H 3H |", "AH 2H 3H | AH'",
           // An attach may close the gap to a neighbour.
           "2H 3H 4H | 6H 7H 8H | 5H = 2H 3H 4H 5H 6H 7H 8H |"});
    std::string const seme = "AH 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH";
    prova({seme + " | AH' = AH' 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH AH |",
           seme + " | KH' = KH AH 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH' |",
           // The attach stands although the walk then finds a second Two.
           seme + " AH' | 2H' = AH' 2H 2H' 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH AH |"});
}

// A tris and a run of four: the tris owns five steps, the run twelve, its own six and the tail's.
TEST(Melds, TheRegionsOfAnAttachAreAStepWiderThanThePictures)
{
    auto const attacca = [](std::string const& carta, double passi) {
        avvia_programma();
        Single const x = tavolo.centro_x - 200 + static_cast<Single>(passi) * tavolo.larg_carta / 5;
        return cala("6H 6D 6C | 5S 6S 7S 8S |", carta, x);
    };
    for (double const passi : {0.1, 4.9})
        EXPECT_EQ(attacca("6S'", passi), "6D 6S' 6C 6H | 5S 6S 7S 8S |") << passi;
    EXPECT_EQ(attacca("6S'", 5.1), rifiuto);
    for (double const passi : {5.1, 10.9, 11.1, 16.9})
        EXPECT_EQ(attacca("9S", passi).substr(11), "5S 6S 7S 8S 9S |") << passi;
    for (double const passi : {-1.0, 0.0, 4.9, 17.1, 60.0})
        EXPECT_EQ(attacca("9S", passi), rifiuto) << passi;
}

TEST(Melds, TheRowIsDrawnInStripsOfAFifthWithAGapForEachMarker)
{
    apparecchia("calate 6H 6D 6C | 5S 6S' 7S | calate2 2H 3H 4H |");
    auto const& t = tavolo;
    calo_carte(1);
    calo_carte(2);
    for (int i : {1, 2, 3, 5, 6, 7})
        EXPECT_EQ(figura_a(312 + static_cast<Single>(i - 1) * t.larg_carta / 5, t.centro_y + 114),
                  prima_copia(t.calate(1, i)));
    EXPECT_EQ(figura_a(312, t.centro_y - 134 - t.alt_carta), carta_da("2H"));
    EXPECT_TRUE(t.n_calo(0) == 1 && t.n_calo(1) == 1);
}
