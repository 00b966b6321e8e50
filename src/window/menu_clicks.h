// SPDX-License-Identifier: GPL-3.0-or-later
//
// What each menu entry does when it is picked. A handler sets a flag or a field and leaves the rest to the
// waiting game.
#pragma once

#include "window/menus.h"

// A pick of the user. An entry that is disabled or only opens a submenu does nothing.
void menu_click(Menu voce);

void menu_NewGame_Click();
void menu_continue_Click();
void velocità_Click(int indice);  // 1 to 3; leaves i at 4
void esci_Click();
