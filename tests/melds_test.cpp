// SPDX-License-Identifier: GPL-3.0-or-later
#include "at_the_table.h"

#include "game/table_state.h"
#include "melds/attach_rules.h"
#include "melds/meld_validation.h"
#include "melds/table_melds.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

// Selects all of the hand and lays it, as the human's turn does. The list afterwards, or "refused".
std::string cala(std::string const& calate, std::string const& nuova)
{
    apparecchia("mano " + nuova + (calate.empty() ? "" : " calate " + calate));
    int const n = tavolo.n_carte(1);
    tavolo.n_scelte = n;
    for (int k = 1; k <= n; ++k)
        tavolo.calate(1, tavolo.n_calate(1) + k) = tavolo.mano(1, k);
    chiudi_coda(1, n);
    controllo_calata(0);
    if (!tavolo.esito_attacco)
        return "refused";
    ord_crescente_calata(1);
    tavolo.n_carte(1) = 0;
    return mostra().substr(std::string("calate ").size());
}

// Attaches the one card of the hand by a click at x.
std::string attacca(std::string const& calate, std::string const& carta, Single x)
{
    apparecchia("mano " + carta + " calate " + calate + " pescato 1");
    tavolo.n_scelte = 1;
    tavolo.calate(1, tavolo.n_calate(1) + 1) = tavolo.mano(1, 1);
    chiudi_coda(1, 1);
    controllo_calata(x);
    if (!tavolo.esito_attacco) {
        togli_coda(1, 1);
        EXPECT_EQ(mostra(), "mano " + carta + " calate " + calate) << "a refusal must leave the list";
        return "refused";
    }
    ord_crescente_calata(1);
    tavolo.n_carte(1) = 0;
    return mostra().substr(std::string("calate ").size());
}

struct Proposta {
    char const *calate, *nuova, *esito;
};

}  // namespace

TEST(Melds, NewMeldsAreAcceptedInTableOrderOrRefused)
{
    static constexpr Proposta proposte[] = {
        {"", "7H 5H 6H", "5H 6H 7H |"},
        {"", "AH QH KH", "QH KH AH |"},
        {"", "AH 2H KH", "KH AH 2H |"},
        {"", "AH 2H QH KH", "QH KH AH 2H |"},
        {"", "3H 2H AH", "AH 2H 3H |"},
        {"", "5H 6H 8H", "refused"},
        {"", "AH 3H KH", "refused"},
        {"", "AH AH' 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH", "AH 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH AH' |"},
        {"", "AH 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH QH' KH", "QH KH AH 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH' |"},
        {"", "AH 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH", "AH 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH |"},
        {"", "AH AH' 2H", "refused"},
        {"", "AH AH' KH", "refused"},
        {"", "5H 6H 6H'", "refused"},
        // A set turns by one card at each of the two passes.
        {"", "6H 6S 6D", "6D 6H 6S |"},
        {"", "AH AS AD", "AD AH AS |"},
        {"", "6H 6S 6D 6C", "6D 6C 6H 6S |"},
        {"", "6H 6S 6D 6C 6H'", "refused"},
        {"", "6H 6H' 6S", "refused"},
        {"", "6H 6S 6H'", "refused"},
        {"", "6S 6H 6H'", "refused"},
        {"", "5H 6H 6S", "refused"},
        {"", "6S 6H 7H", "refused"},
        // Pairs are judged, not melds.
        {"", "QS QH KH AH 2H", "QS QH KH AH 2H |"},
        {"", "QH QS KH AH 2H", "refused"},
        // Runs that carry each other on join, but only neighbours, and each marker once.
        {"2H 3H 4H |", "5H 6H 7H", "2H 3H 4H 5H 6H 7H |"},
        {"5H 6H 7H |", "2H 3H 4H", "2H 3H 4H 5H 6H 7H |"},
        {"AH 2H 3H | 7H 8H 9H |", "4H 5H 6H", "AH 2H 3H | 4H 5H 6H 7H 8H 9H |"},
        {"2H 3H 4H | 9S 9D 9C |", "5H 6H 7H", "2H 3H 4H | 9C 9S 9D | 5H 6H 7H |"},
        {"AH 2H 3H 4H 5H 6H |", "7H 8H 9H 10H JH QH KH", "AH 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH |"},
        {"JH QH KH |", "AH 2H 3H", "JH QH KH AH 2H 3H |"},
    };
    for (auto const& [calate, nuova, esito] : proposte)
        EXPECT_EQ(cala(calate, nuova), esito) << calate << " with " << nuova;
}

