// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/task.h"

// Lays the computer's cards face up along the top of the table.
void scopro_carte();

// Scores the hand that is over and draws the table of games.
// Found: one hand is empty, the meld lists closed by their markers.
// Left:  punti and penali of row n_game, totale up to date, the panel on the table, white text.
Task risultato();

// What the melds of player p are worth, without bonus and penalty.
int valore_calate(int p);
