// SPDX-License-Identifier: GPL-3.0-or-later
//
// Telling a hand: a table laid out from its text, a person's actions by the names of the cards, and how it
// stands afterwards.
#pragma once

#include "game/table_text.h"
#include "silent_window.h"

#include "game/task.h"

#include <string>
#include <string_view>

// A table of that text on a fresh window; turno 1 unless it says otherwise. Stops the test if the text is
// none.
void apparecchia(std::string_view testo);

// The same on a window of that size, in the middle of a hand that has been dealt, and drawn as it stands.
void in_scena(Pixels pixels, std::string_view testo);
inline constexpr std::string_view a_meta_mano =
    "mano2 2H 3S KD 5C 9D QC mano KH *10H *10S 8D *10C 4S AD 3H calate 5D 6D 7D 8D' | JH QH "
    "KH' AH | 4C 4D' 4H | calate2 7S 8S 9S | KS KD' KC | pozzo 2C AC 6H tallone 9H' 2S";

// Runs a procedure of the game to its end, or until it waits for a person. Returns whether it has ended.
bool gioca(Task procedura);

// Real clicks in the middle of a place. Cards are looked for in the hand, by their names.
void pesca_pozzo();
void pesca_tallone();
void scegli(std::string const& carte);  // right clicks, one card each: "5H 6H 7H"
void scarta(std::string const& carta);
void clic_mano(int tasto, int slot);
void clic_calate(Single x);  // on the human's row

// Middle of the strip of list position i in the human's row.
Single x_calate(int i);

// Whether these words stand on the surface.
bool si_legge(std::string_view testo);
