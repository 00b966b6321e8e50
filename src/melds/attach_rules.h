// SPDX-License-Identifier: GPL-3.0-or-later
//
// Attaching one card to a meld on the table.
// Found: the card as a one-card tail of p's list, the last card of the target at pos_calata.
// Left:  esito_attacco true, the card in the meld and the tail gone; or the list untouched, with the tail.
//        carta_scelta the card.
// Neither looks at what kind of meld it has been given: that is the caller's matter, as is the suit of a run.
// A run may be out of order until ord_crescente_calata(p).
#pragma once

// The missing suit of a tris. A full poker, or a wrong suit, leaves esito_attacco as it is.
void attacco_poker(int p);

// One rank at either end of a run. Ranks alone count.
void attacco_scala(int p);

// One rank above, the Ace following the King.
constexpr bool segue(int sotto, int sopra) { return sopra - sotto == 1 || sopra - sotto == -12; }

// Whether a card of that rank carries on a run from rank prima to rank ultima at either end.
constexpr bool prolunga(int valore, int prima, int ultima)
{
    return segue(valore, prima) || segue(ultima, valore);
}

inline constexpr int somma_semi = 10;  // the four suits; what three of them lack is the fourth
