// SPDX-License-Identifier: GPL-3.0-or-later
//
// The rules told a second time, on plain lists of cards and apart from the game's own code, for the tests to
// compare the two card by card.
#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <numeric>
#include <vector>

namespace regole {

using Carte = std::vector<int>;     // codes 1 to 104, in their order on the table or in the hand
using Calate = std::vector<Carte>;  // the melds of a player, oldest first

inline int valore(int carta) { return (carta - 1) % 13 + 1; }
inline int seme(int carta) { return (carta - 1) / 13 % 4; }  // 0 to 3
inline int faccia(int carta) { return (carta - 1) % 52 + 1; }
inline bool segue(int sotto, int sopra) { return valore(sopra) == valore(sotto) % 13 + 1; }

// What the cards show of one kind, a bit each; how many there are, from one to another.
using Insieme = std::uint64_t;
inline Insieme tutti(Carte const& c, int (*che)(int))
{
    Insieme s = 0;
    for (int const carta : c)
        s |= Insieme{1} << che(carta);
    return s;
}
inline int quanti(Insieme s, int da = 0, int a = 63) { return std::popcount(s >> da << (63 - a + da)); }

// A tris or a poker: three or four of one rank, each of another suit.
inline bool gruppo(Carte const& c)
{
    return c.size() >= 3 && quanti(tutti(c, valore)) == 1 &&
           quanti(tutti(c, seme)) == static_cast<int>(c.size());
}

// A run: three or more ranks of one suit, without a gap on the circle of Ace and King, each once; or the
// whole circle and one of them twice.
inline bool scala(Carte const& c)
{
    auto const v = tutti(c, valore), col_seguente = v >> 1 | (v & 2) << 12;
    int const n = static_cast<int>(c.size());
    return n >= 3 && quanti(tutti(c, seme)) == 1 && quanti(v & ~col_seguente) <= 1 &&
           (n == quanti(v) || (n == 14 && quanti(v) == 13));
}

// What the referee asks: is each pair of neighbours a step of a run or of a set? No step of a set comes back
// to a suit that one has left.
inline bool passa(Carte const& c)
{
    Insieme lasciati = 0;
    auto const storta = [&](int a, int b) {
        if (seme(a) == seme(b))
            return !segue(a, b);
        lasciati |= Insieme{1} << seme(a);
        return valore(a) != valore(b) || (lasciati >> seme(b) & 1);
    };
    return std::ranges::adjacent_find(c, storta) == c.end();
}

// Each by rank, the cards up to the first gap behind the others.
inline void ordina(Calate& calate)
{
    for (auto& c : calate) {
        std::ranges::stable_sort(c, {}, valore);
        auto const gap =
            std::ranges::adjacent_find(c, [](int a, int b) { return valore(b) != valore(a) + 1; });
        if (gap != c.end())
            std::rotate(c.begin(), gap + 1, c.end());
    }
}

// Neighbours that carry each other on become one, each gap looked at once, from left to right.
inline void unisci(Calate& calate)
{
    for (auto l = calate.begin(); l + 1 != calate.end();) {
        auto const r = l + 1;
        bool const scale = valore(l->back()) != valore(l->end()[-2]) && valore((*r)[0]) != valore((*r)[1]);
        if (scale && seme(l->back()) == seme((*r)[0]) &&
            (segue(l->back(), (*r)[0]) || segue(r->back(), (*l)[0]))) {
            l->insert(l->end(), r->begin(), r->end());
            calate.erase(r);
        } else {
            l = r;
        }
    }
}

// What a meld on the table takes: a run its suit's next rank at either end, a tris the suit that it lacks.
inline bool e_scala(Carte const& c) { return seme(c.back()) == seme(c.end()[-2]); }
inline bool prolunga(Carte const& c, int carta) { return segue(carta, c[0]) || segue(c.back(), carta); }
inline bool va(Carte const& c, int carta)
{
    return e_scala(c)
               ? seme(carta) == seme(c.back()) && prolunga(c, carta)
               : c.size() == 3 && valore(carta) == valore(c[0]) && (tutti(c, seme) >> seme(carta) & 1) == 0;
}
inline void attacca(Carte& c, int carta) { c.insert(c.end() - 1, carta); }

// One card is attached to the meld clicked at, three and more are a new meld. Of the strips of the row,
// counted from 1, each meld owns two more than it has cards and the last a further six; the click is on one
// below 60. Returns whether the referee accepts, and leaves the melds as he does.
inline bool giudica(Calate& calate, Carte const& nuova, std::size_t striscia)
{
    bool const attacco = nuova.size() == 1;
    if (attacco) {
        std::vector<Carte*> padrona(1);
        for (auto& c : calate)
            padrona.insert(padrona.end(), c.size() + (&c == &calate.back() ? 8 : 2), &c);
        padrona.resize(60);
        auto* const c = padrona[striscia];
        if (!c || !va(*c, nuova[0]))
            return false;
        attacca(*c, nuova[0]);
        if (!e_scala(*c))
            return true;
        ordina(calate);
    } else {
        calate.push_back(nuova);
    }
    ordina(calate);
    bool const buone = std::ranges::all_of(calate, passa);
    if (buone)
        unisci(calate);
    else if (!attacco)
        calate.pop_back();
    return buone || attacco;
}

// The computer: its hand and melds, pile and stock with their tops last; what it has done this turn.
struct Computer {
    Carte mano;
    Calate calate;
    Carte pozzo, tallone;
    int calato = 0, attaccato = 0;
};

// Of a suit's ranks from da to a the hand holds v and no other.
inline bool solo(Insieme facce, int s, int v, int da, int a)
{
    return (facce >> (s * 13 + v) & 1) && quanti(facce, s * 13 + da, s * 13 + a) == 1;
}

// What it looks for, in this order: in the first suit the longest run, the lowest first; then the lowest rank
// in four or three suits.
inline Calate cercate(bool scale)
{
    Calate tutte;
    for (int s = 0; s < 4 && scale; ++s)
        for (int lung = 13; lung >= 3; --lung)
            for (int v = 1; v + lung <= 14; ++v) {
                auto& c = tutte.emplace_back(static_cast<std::size_t>(lung));
                std::iota(c.begin(), c.end(), s * 13 + v);
            }
    for (int v = 1; v <= 13 && !scale; ++v)
        for (auto c : Calate{{0, 13, 26, 39}, {0, 13, 26}, {0, 13, 39}, {0, 26, 39}, {13, 26, 39}}) {
            for (int& carta : c)
                carta += v;
            tutte.push_back(c);
        }
    return tutte;
}

// A run with the pile's top, a run with the stock's next card, a set with the one, with the other: the first
// is laid, in cards of the first deck, and the card taken, be it in the meld or not.
inline bool cala(Computer& t)
{
    static Calate const scale = cercate(true), gruppi = cercate(false);
    for (auto const* tutte : {&scale, &gruppi})
        for (auto* fonte : {&t.pozzo, &t.tallone}) {
            auto mano = t.mano;
            mano.push_back(fonte->back());
            auto const facce = tutti(mano, faccia);
            auto const c =
                std::ranges::find_if(*tutte, [&](auto const& x) { return (tutti(x, faccia) & ~facce) == 0; });
            if (c == tutte->end())
                continue;
            fonte->pop_back();
            for (int const carta : *c)
                mano.erase(std::ranges::find(mano, carta, faccia));
            t.mano = mano;
            t.calate.push_back(*c);
            ++t.calato;
            return true;
        }
    return false;
}

// Each meld takes the first card that fits; but a hand of four and more keeps what would go to a run if it
// has a neighbour there. Until a card has been taken the hand's last is a loan from the pile.
inline void attacca_tutto(Computer& t, bool& pescato)
{
    for (auto& c : t.calate) {
        auto const facce = tutti(t.mano, faccia);
        auto const carta = std::ranges::find_if(t.mano, [&](int m) {
            int const v = valore(m);
            return va(c, m) && (!e_scala(c) || t.mano.size() < 4 ||
                                solo(facce, seme(m), v, v - (v > 1) - (v == 13), v + (v < 13) + (v == 1)));
        });
        if (carta == t.mano.end())
            continue;
        if (!pescato && carta + 1 == t.mano.end()) {
            pescato = true;
            t.pozzo.pop_back();
        }
        attacca(c, *carta);
        t.mano.erase(carta);
        ++t.attaccato;
        if (e_scala(c))
            ordina(t.calate);
    }
}

// In the first held suit of the fewest ranks the Ace without the next three, the King without the three
// below, the lowest card with the most room on both sides. Else the first of two twins side by side. Else by
// chance, a number from 0 to below 1.
inline Carte::iterator scarto(Carte& mano, float caso)
{
    auto const facce = tutti(mano, faccia);
    auto const pochi = [&](int s) { return (quanti(facce, s * 13 + 1, s * 13 + 13) + 13) % 14; };
    int const semi[] = {0, 1, 2, 3};
    int const s = *std::ranges::min_element(semi, {}, pochi);
    int scelto = solo(facce, s, 1, 1, 4) ? 1 : solo(facce, s, 13, 10, 13) ? 13 : 0;
    for (int posto = 6; posto >= 1; --posto)
        for (int v = 1 + posto; v <= 13 - posto && scelto == 0; ++v)
            if (solo(facce, s, v, v - posto, v + posto))
                scelto = v;
    auto const gemella = std::ranges::adjacent_find(mano, {}, faccia);
    return scelto != 0             ? std::ranges::find(mano, s * 13 + scelto, faccia)
           : gemella != mano.end() ? gemella
                                   : mano.begin() + static_cast<int>(static_cast<float>(mano.size()) * caso);
}

// One turn. Without a meld to lay, the pile's top is on loan until the attaches are done.
inline void turno(Computer& t, float caso)
{
    t.calato = t.attaccato = 0;
    bool pescato = t.mano.size() >= 4 && cala(t);
    if (!pescato)
        t.mano.push_back(t.pozzo.back());
    attacca_tutto(t, pescato);
    if (!pescato) {
        t.mano.back() = t.tallone.back();
        t.tallone.pop_back();
    }
    if (t.mano.empty())
        return;
    auto const carta = scarto(t.mano, caso);
    t.pozzo.push_back(*carta);
    t.mano.erase(carta);
}

}  // namespace regole
