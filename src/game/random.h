// SPDX-License-Identifier: GPL-3.0-or-later
//
// The random numbers of the game. The same reset and the same seed give the same numbers on every system.
#pragma once

#include "game/bounded.h"

void azzera_caso(Integer numero);  // the reset, for the next seed
void semina_caso(Single numero);   // begins anew from the last reset and that number

// From 0 up to, never 1.
Single caso();

// A whole number from primo to primo + quanti - 1; quanti at least 1.
int caso_tra(int primo, int quanti);
