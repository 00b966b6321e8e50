// SPDX-License-Identifier: GPL-3.0-or-later
//
// The controls of the window: texts and shapes that lie over the surface. Their places are in twips, as
// stored; the window shows what has changed.
#pragma once

#include "window/form1.h"

#include <string>
#include <string_view>

inline constexpr int max_lettere = 7;  // characters of a name field, not bytes

// Only carta_1 is never shown: its size is the size of a card.
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

void show(Control c, bool yes = true);
void bring_to_front(Control c);
void move_to(Control c, Single x, Single y);  // grid units
// Raises no change event. A name field holds max_lettere characters, whoever fills it: the rest is cut off.
void set_text(Control c, std::string_view text);
Box control_box(Control c);  // where it lies, in grid units

// The controls as stored: hidden, at the top left corner, without a text.
void load_controls();

// The window has grown by so much: places and sizes grow with it.
void scale_controls(Growth growth);
