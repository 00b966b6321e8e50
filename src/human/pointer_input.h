// SPDX-License-Identifier: GPL-3.0-or-later
//
// The mouse. A click puts an action into azione, a card into carta_scelta or closes the names page; the
// waiting game does the rest. Buttons: 1 left, 2 right, others do nothing. X and Y in grid units, any value.
#pragma once

#include "game/bounded.h"

void Form_MouseDown(int Button, int Shift, Single X, Single Y);
void Form_MouseMove(int Button, int Shift, Single X, Single Y);
