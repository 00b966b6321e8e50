// SPDX-License-Identifier: GPL-3.0-or-later
//
// A person may propose any meld, and the computer may be dealt any cards. Whole families of both, more than
// anybody would read, each with one number over all that comes of it; scenes/referee.txt and
// scenes/computer.txt tell some of them card by card.
#include "at_the_table.h"
#include "greedy_person.h"

#include "computer/computer_turn.h"
#include "game/random.h"
#include "game/table_state.h"
#include "human/human_turn.h"
#include "melds/meld_validation.h"
#include "melds/table_melds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <random>

namespace {

using Cards = std::vector<int>;
using Melds = std::vector<Cards>;

// The runs of these lengths from each rank on, the decks in turn.
Melds runs(int suit, int shortest, int longest)
{
    Melds all;
    for (int n = shortest * 13; n < (longest + 1) * 13; ++n) {
        auto& run = all.emplace_back();
        for (int k = 0; k < n / 13; ++k)
            run.push_back(suit * 13 + (n + k) % 13 + 1 + k % 2 * 52);
    }
    return all;
}

// All sets of three and of four, and the runs of all suits.
Melds sets_and_runs(int longest)
{
    Melds all;
    for (int rank = 1; rank <= 13; ++rank)
        for (int without = 0; without <= 4; ++without) {
            auto& set = all.emplace_back();
            for (int suit = 0; suit < 4; ++suit)
                if (suit + 1 != without)
                    set.push_back(suit * 13 + rank + (suit + rank) % 2 * 52);
        }
    for (int suit = 0; suit < 4; ++suit)
        std::ranges::move(runs(suit, 3, longest), std::back_inserter(all));
    return all;
}

struct Rules : testing::Test {
    Rules() { avvia_programma(); }

    void lay_out(int p, Melds melds, Cards const& tail = {})
    {
        auto& t = tavolo;
        t.n_calate(p) = 0;
        if (!tail.empty())
            melds.push_back(tail);
        for (auto const& cards : melds) {
            std::ranges::copy(cards, &t.calate(p, t.n_calate(p) + 1));
            chiudi_coda(p, static_cast<int>(cards.size()));
        }
    }

    // Lays or attaches the cards behind those melds by a click on that strip of the row.
    void propose(Melds const& melds, Cards const& cards, Single strip = 1)
    {
        auto& t = tavolo;
        t.n_scelte = static_cast<int>(cards.size());
        lay_out(1, melds, cards);
        controllo_calata(tavolo.centro_x - 200 + (strip - 0.5F) * tavolo.larg_carta / 5);
        fold(number, t.esito_attacco ? "+" : "-");
        fold(number, std::to_string(int{t.carta_scelta}));
        for (int i = 1; i <= t.n_calate(1); ++i)
            fold(number, std::to_string(int{t.calate(1, i)}));
    }

    // Each choice of n cards from some faces, a second copy only with the first, as a person can hold them:
    // by rank, those of one rank in any order, the card drawn last anywhere.
    template <class Among>
    void propose_choices(std::size_t n, Among const& among, Cards c = {}, int from = 0)
    {
        auto const face = [](int card) { return (card - 1) % 52 + 1; };
        for (int k = from; k < 104 && c.size() < n; ++k)
            if (int const f = k / 2 + 1; among(f) && (k % 2 == 0 || (!c.empty() && face(c.back()) == f))) {
                c.push_back(f + (k + f) % 2 * 52);
                propose_choices(n, among, c, k + 1);
                c.pop_back();
            }
        if (c.size() < n)
            return;
        std::ranges::sort(c);
        do
            if (std::ranges::is_sorted(c.begin(), c.end() - 1, std::greater(), ValCarta))
                propose({}, c);
        while (std::ranges::next_permutation(c).found);
    }

    std::uint64_t number = no_text;
};

}  // namespace

TEST_F(Rules, SmallProposals)
{
    for (int n = 3; n <= 5; ++n) {
        auto const many = static_cast<std::size_t>(n);
        propose_choices(many, [=](int f) { return Seme(f) == n - 2 || Seme(f) == n - 1; });
        for (int v = 1; v <= 13; v += n - 2)
            propose_choices(many, [=](int f) { return ValCarta(f) == v || ValCarta(f) == v % 13 + 1; });
    }
    EXPECT_EQ(number, 7097111433381576825U);
}

