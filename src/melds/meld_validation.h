// SPDX-License-Identifier: GPL-3.0-or-later
//
// The referee of the human's melds. It knows only good and bad pairs of neighbours: a step of a run or a step
// of a set. Tris, poker and the kinds of run are told apart at scoring, by their length.
#pragma once

#include "game/bounded.h"

// Judges the tail of the human's list; x is the click's, in grid units.
// Found: n_scelte cards in the tail: 1, with at least one meld in front of it, or 3 and more.
// Left:  esito_attacco. If it is false the tail is still there and the caller takes it off. If it is true a new
//        meld stays, or has joined a run beside it; an attached card stands in its meld, the tail gone.
// Disturbs the order inside all melds.
void controllo_calata(Single x);

// Puts each meld of p in table order: by rank, and turned behind the first gap, so that a run may pass
// through the Ace. A set turns by one card at each pass, which harms nothing and shows.
void ord_crescente_calata(int p);
