// SPDX-License-Identifier: GPL-3.0-or-later
//
// The table in words at every wait of a few matches: each place once, clicks where they count, no hidden card.
#include "greedy_person.h"

#include "game/table_state.h"
#include "human/pointer_input.h"
#include "spoken/table_words.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

using namespace spoken;
using Kind = Place::Kind;

namespace {

std::string all_words()
{
    std::string text;
    for (auto const& item : table_words())
        text += item.name + '\n';
    return text;
}

// What a left click in the middle of the item would ask of the game; the table is as before.
int asked(Item const& item)
{
    auto const before = tavolo;
    Form_MouseDown(1, 0, (item.box.x1 + item.box.x2) / 2, (item.box.y1 + item.box.y2) / 2);
    bool const slot = item.place.kind != Kind::hand_card ||
                      static_cast<int>(tavolo.click_x / tavolo.larg_carta) + 1 == item.place.index;
    int const azione = slot ? int{tavolo.azione} : -1;
    tavolo = before;
    return azione;
}

}  // namespace

TEST(Spoken, IsTrueAtEachWaitOfAnEvening)
{
    std::map<Kind, int> const wanted{{Kind::pile, azioni::pesca_pozzo},
                                     {Kind::stock, azioni::pesca_tallone},
                                     {Kind::own_meld, azioni::cala},
                                     {Kind::lay, azioni::cala},
                                     {Kind::hand_card, azioni::scarta}};
    int clicks = 0;
    gioca_partite(3, 7, [&] {
        std::set<Place> places;
        int cards = 0;
        for (auto const& item : table_words()) {
            ASSERT_TRUE(places.insert(item.place).second) << item.name;
            ASSERT_FALSE(item.name.empty());
            cards += item.place.kind == Kind::hand_card;
            if (item.left && human_to_move()) {
                ASSERT_EQ(asked(item), wanted.at(item.place.kind)) << item.name;
                ++clicks;
            }
        }
        ASSERT_TRUE(!human_to_move() || cards == tavolo.n_carte(umano));

        auto const words = all_words();
        auto const before = tavolo;
        for (int s = 1; s <= max_mano; ++s)
            tavolo.mano(computer, s) = 1;
        for (int i = tavolo.cima_tallone; i > 0 && i <= carte_mazzo; ++i)
            tavolo.mazzo(i) = 1;
        ASSERT_EQ(all_words(), words) << "other hidden cards are told the same";
        tavolo = before;
    });
    EXPECT_GT(clicks, 10000);
}
