// SPDX-License-Identifier: GPL-3.0-or-later
//
// The game against the rules: whole families of proposals and attaches, and the computer's turns from random
// tables, SOLLEVINO_TURNS of them. The first difference ends a test.
#include "at_the_table.h"
#include "rules.h"

#include "computer/computer_turn.h"
#include "game/random.h"
#include "game/table_state.h"
#include "melds/attach_rules.h"
#include "melds/meld_validation.h"
#include "melds/table_melds.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <numeric>
#include <random>
#include <stdexcept>

using namespace regole;

namespace {

std::string racconta(Carte const& lista)
{
    std::string testo;
    for (int const voce : lista)
        testo += " " + (voce == segnacalata ? "|" : nome_carta(voce));
    return testo;
}

// The list as the table keeps it; the list that lies there; laying one.
Carte lista(Calate const& calate)
{
    Carte voci;
    for (auto const& c : calate) {
        voci.insert(voci.end(), c.begin(), c.end());
        voci.push_back(segnacalata);
    }
    return voci;
}
Carte lista(int p) { return {&tavolo.calate(p, 1), &tavolo.calate(p, 1) + tavolo.n_calate(p)}; }
void stendi(int p, Calate const& calate)
{
    auto const voci = lista(calate);
    std::ranges::copy(voci, &tavolo.calate(p, 1));
    tavolo.n_calate(p) = static_cast<int>(voci.size());
}

// Lays or attaches the cards behind those melds by a click on that strip of the row.
void prova(Calate const& prima, Carte const& nuova, int striscia = 1)
{
    auto& t = tavolo;
    t.n_scelte = static_cast<int>(nuova.size());
    stendi(1, prima);
    std::ranges::copy(nuova, &t.calate(1, t.n_calate(1) + 1));
    chiudi_coda(1, t.n_scelte);
    controllo_calata(x_calate(striscia));
    if (!t.esito_attacco)
        togli_coda(1, t.n_scelte);

    auto calate = prima;
    bool const vale = giudica(calate, nuova, static_cast<std::size_t>(striscia));
    bool const una = prima.empty() && (quanti(tutti(nuova, seme)) == 1 || quanti(tutti(nuova, valore)) == 1);
    if (t.esito_attacco != vale || lista(1) != lista(calate) ||
        (una && vale != (scala(nuova) || gruppo(nuova))))
        throw std::logic_error(racconta(lista(prima)) + " and" + racconta(nuova) + " at " +
                               std::to_string(striscia) + " give" + racconta(lista(1)) + ", not" +
                               racconta(lista(calate)));
}

// Proposes each choice of n cards from some faces, a second copy only with the first, as a person can hold
// them: by rank, those of one rank in any order, the card drawn last anywhere.
template <class Tra>
void prova_scelte(std::size_t n, Tra const& tra, Carte c = {}, int da = 0)
{
    for (int k = da; k < 104 && c.size() < n; ++k)
        if (int const f = k / 2 + 1; tra(f) && (k % 2 == 0 || (!c.empty() && faccia(c.back()) == f))) {
            c.push_back(f + (k + f) % 2 * 52);
            prova_scelte(n, tra, c, k + 1);
            c.pop_back();
        }
    if (c.size() < n)
        return;
    std::ranges::sort(c);
    do
        if (std::ranges::is_sorted(c.begin(), c.end() - 1, std::greater(), valore))
            prova({}, c);
    while (std::ranges::next_permutation(c).found);
}

// The runs of these lengths from each rank on, the decks in turn.
Calate corse(int s, int da_lung, int a_lung)
{
    Calate tutte;
    for (int n = da_lung * 13; n < (a_lung + 1) * 13; ++n) {
        auto& c = tutte.emplace_back();
        for (int k = 0; k < n / 13; ++k)
            c.push_back(s * 13 + (n + k) % 13 + 1 + k % 2 * 52);
    }
    return tutte;
}

// Sets, and runs of all suits.
Calate gruppi_e_corse(int a_lung)
{
    auto tutte = cercate(false);
    for (int s = 0; s < 4; ++s)
        std::ranges::copy(corse(s, 3, a_lung), std::back_inserter(tutte));
    return tutte;
}

// Up to three melds, a hand and the piles.
Computer a_caso(std::mt19937& g)
{
    static auto const tutte = gruppi_e_corse(6);
    auto const fino_a = [&](int n) { return static_cast<int>(g() % static_cast<unsigned>(n)); };
    Computer t;
    int posti = 24;  // of the list, with room for what three turns add
    for (int n = fino_a(4); n > 0; --n) {
        t.calate.push_back(fino_a(9) ? tutte[g() % tutte.size()] : corse(1, 3, 14)[g() % 156]);
        posti -= static_cast<int>(t.calate.back().size()) + 1;
    }
    if (posti < 1)
        return a_caso(g);
    Carte mazzo(104);
    std::iota(mazzo.begin(), mazzo.end(), 1);
    std::ranges::shuffle(mazzo, g);
    auto const pozzo = mazzo.begin() + 1 + fino_a(std::min(posti, 13)), tallone = pozzo + 1 + fino_a(3);
    t.mano.assign(mazzo.begin(), pozzo);
    t.pozzo.assign(pozzo, tallone);
    t.tallone.assign(tallone, tallone + 5);
    return t;
}

struct Rules : testing::Test {
    Rules() { avvia_programma(); }
};

}  // namespace

