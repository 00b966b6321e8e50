// SPDX-License-Identifier: GPL-3.0-or-later
//
// The events of the window's life.
#pragma once

// Once, before the window is shown: controls, menus and measures as stored, and the music begins.
void Form_Load();

// The size has changed, and client_size has been told; not when the window was minimised.
void Form_Resize();

// Once, when the window has its first real size: computes the measures of the table and starts the game,
// which begins at the next resume.
void Form_Activate();

void Form_QueryUnload();  // the close control: the program ends, without a question
void Form_Unload();       // closes both multimedia devices
