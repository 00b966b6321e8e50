// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

enum Fonte { dal_pozzo = 1, dal_tallone = 2 };

// Takes the top of the pile or the next stock card into the computer's hand, behind its last slot, and
// repaints the place that the card left. The map is stale afterwards; pescato is the caller's.
void pesco_carta(int fonte);