TEST_F(Rules, SmallProposals)
{
    for (int n = 3; n <= 5; ++n) {
        auto const quante = static_cast<std::size_t>(n);
        prova_scelte(quante, [=](int f) { return seme(f) == n - 3 || seme(f) == n - 2; });
        for (int v = 1; v <= 13; v += n - 2)
            prova_scelte(quante, [=](int f) { return valore(f) == v || valore(f) == v % 13 + 1; });
    }
}

TEST_F(Rules, RunsWithEachSingleDefect)
{
    for (auto const& intera : corse(2, 3, 14))
        for (auto k = intera.size(); k-- > 0;) {
            auto altra = intera, scambiata = intera, corta = intera, lunga = intera;
            for (altra[k] = 1; altra[k] <= 104; ++altra[k])
                prova({}, altra);
            std::swap(scambiata[k], scambiata[0]);
            prova({}, scambiata);
            corta.erase(corta.begin() + static_cast<int>(k));
            if (corta.size() >= 3)
                prova({}, corta);
            lunga.push_back((intera[k] + 51) % 104 + 1);
            if (lunga.size() <= 14)
                prova({}, lunga);
        }
}

TEST_F(Rules, RunsThatJoin)
{
    for (auto const& l : corse(1, 3, 14)) {
        for (auto const& r : corse(1, 3, 14))
            if (l.size() + r.size() <= 27)
                prova({l}, r);
        for (auto const& r : corse(1, 3, 3))
            for (int v = 1; v <= 13; ++v)
                for (int const striscia : {1, static_cast<int>(l.size()) + 3})
                    prova({l, r}, {13 + v}, striscia);
    }
    for (auto const& a : gruppi_e_corse(3))
        for (auto const& b : gruppi_e_corse(3))
            for (auto const& c : corse(1, 3, 3))
                prova({a, b}, c);
}

TEST_F(Rules, EachCardToEachMeld)
{
    auto& t = tavolo;
    Carte const altra{5, 6, 7, 8};
    for (auto const& c : gruppi_e_corse(14))
        for (int carta = 1; carta <= 104; ++carta) {
            prova({c, altra}, {carta});
            for (int const p : {1, 2}) {
                stendi(p, {c, altra, {carta}});
                t.pos_calata = static_cast<int>(c.size());
                t.esito_attacco = false;
                e_scala(c) ? attacco_scala(p) : attacco_poker(p);
                Calate attese{c, altra};
                bool const vale = e_scala(c) ? prolunga(c, carta) : va(c, carta);
                vale ? attacca(attese[0], carta) : attese.push_back({carta});
                ASSERT_TRUE(t.esito_attacco == vale && lista(p) == lista(attese))
                    << racconta(c) << nome_carta(carta);
            }
        }
    // a click anywhere in the row
    for (int striscia = 0; striscia < 26; ++striscia)
        for (int carta = 1; carta <= 52; ++carta)
            prova({{6, 19, 32}, altra, {51, 52, 40}}, {carta}, striscia);
}

TEST_F(Rules, TheComputersTurns)
{
    auto const stendi_tutto = [](Computer const& t) {
        EXPECT_TRUE(leggi_tavolo("turno 2 mano2" + racconta(t.mano) + " calate2" + racconta(lista(t.calate)) +
                                 " pozzo" + racconta(t.pozzo) + " tallone" +
                                 racconta({t.tallone.rbegin(), t.tallone.rend()})));
        return mostra() + std::string(tavolo.mappa(2).testo());
    };
    char const* const quanti = std::getenv("SOLLEVINO_TURNS");
    std::mt19937 g;
    for (int turni = quanti ? std::atoi(quanti) : 30000; turni > 0;) {
        auto t = a_caso(g);
        auto prima = stendi_tutto(t);
        for (int k = 0; k < 3 && !t.mano.empty(); ++k, --turni) {
            finestra.beeps = 0;
            semina_caso(static_cast<Single>(turni));
            turno(t, caso());
            semina_caso(static_cast<Single>(turni));
            ASSERT_TRUE(gioca(Gioco2()));
            ASSERT_TRUE(finestra.beeps == t.attaccato && tavolo.n_calo(1) == t.calato + t.attaccato) << prima;
            auto const dopo = mostra() + std::string(tavolo.mappa(2).testo());
            ASSERT_EQ(dopo, stendi_tutto(t)) << "from " << prima;
            prima = dopo;
        }
    }
}
