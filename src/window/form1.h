// SPDX-License-Identifier: GPL-3.0-or-later
//
// The one window: its life, its controls and its measures. Three measures meet here and nowhere else. Pixels
// are the screen's. Twips are those of the reference window, 15432 by 12360 outside and 15360 by 11688
// inside; how many of them go to a pixel is fixed at activation, for each axis, so that a card is as large as
// the layout allows and keeps 96:153 on the screen. Grid units divide the inside into 1024 by 768, always.
#pragma once

#include "game/bounded.h"
#include "game/places.h"
#include "window/surface.h"

#include <string>
#include <string_view>

inline constexpr std::string_view titolo_finestra = "Cartovendo - SollevinoDue";
inline constexpr std::string_view nome_programma = "SollevinoDue";  // title of message boxes

// Texts and shapes that lie over the surface. Only carta_1 is never shown: its size is the size of a card.
enum class Control : Byte {
    carta_1,
    TxtPlayer_1,
    TxtPlayer_2,
    TxtPlayer_3,
    TxtPlayer_4,
    Shape1_0,
    Shape1_1,
    TxtHelp,
    TxtItaliano,
    Text4,
};
inline constexpr int n_controlli = static_cast<int>(Control::Text4) + 1;
constexpr Control TxtPlayer(int n)
{
    return static_cast<Control>(static_cast<int>(Control::TxtPlayer_1) + n - 1);
}
constexpr Control Shape1(int n) { return static_cast<Control>(static_cast<int>(Control::Shape1_0) + n); }

struct ControlState {
    Single left = 0, top = 0, width = 0, height = 0;  // twips
    bool visible = false;
    int order = 0;     // the higher one lies in front
    std::string text;  // of the name fields, UTF-8
};
ControlState const& control(Control c);

void show(Control c, bool sì = true);
void bring_to_front(Control c);
void move_to(Control c, Single x, Single y);      // grid units
void set_text(Control c, std::string_view text);  // raises no change event
Box control_box(Control c);                       // where it lies, in grid units

// Points to grid units, downward. A point is 20 twips of the axis on which they are smaller: letters are not
// stretched, and have room on a screen that stands upright too.
Single points_to_grid(Single punti);
// Points to device-independent pixels; fixed at activation, so that a resized window keeps its letters.
Single pixels_per_point();

// Size of the client area in device-independent pixels, at least 1 by 1. The window tells it before
// Form_Activate and before each Form_Resize.
struct Pixels {
    int width = 0, height = 0;
};
void client_size(Pixels pixels);

// The events of the window. Form_Load comes once, before the window is shown; Form_Activate once, when it has
// its first real size: it computes the measures and starts the game, which begins at the next resume.
void Form_Load();
void Form_Resize();  // the size has changed; not when the window was minimised
void Form_Activate();
void Form_QueryUnload();  // the close control: the program ends, without a question
void Form_Unload();       // closes both multimedia devices

// For tests: the window as before Form_Load.
void reset_form1();
