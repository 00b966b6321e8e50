// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class MainWindow;

// Finds the folders and opens the game's window. The sound devices start a moment later, so that they do not delay
// the first picture.
// Found: an application.
void start_game(MainWindow& window);
