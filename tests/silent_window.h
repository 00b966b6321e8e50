// SPDX-License-Identifier: GPL-3.0-or-later
//
// A window without a screen: the game runs on a virtual clock, and the test is its only source of events. It
// also holds the two devices. All that would reach a person is noted in order, a line each.
#pragma once

#include "window/controls.h"
#include "window/lifecycle.h"
#include "window/menu_clicks.h"
#include "window/window.h"

#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

struct SilentWindow {
    double now = 0;             // milliseconds since the clock began
    double day_began = 0;       // time of day at 0, in seconds
    std::optional<double> due;  // the timer fires at that time
    Pointer pointer = Pointer::arrow;
    bool answer_yes = false;               // to every question
    std::function<void()> in_box = [] {};  // what happens while a box is open
    std::vector<std::string> boxes;        // texts shown
    std::string names;                     // the file of the names
    bool tune_plays = true;                // the tune that was begun last can be heard
    int beeps = 0;
    bool ended = false;
    bool speaks = false;  // what has happened is told in sentences too, "say ..."

    // What reached the person: marks as they are drawn ("picture 10H 66,645", "text "..." 880,364 ..."),
    // clears, "effects open carta", "wait 390", "pointer hourglass", "menu Continua off", controls, "box
    // ...", "beep". Grid units and points to a hundredth, colours as red.green.blue. It grows until somebody
    // clears it.
    std::vector<std::string> log;
};
extern SilentWindow finestra;

// Where all that is done to the window is written down, a line each, so that another window can play it again:
// "open 1024 779 36000", "click 1 512 384", "timer". What this window logs in between is what that one must show.
inline std::ostream* script = nullptr;

// Off where nobody reads the log: writing it takes longer than the game itself. The played hands then have no numbers.
inline bool noted = true;

// A fresh program, measured for a client area of that size, before its first event. 1024 by 779 pixels make a
// card as large as in the reference window. The game is Main(), not yet begun.
void avvia_programma(Pixels pixels = {1024, 779}, double day_began = 36000);

// The game goes on, to its next wait.
void riprendi();

// Lets the game go on until it waits for somebody, the virtual clock running through every timed wait.
// after_wait is called at each wait, before the timer fires.
void fino_all_attesa(std::function<void()> const& after_wait = [] {});

// The timer fires once, if it is set, and the game goes on to its next wait. False if it was not set.
bool scatta_timer();

// One event of the mouse or menu, and the game goes on to its next wait, timed or not.
void clic(int tasto, Single x, Single y);
void menu(Menu voce);

// One event; the game does not go on yet.
void muovi(Single x, Single y);
void brano_finito(int codice);
void misura(Pixels pixels);
void scrivi(int campo, std::string_view testo);
