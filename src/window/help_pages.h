// SPDX-License-Identifier: GPL-3.0-or-later
//
// Three text panels over the table: the rules, the help on the mouse and a word about the program. Whether a
// panel is visible is the only record that it is open. A panel stops nothing.
#pragma once

#include "window/controls.h"

// Opens the panel and closes the two others, or closes it if it is open.
void istruzioni_Click();  // TxtItaliano
void menu_help_Click();   // TxtHelp
void menu_about_Click();  // Text4

// A click on the panel closes it.
void TxtItaliano_Click();
void TxtHelp_Click();
void text4_Click();

// A click on the table closes whichever is open.
void chiudi_pannelli();

// Text of a panel, UTF-8, lines broken by hand.
std::string_view panel_text(Control pannello);
