// SPDX-License-Identifier: GPL-3.0-or-later
//
// The spine: match after match, hand after hand, turn after turn.
#pragma once

#include "game/task.h"

// Plays matches for ever. Found: the measures of the table set. The user's flags and clicks reach it through
// continua, nuova_partita and azione.
Task Main();

// Sets up the record for a new hand: hands, melds and piles empty, 13 cards each announced, names read anew.
void Gioco_Imposta();
