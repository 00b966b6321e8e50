// SPDX-License-Identifier: GPL-3.0-or-later
//
// How the computer reads its hand: a suit at a time, as a row of 13 characters in which it searches for
// patterns, so that none can run from one suit into the next or from King to Ace.
#pragma once

#include "game/card_model.h"

#include <string_view>

inline constexpr std::string_view niente_del_seme = "_____________";

// Code of the first deck for suit index 0 to 3 and rank 1 to 13.
constexpr int codice(int seme, int valore) { return seme * 13 + valore; }

// First slot of the hand that holds the face, in either deck; 0 if none does.
int slot_di(int giocatore, int codice_primo_mazzo);

// Closes the gaps (slots of 0) in a hand, in their order, and counts it. Slots above n_carte keep what they
// had.
void compatto_mano(int giocatore);

// Builds the map of a hand anew. No slot up to n_carte may be empty.
void rifaccio_mappa(int giocatore);

// Repaints the computer's row of backs, for as many cards as it holds.
void disegno_dorsi();
