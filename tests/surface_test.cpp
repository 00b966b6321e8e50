// SPDX-License-Identifier: GPL-3.0-or-later
#include "greedy_person.h"
#include "silent_window.h"

#include "game/table_state.h"
#include "window/surface.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

// What is left of the marks: f a fill, o an outline, l a line, p a picture, t a text.
std::string kinds(Surface const& s)
{
    std::string text;
    for (auto const& m : s.marks())
        text += "folpt"[static_cast<int>(m.kind)];
    return text;
}

void write(Surface& s, Single x, Single y, std::string_view words, Colore colore = colori::bianco)
{
    s.print_at(x, y);
    s.text_colour(colore);
    s.print(words);
}

}  // namespace

TEST(Surface, DropsWhatIsHiddenForCertainAndNothingElse)
{
    avvia_programma();
    using Draw = void (*)(Surface&);
    struct Row {
        char const* what;
        Draw draw;
        char const* left;
    };
    for (auto const& [what, draw, left] : {
             Row{"a fill hides what lies in its box",
                 [](Surface& s) {
                     s.paint_picture(1, 10, 10, 66, 104);
                     s.outline_box({20, 20, 200, 150}, colori::cornice);
                     write(s, 20, 20, "Game");
                     s.line(150, 20, 150, 150, colori::cornice);
                     s.fill_box({0, 0, 200, 150}, colori::fascia);
                 },
                 "f"},
             Row{"but not what stands out of it",
                 [](Surface& s) {
                     s.paint_picture(1, 180, 10, 66, 104);
                     write(s, 190, 20, "Game");
                     s.line(200, 20, 200, 150, colori::cornice);  // as thick as a unit, to the right
                     s.fill_box({0, 0, 200, 150}, colori::fascia);
                 },
                 "ptlf"},
             Row{"the corners of a card let the table shine through",
                 [](Surface& s) {
                     s.fill_box({10, 10, 76, 114}, colori::fascia);
                     write(s, 20, 20, "Game");
                     s.paint_picture(1, 10, 10, 66, 104);
                     s.paint_picture(2, 11, 10, 66, 104);
                 },
                 "ftpp"},
             Row{"a card takes the place of another one",
                 [](Surface& s) {
                     s.paint_picture(1, 10, 10, 66, 104);
                     s.paint_picture(dorsov(0), 10, 10, 66, 104);
                 },
                 "p"},
             Row{"a text takes the place of the same words",
                 [](Surface& s) {
                     write(s, 10, 10, "Player1", colori::cornice);
                     write(s, 10, 10, "Player1", colori::bianco);
                     write(s, 10, 10, "Player2");
                     s.font_size(9);
                     write(s, 10, 10, "Player1");
                 },
                 "ttt"},
             Row{"what grows over itself stays one mark",
                 [](Surface& s) {
                     for (Single i = 1; i < 200; i += 3)
                         s.fill_box({512, 254, 512 - i, 494}, colori::cornice);
                 },
                 "f"},
             Row{"wiping an empty place leaves no mark",
                 [](Surface& s) {
                     s.paint_picture(1, 10, 10, 66, 104);
                     s.fill_box({0, 0, 80, 120}, colori::tavolo);
                     s.fill_box({0, 0, 470, 35}, colori::tavolo);
                 },
                 ""},
             Row{"wiping half of something leaves one",
                 [](Surface& s) {
                     s.paint_picture(1, 10, 10, 66, 104);
                     s.fill_box({0, 0, 40, 120}, colori::tavolo);
                 },
                 "pf"},
         }) {
        Surface s;
        draw(s);
        EXPECT_EQ(kinds(s), left) << what;
    }
}

TEST(Surface, PrintsBehindTheLastTextOrOnTheNextLine)
{
    avvia_programma();
    Surface s;
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
    ASSERT_EQ(kinds(s), "tt");
    EXPECT_EQ(s.marks()[1].box.x1, s.marks()[0].box.x2);

    s.clear();
    EXPECT_EQ(kinds(s), "");
    EXPECT_FLOAT_EQ(s.current_y(), 364 + 2 * high);
    EXPECT_EQ(s.font().punti, 8);
}

TEST(Surface, StaysShortThroughWholeMatches)
{
    std::size_t most = 0;
    gioca_partite(5, 11, [&] { most = std::max(most, superficie.marks().size()); });
    EXPECT_GT(most, 40U) << "somebody must have drawn";
    EXPECT_LT(most, 150U);
}
