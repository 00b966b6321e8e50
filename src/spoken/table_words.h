// SPDX-License-Identifier: GPL-3.0-or-later
//
// The table in words, for who does not see it: what lies there, in reading order, with its place and what a
// click does. Only what anybody at the table sees is told: a card that lies face down has no name. Whether a
// thing is there is read from the surface, what it is from the record.
#pragma once

#include "window/surface.h"

#include <string>
#include <vector>

namespace spoken {

enum class Role : Byte { label, button, list, item };

// A place of the table. It stays the same place whatever lies there; index counts from 1 where there are more.
struct Place {
    enum class Kind : Byte {
        status,    // what is awaited
        words,     // a text that stands on the table
        deck,      // of the dealer choice
        cut_card,  // of player index
        pile,
        stock,
        hand,        // list: the human's cards
        hand_card,   // slot index
        melds,       // list: the melds of player index
        lay,         // where selected cards are laid as a new meld
        own_meld,    // of the human, index from the left
        other_meld,  // of the computer
        other_hand,  // list: how many cards the computer holds, and which when they lie face up
        other_card,
        games,  // list: the table of games
        game_row,
        close_names,  // of the names page
    };
    Kind kind = Kind::status;
    int index = 0;
    auto operator<=>(Place const&) const = default;
};

struct Item {
    Place place;
    Role role = Role::label;
    std::string name;    // UTF-8, never empty
    Box box;             // where it answers to clicks, or is seen; grid units
    bool left = false;   // a left click in the middle of the box does something now
    bool right = false;  // a right click does
    bool selectable = false, selected = false;
    Place group{};  // the list it lies in; a place of kind status: in none
};

// A meld as it stands in the list of its owner: positions of its first and last card, and all of them in order.
struct Calata {
    int prima = 0, ultima = 0;
    std::vector<Carta> carte;
};
std::vector<Calata> calate_di(int giocatore);

// Everything that lies on the table now, each place once, a list in front of its items.
std::vector<Item> table_words();

// The game waits for a move of the human's turn.
bool human_to_move();

}  // namespace spoken
