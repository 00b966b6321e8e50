// SPDX-License-Identifier: GPL-3.0-or-later
#include "silent_window.h"

#include "window/surface.h"

#include <gtest/gtest.h>

#include <algorithm>

TEST(Surface, PrintsBehindTheLastTextOrOnTheNextLine)
{
    avvia_programma();
    Surface s;
    EXPECT_EQ(s.font(), (Font{"MS Sans Serif", 7.8F}));
    s.font_size(8);
    Single const high = text_height(s.font());
    s.print_at(880, 364);
    s.print("");
    s.print("by ");
    EXPECT_FLOAT_EQ(s.current_x(), 880 + text_width("by ", s.font()));
    s.print_line("Cartovendo");
    EXPECT_EQ(s.current_x(), 0);
    EXPECT_FLOAT_EQ(s.current_y(), 364 + high);
    s.print_line("");
    EXPECT_FLOAT_EQ(s.current_y(), 364 + 2 * high);
    ASSERT_EQ(s.marks().size(), 2U);
    EXPECT_EQ(s.marks().back().box.x1, s.marks().front().box.x2);

    s.clear();
    EXPECT_TRUE(s.marks().empty());
    EXPECT_FLOAT_EQ(s.current_y(), 364 + 2 * high);
    EXPECT_EQ(s.font().punti, 8);

    s.print("once");
    s.print_at(0, s.current_y());
    s.text_colour(colori::giallo);
    s.print("once");
    EXPECT_EQ(s.marks().size(), 1U) << "the same words in another colour";
    s.print_at(0, s.current_y());
    s.font_size(9);
    s.print("once");
    EXPECT_EQ(s.marks().size(), 2U) << "but not in another size";

    s.print(std::string(40, 'x'));
    Surface copy = s;
    s.clear();
    EXPECT_EQ(std::ranges::count(copy.marks().back().testo, 'x'), 40)
        << "a copy keeps the words of its marks";
}
