// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/task.h"

// One turn of the human, from the first click to the discard. The hand may lay and attach as often as the
// cards allow between draw and discard.
// Left:  the turn is over; n_carte(1) 0 if the human has gone out, by a
// discard or by a lay that took every card.
Task Gioco1();

// Sorts the human's hand, Kings first, Aces last, whatever the suits; gaps go behind the last card. No
// slot may be selected. n_carte is the caller's.
void raggruppo_carte();
