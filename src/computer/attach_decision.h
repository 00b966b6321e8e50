// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Goes once through the melds of calate_di and attaches to each at most one card of the hand of mano_di. A
// card that fits a run stays in a hand of 4 or more if its neighbour is there too.
// Found: the map of mano_di true; pescato false exactly while the last slot holds the provisional card, a copy
//        of the pile's top.
// Left:  the attached cards in their melds, hand closed up, map true, melds redrawn. If the provisional card
//        was attached it has really been taken from the pile and pescato is true. Nothing is attached that
//        would pass the end of the list.
void Provo_Attacco(int mano_di, int calate_di);
