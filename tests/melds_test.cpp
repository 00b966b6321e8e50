// SPDX-License-Identifier: GPL-3.0-or-later
#include "at_the_table.h"

#include "game/table_state.h"
#include "melds/table_melds.h"

#include <gtest/gtest.h>

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
