// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/task.h"
#include "window/surface.h"

// Where a click cuts a card. Fixed numbers, whatever the size of the window; the edges do not count.
inline constexpr Box area_scelta{480.8F, 334.32F, 542.0F, 431.31F};

// The opening page of a match: each player cuts a card, the higher rank deals, the Ace is the lowest.
// Found: mazzo shuffled.
// Left:  cartaro 1 or 2, turno the other player, azione 0.
Task Scelta_Cartaro();
