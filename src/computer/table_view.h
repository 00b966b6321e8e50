// SPDX-License-Identifier: GPL-3.0-or-later
//
// All that the computer may know of the table. Its decisions look through here and nowhere else: its own hand
// and melds, the pile's top, and the next stock card. It never reads the human's cards, the rest of pile and
// stock, or the score.
#pragma once

#include "game/table_state.h"

inline Carta cima_pozzo() { return tavolo.pozzo(tavolo.n_pozzo - 1); }         // the pile is not empty
inline Carta prossima_tallone() { return tavolo.mazzo(tavolo.cima_tallone); }  // the stock is not empty
