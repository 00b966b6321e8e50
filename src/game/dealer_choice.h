// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/task.h"

// The opening page of a match: each player cuts a card, the higher rank deals, the Ace is the lowest.
// Found: mazzo shuffled.
// Left:  cartaro 1 or 2, turno the other player, azione 0.
Task Scelta_Cartaro();
