// SPDX-License-Identifier: GPL-3.0-or-later
//
// A look at the whole table: is any card missing or there twice, are counts and lists right?
#pragma once

#include <string>

// What is wrong with the table, in words, or the empty text. True at every wait of a hand once its cards have
// been dealt; before that only the counts are looked at.
//
// Faces are counted, not codes: the computer lays codes of the first deck whatever it held.
std::string guasto_tavolo();

inline bool tavolo_coerente() { return guasto_tavolo().empty(); }

// After every turn: prints the fault and the table on stderr and aborts, in a checked build; else nothing.
void controlla_tavolo();
