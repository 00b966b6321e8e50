// SPDX-License-Identifier: GPL-3.0-or-later
//
// The table for assistive technologies: a list "Tavolo" with an object for each place, which lives as long as
// the place does, and what has happened as announcements. A press is a left click in the middle of the place,
// a toggle a right one; there is no other way from here into the game.
#pragma once

class TableView;

// Behind the application, whose own objects would come first, and before a window is shown. Nothing is made
// before an assistive technology asks. May be called again.
void install_accessible_table();

// Around each step of the game; they do nothing while no assistive technology is there.
// Before: the game is about to go on. After: it has gone on to its next wait.
void before_step();
void after_step(TableView& table);
