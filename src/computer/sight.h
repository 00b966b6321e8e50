// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the computer may see beyond its own row of the record: the pile's top and the next stock card, here and
// nowhere else. Its decisions read its own hand, map and melds in the record, and nothing of the human's cards,
// the rest of pile and stock, or the score. A check reads this folder for such words, and a test shuffles all of it
// and expects the same turn.
#pragma once

#include "game/table_state.h"

inline Carta cima_pozzo() { return tavolo.pozzo(tavolo.n_pozzo - 1); }         // the pile is not empty
inline Carta prossima_tallone() { return tavolo.mazzo(tavolo.cima_tallone); }  // the stock is not empty
