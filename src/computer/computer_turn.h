// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/task.h"

// One whole turn of the computer: it lays a meld if it finds one, attaches what it can, takes its one card
// and discards. The pile's top may stand in its last slot as a provisional card: it is taken only if it gets
// attached.
// Left: n_carte(2) true, 0 if the computer has gone out.
Task Gioco2();