TEST(Melds, AttachesFitTheEndsOfRunsAndTheMissingSuitOfSets)
{
    static constexpr Proposta attacchi[] = {
        {"6H 6D 6C |", "6S", "6D 6S 6C 6H |"},
        {"6H 6D 6C |", "6S'", "6D 6S' 6C 6H |"},
        {"6H 6D 6C |", "6H'", "refused"},
        {"6H 6S 6C |", "6D'", "6S 6D' 6C 6H |"},
        {"6H 6D 6C |", "7S", "refused"},
        {"6H 6D 6C 6S |", "6H'", "refused"},
        {"5D 6D 7D |", "8D", "5D 6D 7D 8D |"},
        {"5D 6D 7D |", "4D'", "4D' 5D 6D 7D |"},
        {"5D 6D 7D |", "9D", "refused"},
        {"5D 6D 7D |", "6D'", "refused"},
        {"5D 6D 7D |", "8H", "refused"},
        {"JH QH KH |", "AH", "JH QH KH AH |"},
        {"JH QH KH AH |", "2H", "JH QH KH AH 2H |"},
        {"JH QH KH AH 2H |", "10H", "10H JH QH KH AH 2H |"},
        {"AH 2H 3H |", "KH", "KH AH 2H 3H |"},
        {"AH 2H 3H |", "AH'", "refused"},
        {"AH 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH |", "AH'", "AH' 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH AH |"},
        {"AH 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH |", "KH'", "KH AH 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH' |"},
        // The attach stands although the walk then finds a second Two.
        {"AH 2H 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH AH' |", "2H'",
         "AH' 2H 2H' 3H 4H 5H 6H 7H 8H 9H 10H JH QH KH AH |"},
        // An attach may close the gap to a neighbour.
        {"2H 3H 4H | 6H 7H 8H |", "5H", "2H 3H 4H 5H 6H 7H 8H |"},
    };
    avvia_programma();
    Single const x = x_calate(1);
    for (auto const& [calate, carta, esito] : attacchi)
        EXPECT_EQ(attacca(calate, carta, x), esito) << calate << " with " << carta;
}

// A tris and a run of four: the tris owns five steps, the run twelve, its own six and the tail's.
TEST(Melds, TheRegionsOfAnAttachAreAStepWiderThanThePictures)
{
    std::string const calate = "6H 6D 6C | 5S 6S 7S 8S |";
    auto const x = [](double passi) {
        avvia_programma();
        return tavolo.centro_x - 200 + static_cast<Single>(passi) * tavolo.larg_carta / 5;
    };
    auto const al_gruppo = "6D 6S' 6C 6H | 5S 6S 7S 8S |";
    auto const alla_scala = "6C 6H 6D | 5S 6S 7S 8S 9S |";
    EXPECT_EQ(attacca(calate, "6S'", x(0.1)), al_gruppo);
    EXPECT_EQ(attacca(calate, "6S'", x(4.9)), al_gruppo);
    EXPECT_EQ(attacca(calate, "6S'", x(5.1)), "refused");
    EXPECT_EQ(attacca(calate, "9S", x(4.9)), "refused") << "the picture of the run begins before its region";
    for (double const passi : {5.1, 10.9, 11.1, 16.9})
        EXPECT_EQ(attacca(calate, "9S", x(passi)).substr(13), std::string(alla_scala).substr(13)) << passi;
    for (double const passi : {-1.0, 0.0, 17.1, 60.0})
        EXPECT_EQ(attacca(calate, "9S", x(passi)), "refused") << passi;
}

TEST(Melds, TheRowIsDrawnInStripsOfAFifthWithAGapForEachMarker)
{
    apparecchia("calate 6H 6D 6C | 5S 6S' 7S | calate2 2H 3H 4H |");
    auto const& t = tavolo;
    calo_carte(1);
    calo_carte(2);
    for (int i : {1, 2, 3, 5, 6, 7})
        EXPECT_EQ(figura_a(112 + 200 + static_cast<Single>(i - 1) * t.larg_carta / 5, t.centro_y + 114),
                  prima_copia(t.calate(1, i)));
    EXPECT_EQ(figura_a(312, t.centro_y - 134 - t.alt_carta), carta_da("2H"));
    EXPECT_EQ(t.n_calo(0), 1);
    EXPECT_EQ(t.n_calo(1), 1);
}
