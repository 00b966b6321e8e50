// SPDX-License-Identifier: GPL-3.0-or-later
//
// Somebody to play against the computer without a screen: a simple greedy player that acts through clicks and
// menu events alone. It lays and attaches whatever it can and discards its dearest card that fits nothing.
// Now and then it does something silly, since a person does.
#pragma once

#include "game/bounded.h"
#include "silent_window.h"

#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <string_view>

// One number for a whole series of texts, in order (FNV-1a).
inline constexpr std::uint64_t no_text = 14695981039346656037U;
inline void fold(std::uint64_t& number, std::string_view text)
{
    for (char const c : text)
        number = (number ^ static_cast<unsigned char>(c)) * 1099511628211U;
}

struct PlayedHands {
    int matches = 0, abandoned = 0, hands = 0, turns = 0, most_turns = 0;
    std::map<std::string, int> moves;  // how often each source and each kind of move was taken
    std::uint64_t hash = no_text;      // of all tables at all waits, in order
    std::uint64_t shown = no_text;     // of all that was shown and heard, in order
};

// Plays so many matches. A hand need not end: two players with one card each may go on for ever. So the
// person gets up after max_turns turns of one hand, the program is started anew, and the match counts as
// abandoned. at_each_wait is called at every wait of the game. A restless person also plays with the menus,
// the window's size, the names and the speed, and now and then lays nothing for a whole hand.
inline constexpr int max_turns = 600;
PlayedHands gioca_partite(
    int matches, std::uint32_t seed, std::function<void()> const& at_each_wait = [] {},
    bool restless = false);

// What was played, and the number over all tables.
std::string to_text(PlayedHands const& played);

// The number over all that is shown and heard in such a series and in a restless one of a tenth of its
// length.
std::string shown(PlayedHands const& played, std::uint32_t seed);
