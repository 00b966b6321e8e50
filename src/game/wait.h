// SPDX-License-Identifier: GPL-3.0-or-later
//
// The one timed wait. Events of the window run while the game waits.
#pragma once

#include "game/bounded.h"
#include "game/task.h"

// Waits tempo * 6500 / velocita milliseconds, counted from now. A change of velocita counts from the next
// wait.
Task ritardo(Single tempo);

// The timer has fired: the wait that runs is over.
void Timer1_Timer();
