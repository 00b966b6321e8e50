// SPDX-License-Identifier: GPL-3.0-or-later
#include "silent_window.h"

#include "game/piles.h"
#include "game/table_state.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

struct Scale {
    Single x, y;  // pixels to a grid unit
};
Scale scale(Pixels p)
{
    return {static_cast<Single>(p.width) / griglia_x, static_cast<Single>(p.height) / griglia_y};
}

void resize(Pixels p)
{
    client_size(p);
    Form_Resize();
}

}  // namespace

// Client areas of a maximised window on screens of 1024x768 to 3840x2160, of a phone's shape and of a
// pillar's.
TEST(Form1, OpensWithCardsAsLargeAsTheTableAllowsAndInShape)
{
    for (Pixels const size : {Pixels{1024, 718}, Pixels{1366, 718}, Pixels{1920, 1030}, Pixels{1280, 974},
                              Pixels{3840, 2110}, Pixels{2340, 1040}, Pixels{900, 1500}}) {
        SCOPED_TRACE(std::to_string(size.width) + "x" + std::to_string(size.height));
        avvia_programma(size);
        auto const& t = tavolo;
        auto const [ux, uy] = scale(size);
        EXPECT_EQ(t.centro_x, 512);
        EXPECT_EQ(t.centro_y, 384);
        EXPECT_LE(x_mano(max_mano + 1), griglia_x) << "fourteen cards fit";
        EXPECT_LE(y_mano_umano + t.alt_carta, griglia_y);
        EXPECT_LE(t.larg_carta, 66.1F);
        EXPECT_LE(t.alt_carta, 103.8F);
        EXPECT_TRUE(t.larg_carta > 66.0F || t.alt_carta > 103.6F) << "a larger one would have fitted";

        Single const larg = t.larg_carta * ux, alt = t.alt_carta * uy;  // pixels
        EXPECT_NEAR(larg, alt * 96 / 153, 0.5F);
        EXPECT_NEAR(pixels_per_point(),
                    std::min(ux * 20 / (15 * t.scala_x), uy * 20 * 768 / (11688 * t.scala_y)), 0.002F)
            << "a point is 20 twips";
        EXPECT_LT(pixels_per_point() * 8 * 12, 260 * ux) << "half a line of the table of games has room";
        EXPECT_NEAR(points_to_grid(10) * uy, pixels_per_point() * 10, 0.001F);
    }
}

TEST(Form1, IsTheReferenceWindowAtItsSize)
{
    avvia_programma({2048, 1558});
    EXPECT_NEAR(tavolo.larg_carta, 66.05F, 0.03F);
    EXPECT_NEAR(tavolo.alt_carta, 103.75F, 0.02F);
    EXPECT_NEAR(tavolo.scala_x, 1, 0.001F);
    EXPECT_NEAR(tavolo.scala_y, 1, 0.001F);
    EXPECT_NEAR(pixels_per_point(), 20 / 7.5F, 0.005F);
}

TEST(Form1, AResizeTouchesOnlyTheDimensionThatChanged)
{
    avvia_programma({1366, 718});
    move_to(Control::TxtHelp, 100, 50);
    auto const before = control(Control::TxtHelp);
    auto const card = std::pair(tavolo.larg_carta, tavolo.alt_carta);
    auto const place = control_box(Control::TxtHelp);
    Single const scala_x = tavolo.scala_x, scala_y = tavolo.scala_y, point = pixels_per_point();

    resize({1366, 718});
    auto now = control(Control::TxtHelp);
    EXPECT_EQ(std::tuple(now.left, now.top, now.width, now.height),
              std::tuple(before.left, before.top, before.width, before.height));

    resize({1366, 359});
    now = control(Control::TxtHelp);
    EXPECT_EQ(std::pair(now.left, now.width), std::pair(before.left, before.width));
    EXPECT_NEAR(now.top, before.top / 2, 0.01F);
    EXPECT_NEAR(now.height, before.height / 2, 0.5F);
    EXPECT_EQ(tavolo.scala_x, scala_x);
    EXPECT_NEAR(tavolo.scala_y, scala_y / 2, 0.0001F);
    EXPECT_EQ(std::round(tavolo.scala_y * 12360), tavolo.scala_y * 12360) << "whole twips";
    EXPECT_EQ(pixels_per_point(), point) << "letters keep their size";

    auto const short_one = now;
    resize({683, 359});
    now = control(Control::TxtHelp);
    EXPECT_EQ(std::pair(now.top, now.height), std::pair(short_one.top, short_one.height));
    EXPECT_NEAR(now.left, before.left / 2, 0.05F);
    EXPECT_NEAR(now.width, before.width / 2, 0.5F);

    auto const stretched = control_box(Control::TxtHelp);
    EXPECT_NEAR(stretched.x1, place.x1, 0.05F) << "the grid stretches as the controls do";
    EXPECT_NEAR(stretched.y2, place.y2, 0.05F);
    EXPECT_EQ(std::pair(tavolo.larg_carta, tavolo.alt_carta), card);
    EXPECT_EQ(tavolo.centro_x, 512);
}

TEST(Form1, ComesBackFromAnySizeAsItWas)
{
    avvia_programma({1920, 1030});
    auto const before = control_box(Control::Shape1_1);
    for (Pixels const p :
         {Pixels{1, 1}, Pixels{5000, 3}, Pixels{0, -7}, Pixels{640, 480}, Pixels{1920, 1030}})
        resize(p);
    auto const after = control_box(Control::Shape1_1);
    EXPECT_NEAR(after.x2, before.x2, before.x2 / 1000);
    EXPECT_NEAR(after.y2, before.y2, before.y2 / 1000);
}

TEST(Form1, TheClosingAreaLiesWhereTheClickIsLookedFor)
{
    avvia_programma({1280, 974});
    menu(Menu::personalize_players);
    Box const area = control_box(Control::Shape1_1);
    EXPECT_NEAR(area.x1, 75, 0.001F);
    EXPECT_NEAR(area.y1, 115, 0.001F);
    EXPECT_NEAR(area.x2 - area.x1, 1152 * 1024 / 15360.0F, 0.001F);
    EXPECT_NEAR(area.y2 - area.y1, 192 * 768 / 11688.0F, 0.001F);
    EXPECT_GT(control(Control::Shape1_0).order, control(Control::Shape1_1).order);
    EXPECT_FALSE(control(TxtPlayer(3)).visible);
}
