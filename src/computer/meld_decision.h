// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Looks for a meld in the computer's hand together with the pile's top, else with the next stock card: first
// a run, then three or four of a kind. Lays the first one found that has room in the list, which also settles
// where the card of the turn comes from.
// Found: mappa_copia and mappa(2) true, n_decise 0, a card in the pile and one in the stock.
// Left:  n_decise 0 and nothing changed; or 1 (pile) or 2 (stock), the card taken, the meld at the end of
//        calate in codes of the first deck, the hand closed up, mappa(2) stale.
void decido_calata();