TEST_F(Rules, RunsWithEachSingleDefect)
{
    for (auto const& whole : runs(2, 3, 14))
        for (auto k = whole.size(); k-- > 0;) {
            auto other = whole, swapped = whole, shorter = whole, longer = whole;
            for (other[k] = 1; other[k] <= 104; ++other[k])
                propose({}, other);
            std::swap(swapped[k], swapped[0]);
            propose({}, swapped);
            shorter.erase(shorter.begin() + static_cast<int>(k));
            if (shorter.size() >= 3)
                propose({}, shorter);
            longer.push_back((whole[k] + 51) % 104 + 1);
            if (longer.size() <= 14)
                propose({}, longer);
        }
    EXPECT_EQ(number, 14002498279188121613U);
}

TEST_F(Rules, RunsThatJoin)
{
    for (auto const& left : runs(1, 3, 14)) {
        for (auto const& right : runs(1, 3, 14))
            if (left.size() + right.size() <= 27)
                propose({left}, right);
        for (auto const& right : runs(1, 3, 3))
            for (int rank = 1; rank <= 13; ++rank)
                for (auto const strip : {Single{1}, static_cast<Single>(left.size()) + 3})
                    propose({left, right}, {13 + rank}, strip);
    }
    auto const all = sets_and_runs(3);
    for (auto const& a : all)
        for (auto const& b : all)
            for (auto const& c : runs(1, 3, 3))
                propose({a, b}, c);
    EXPECT_EQ(number, 5002321639411454495U);
}

TEST_F(Rules, EachCardToEachMeld)
{
    for (auto const& meld : sets_and_runs(14))
        for (int card = 1; card <= 104; ++card)
            propose({meld, {5, 6, 7, 8}}, {card});
    tavolo.larg_carta = 65;  // on the edges of the regions to the last bit, and on either side
    for (int quarter = 0; quarter < 104; ++quarter)
        for (int card = 1; card <= 52; ++card)
            propose({{6, 19, 32}, {5, 6, 7, 8}, {51, 52, 40}}, {card},
                    static_cast<Single>(quarter) / 4 + 0.5F);
    EXPECT_EQ(number, 13918750097636684310U);
}

// Three turns each from up to three melds, a hand and the piles, with room in the list for what they add.
TEST_F(Rules, TheComputersTurns)
{
    auto const melds = sets_and_runs(14);
    std::mt19937 random;
    auto const below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    for (int table = 0; table < 5000; ++table) {
        auto& t = tavolo;
        t = {};
        t.turno = 2;
        t.velocita = 1;
        std::size_t room = 24;
        Melds laid;
        for (int n = below(4); n > 0; --n)
            if (auto const& meld = melds[random() % melds.size()]; meld.size() + 4 < room) {
                laid.push_back(meld);
                room -= meld.size() + 1;
            }
        lay_out(2, laid);
        Cards deck(104);
        std::iota(deck.begin(), deck.end(), 1);
        std::ranges::shuffle(deck, random);
        std::ranges::copy(deck, &t.mazzo(1));
        t.cima_tallone = 80;
        t.n_carte(2) = 1 + below(static_cast<int>(std::min<std::size_t>(room, 13)));
        std::copy_n(deck.begin(), int{t.n_carte(2)}, &t.mano(2, 1));
        t.n_pozzo = 1 + below(3);
        std::copy_n(deck.begin() + 14, int{t.n_pozzo}, &t.pozzo(0));
        t.mappa(2).vuota();
        for (int s = 1; s <= t.n_carte(2); ++s)
            t.mappa(2).segna(t.mano(2, s));
        azzera_caso(-1);
        semina_caso(static_cast<Single>(table));
        for (int turn = 0; turn < 3 && t.n_carte(2) > 0; ++turn) {
            ASSERT_TRUE(gioca(Gioco2()));
            fold(number, mostra());
            fold(number, t.mappa(2).testo());
        }
        finestra.log.clear();
        superficie.clear();
    }
    EXPECT_EQ(number, 11413838185352279923U);
}

// No later step reads it, and no picture shows it.
TEST_F(Rules, ASelectionThatIsRefusedStandsBehindTheList)
{
    apparecchia("mano *9S *3H QC calate 5D 6D 7D |");
    gioca(Gioco1());
    clic_calate(x_calate(1));
    EXPECT_EQ(tavolo.calate(1, 5), carta_da("9S"));
    EXPECT_EQ(tavolo.calate(1, 6), carta_da("3H"));
}
