// SPDX-License-Identifier: GPL-3.0-or-later
//
// A told scene: a text of remarks ("# ..."), of what happens ("> ...") and, below each of these, of all that
// reached the person thereupon, as the silent window notes it. What can happen:
//
//     open [W H]                a new program on a window of that size, up to the first cut
//     table TEXT                a table drawn as it stands (table_text.h), the human on turn; "..." stands for all
//                               cards that the rest of the text does not name
//     hand TEXT                 the cards of the hand that is played become these
//     deck CARDS                these lie on top of the deck that is cut
//     cut, draw pile|stock, select CARDS, lay [PLACE IN THE LIST], discard CARD, click left|right X Y, move X Y
//     menu CAPTION, panel NUMBER (a click on that panel), type FIELD TEXT, resize W H, tune CODE
//     answer yes|no, close
//     time stops, time N, time goes on     from then on waits do not pass; the next N do; all do again
//     listen [WORDS]            only lines that begin with one of them are told from here on; none: all are
//     speak                     from here on what has happened is told in sentences too
//     look, items, menus, measures, mailbox, read NUMBER     the table as text; in words; the menus as they stand;
//                               the window's measures; azione; what that panel says
#pragma once

#include <string>
#include <string_view>

// The scene played and told anew: its remarks and what happens as they stand, all else as it comes out today.
std::string racconta(std::string_view copione);
