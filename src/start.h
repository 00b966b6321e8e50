// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class MainWindow;

// Opens the game's window: folders, the table, and a moment later the sound devices, to which the first
// picture owes nothing. Found: an application.
void start_game(MainWindow& window);
