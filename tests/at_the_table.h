// SPDX-License-Identifier: GPL-3.0-or-later
//
// Telling a hand: a table laid out from its text, a person's actions by the names of the cards, and how it
// stands afterwards.
#pragma once

#include "game/table_text.h"
#include "silent_window.h"

#include "game/task.h"

#include <filesystem>
#include <functional>
#include <string_view>

// A table of that text on a fresh window; turno 1 unless it says otherwise. Stops the test if the text is
// none.
void apparecchia(std::string_view testo);

// The same on a window of that size, in the middle of a hand that has been dealt, and drawn as it stands.
void in_scena(Pixels pixels, std::string_view testo);
inline constexpr std::string_view a_meta_mano =
    "mano2 2H 3S KD 5C 9D QC mano KH *10H *10S 8D *10C 4S AD 3H calate 5D 6D 7D 8D' | JH QH "
    "KH' AH | 4C 4D' 4H | calate2 7S 8S 9S | KS KD' KC | pozzo 2C AC 6H tallone 9H' 2S";

// The whole of a file, empty if there is none.
std::string contenuto(std::filesystem::path const& file);

using Azione = std::function<void()>;

// Runs a procedure of the game; each time it waits for a person it is given the next action.
// Returns whether it came to its end.
bool gioca(Task procedura, std::vector<Azione> const& azioni = {});

// Real clicks in the middle of a place. A card is looked for in the hand, by its name.
Azione pesca_pozzo();
Azione pesca_tallone();
Azione scegli(std::string_view carte);  // right clicks, one card each: "5H 6H 7H"
Azione clic_calate(int posto = 1);      // on the strip of that list position
Azione scarta(std::string_view carta);

// Middle of the strip of list position i in the human's row.
Single x_calate(int i);
// Slot of a card of the human's hand, selected or not; 0 if it is not there.
int slot_umano(std::string_view carta);
void clic_mano(int tasto, int slot);

// The words that stand on the surface, bottom first.
std::vector<Mark> scritte();
bool si_legge(std::string_view testo);
// The topmost picture with that corner, 0 if there is none or something was filled over it.
int figura_a(Single x, Single y);
