// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/bounded.h"

#include <QPoint>

class MainWindow;

MainWindow& real_window();
void close_real_window();  // before the application goes

// The pixel of the table at a place of the grid.
QPoint on_table(Single x, Single y);

// Events run until the game has gone on to its next wait, timed or not.
void settle();
