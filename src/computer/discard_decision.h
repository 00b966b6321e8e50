// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/task.h"

// Chooses the computer's discard and puts it on the pile: the most isolated card of its shortest suit, else
// one of two equal cards side by side, else any. May set off the reshuffle.
// Found: at least one card in the hand, closed up, mappa(2) true.
// Left:  the card on the pile, its slot 0. n_carte(2) is the caller's.
Task scarto_carta();

// Slot of the card that scarto_carta() would discard now. Draws from the random numbers only if neither an
// isolated card nor a pair of twins is found.
int scelgo_scarto();
