// SPDX-License-Identifier: GPL-3.0-or-later
//
// The menu tree and the state of its entries. The check marks are the only record of the options.
#pragma once

#include "game/bounded.h"

#include <span>
#include <string_view>

// In menu order. An entry opens a submenu if the next one stands a level deeper.
enum class Menu : Byte {
    menu_game,
    menu_NewGame,
    menu_continue,
    personalize_players,
    istruzioni,
    opzioni,
    play_rate,
    velocità_1,
    velocità_2,
    velocità_3,
    menu_sounds,
    menu_card_rustle,
    menu_card_rustle_yes,
    menu_card_rustle_no,
    menu_music,
    nomusic,
    all,
    canzoni_1,
    canzoni_17 = canzoni_1 + 16,
    menu_about,
    menu_help,
    esci,
};
inline constexpr int n_voci = static_cast<int>(Menu::esci) + 1;
inline constexpr int n_velocità = 3;
inline constexpr int n_canzoni = 17;

// Entries of the two menu arrays, counted from 1.
constexpr Menu velocità(int i) { return static_cast<Menu>(static_cast<int>(Menu::velocità_1) + i - 1); }
constexpr Menu canzoni(int i) { return static_cast<Menu>(static_cast<int>(Menu::canzoni_1) + i - 1); }

struct MenuEntry {
    Menu voce;
    Byte level;                // 1 the bar, 2 a menu, 3 a submenu
    bool checkable;            // carries a mark at times
    std::string_view caption;  // "&" in front of the shortcut letter
};
std::span<MenuEntry const> menu_tree();

std::string_view caption(Menu voce);
bool enabled(Menu voce);
bool checked(Menu voce);

// Set the state and show it. They raise no handler.
void enable(Menu voce, bool yes);
void check(Menu voce, bool yes);

// As stored: "Bassa" and "Si" checked, everything enabled. A window that is there already is not told.
void load_menus();
