// SPDX-License-Identifier: GPL-3.0-or-later
//
// A rectangle in grid units: 1024 by 768 over the client area, origin at the top left, y downward.
#pragma once

#include "game/bounded.h"

// Two corners, in any order when drawn; x1 <= x2 and y1 <= y2 once on the surface.
struct Box {
    Single x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    constexpr bool operator==(Box const&) const = default;
    constexpr bool contains(Box const& b) const
    {
        return x1 <= b.x1 && y1 <= b.y1 && b.x2 <= x2 && b.y2 <= y2;
    }
    // Strictly inside: the edges do not count.
    constexpr bool around(Single x, Single y) const { return x > x1 && x < x2 && y > y1 && y < y2; }
};
