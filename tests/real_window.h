// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "game/bounded.h"

#include <QPoint>
#include <QTest>

class MainWindow;

MainWindow& real_window();
void close_real_window();  // before the application goes

// What the person clicks with: a finger taps for the left button and holds for the right one; a reader has
// nothing but the objects of the table and their actions, or a mouse for the middle of such an object.
enum class With : Byte { mouse, finger, reader, reader_mouse };
inline With with = With::mouse;

// The pixel of the table at a place of the grid.
QPoint on_table(Single x, Single y);

// A finger on the window, as press(), move() and release() tell, and the pixel of the window there. A window may
// be larger than the screen that it stands on in a test.
QTest::QTouchEventSequence touch();
QPoint in_window(QPoint on_table);

// Events run until the game has gone on to its next wait, timed or not.
void settle();
