// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the game asks of a window system. The program links the real window, the tests a silent one with a
// virtual clock. Only the two message boxes may wait.
//
// The other way round, a window calls lifecycle.h, menu_clicks.h, pointer_input.h and player_names.h, each
// call wrapped in evento(): the game goes on when the outermost handler has finished, never inside one.
#pragma once

#include "game/task.h"
#include "window/surface.h"

#include <string_view>

enum class Pointer : Byte { arrow = 0, up_arrow = 10, hourglass = 11 };
enum class Menu : Byte;     // menus.h
enum class Control : Byte;  // controls.h

// The surface has been drawn on. What has changed of it is to be shown again soon.
void repaint(Surface& surface);

// Size of a text in grid units. The height is the font's size, whatever the letters.
Single text_width(std::string_view testo, Font const& font);
Single text_height(Font const& font);

// Timer1_Timer() comes once, after that many milliseconds from now. A new call replaces the old one.
void start_timer(int millisecondi);

void mouse_pointer(Pointer forma);

// The state of a menu entry (menus.h) or of a control (controls.h) has changed and is to be shown.
void show_menu_entry(Menu voce);
void show_control(Control controllo);

// Modal. Title: the program's name; no icon. The game stands still until the box has been answered; whether
// the call lasts so long is the window's business. The game awaits its message; a handler hands over what is
// to be done after a yes, as its last act.
Task message_box(std::string_view testo);
void ask_yes_no(std::string_view testo, void (*yes)());

void beep();

// Seconds since midnight, local time.
Single time_of_day();

// The program ends as soon as the running handler or step of the game has finished; the game never goes on.
void end_program();

// Asks for runner.resume(), soon and outside of any handler. Asking twice is asking once.
void wake_game();

// Every handler of a window event runs through here.
inline int eventi_aperti = 0;
template <class Handler>
void evento(Handler&& handler)
{
    ++eventi_aperti;
    handler();
    if (--eventi_aperti == 0)
        wake_game();
}
