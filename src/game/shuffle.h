// SPDX-License-Identifier: GPL-3.0-or-later
//
// The two shuffles. Entries 1 to 26 of mazzo go to the hands, 27 is the first discard, 28 to 104 are the
// stock, whose next card is mazzo(cima_tallone).
#pragma once

#include "game/task.h"

// A new order of all 104 cards in mazzo(1) to mazzo(104). Paints nothing.
void Mescola();

// Found: 78 cards in the pile, an empty stock, its picture wiped out.
// Left:  one card on the pile, 77 in the stock. Hands and melds are not touched.
Task Rimescola();

// The end of every discard: when pile and stock are 78 and 0 cards, a new stock is made of the pile.
Task rimescola_se_finito();
