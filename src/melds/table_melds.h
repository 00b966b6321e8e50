// SPDX-License-Identifier: GPL-3.0-or-later
//
// All melds of a player as one flat list: the cards of a meld in consecutive positions from 1 on, the marker
// 1000 behind each meld, n_calate the position of the last marker. A meld's kind is not stored; its last two
// cards tell it. What is about to be judged stands behind the last marker as a meld of its own: the tail.
// The list itself checks nothing.
#pragma once

#include "game/table_state.h"

// Draws the row of player p and counts in n_calo. Once after each change that the table has to show.
void calo_carte(int p);

// Whether a tail of k cards and its marker have room.
bool posto_per_coda(int p, int k);

// Makes the k cards behind the last marker a tail. Found: they are written, and there is room.
void chiudi_coda(int p, int k);

// Takes a refused tail of k cards off again.
void togli_coda(int p, int k);

// First card of the meld whose last card stands at ultima; last card of the meld whose first stands at prima.
int prima_carta(int p, int ultima);
int ultima_carta(int p, int prima);

inline bool segno(int p, int i) { return tavolo.calate(p, i) == segnacalata; }

// The meld whose last card stands at ultima is a run if its last two cards are of one suit, else a set.
bool scala(int p, int ultima);

// Puts the card of a one-card tail into the meld whose last card stands at ultima, in front of that card.
void inserisci_coda(int p, int ultima);

// Makes one meld of the two on either side of the marker at i.
void togli_segno(int p, int i);
