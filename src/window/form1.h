// SPDX-License-Identifier: GPL-3.0-or-later
//
// The measures of the one window. Three of them meet here and nowhere else. Pixels are the screen's. Twips
// are those of the reference window, 15432 by 12360 outside and 15360 by 11688 inside; how many of them go to
// a pixel is fixed at activation, for each axis, so that a card is as large as the layout allows and keeps
// 96:153 on the screen. Grid units divide the inside into 1024 by 768, always.
#pragma once

#include "game/places.h"

#include <string_view>

inline constexpr std::string_view titolo_finestra = "Cartovendo - SollevinoDue";
inline constexpr std::string_view nome_programma = "SollevinoDue";  // title of message boxes

// The control of a card's picture as stored, in twips, and what a drawn card takes of it.
inline constexpr Single larg_carta_1 = 1152, alt_carta_1 = 1836;
inline constexpr Single riduzione_carta = 86.0F / 100;

// Twips to a grid unit, at the size of the last resize.
Single twips_x();
Single twips_y();

// Points to grid units, downward. A point is 20 twips of the axis on which they are smaller: letters are not
// stretched, and have room on a screen that stands upright too.
Single points_to_grid(Single punti);
// Points to device-independent pixels; fixed at activation, so that a window that grows keeps its letters.
Single pixels_per_point();

// Size of the client area in device-independent pixels, at least 1 by 1. The window tells it before
// Form_Activate and before each Form_Resize.
struct Pixels {
    int width = 0, height = 0;
};
void client_size(Pixels pixels);

// The measures as stored, for a window that has not been shown yet. The client size stays.
void load_measures();

// Takes the client size over. Twips are chosen anew with each size until they have been fixed. Returns how
// much the window has grown on each axis, exactly 1 where it has not; scala_x and scala_y follow.
struct Growth {
    Single x = 1, y = 1;
};
Growth measure_window();

// From now on a twip keeps its pixels.
void fix_twips();
