// SPDX-License-Identifier: GPL-3.0-or-later
//
// What has happened at the table, as sentences, for who does not see it. Nothing is told by the procedures of
// the game: whoever resumes the game looks before and after, and the difference between two waits is told.
#pragma once

#include "spoken/table_words.h"

#include <array>
#include <string>
#include <vector>

namespace spoken {

// What everybody at the table sees at a wait, as far as a change of it is told.
struct Snapshot {
    bool dealt = false;                      // there is a hand on the table
    bool choosing = false;                   // the dealer choice waits
    bool to_move = false;                    // the human is to move
    bool closed = false;                     // a hand is empty
    int turn = 0, cut_entry = 0;             // who plays or cuts, and which entry of the deck is offered
    bool cut = false;                        // the entry on offer has been cut
    int stock = 0, pile = 0, top = 0;        // next entry of the deck, cards in the pile, its top card
    int cards = 0, drawn = 0, selected = 0;  // the human's: how many, the last one, how many selected
    std::array<std::vector<std::vector<Carta>>, 3> melds;
    std::vector<std::string> words;  // texts on the table
    bool games = false;              // the table of games is shown
    int action = 0;                  // azione, which the game is about to read
};

class News {
  public:
    // Before the game goes on: keeps what was asked of it.
    void before();

    // After the game has gone on to its next wait. Sentences in order, each with a capital letter and without
    // a full stop; empty if nothing is to be told. Each change is told once. The first call tells nothing.
    std::vector<std::string> after();

  private:
    Snapshot last_;
    bool started_ = false;
};

}  // namespace spoken
