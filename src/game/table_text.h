// SPDX-License-Identifier: GPL-3.0-or-later
//
// The table as text, both ways: fixture of a test, message of a failure, report of a fault. Words in any
// order, each followed by what belongs to it:
//
//     mano KH 5H' *8D mano2 AS calate 5D 6D 7D | calate2 9C 9H 9S | pozzo QS 2C tallone 2C 9H turno 1
//
// A card is rank and suit (A 2 to 10 J Q K, H D C S), a prime behind it for the second deck, a star in front
// if it is selected. The last card of pozzo is the top; the first of tallone is the next to be drawn.
// Numbers: turno cartaro game azione pescato totale totale2.
#pragma once

#include "game/card_model.h"

#include <string>
#include <string_view>

std::string nome_carta(int carta);  // "10H", "5H'"

// A card's code from its name; 0 if it is none.
int carta_da(std::string_view nome);

// Cards of hands, melds, pile and stock; groups without a card are left out.
std::string mostra();
// The same and the numbers.
std::string mostra_tutto();

// Makes the table of that text: what it does not name is empty or 0, maps and counts follow from the cards.
// Names, measures and options stay. False, and nothing changed, if the text is none of a table or a group has
// more cards than its place.
bool leggi_tavolo(std::string_view testo);
