// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/task.h"

// Draws the table and deals a hand: 13 cards to the player who does not deal, 13 to the dealer, one turned up.
// Found: cartaro 1 or 2, empty hands and maps, n_carte 13 for both.
// Left:  hands, maps, pile and stock ready for the first turn, azione 0. mazzo(1..27) keep copies.
Task daicarte();

// The title at the right edge of the table. Leaves Arial 8 and white.
void disegno_titolo();
