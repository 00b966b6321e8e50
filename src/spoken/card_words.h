// SPDX-License-Identifier: GPL-3.0-or-later
//
// Cards and melds in Italian, as a player says them. All texts are UTF-8 and begin with a small letter, but
// for the court cards and the Ace, which are names.
#pragma once

#include "game/card_model.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

// "Asso", "2" to "10", "Fante", "Donna", "Re". The rank is 1 to 13.
std::string nome_valore(int valore);

// "cuori", "quadri", "fiori", "picche". The suit is 1 to 4.
std::string_view nome_seme(int seme);

// "Re di cuori". The card is not 0; the deck is not told.
std::string carta_detta(Carta carta);

// The same with its article: "il Re di cuori", "l'8 di picche", "la Donna di fiori".
std::string carta_con_articolo(Carta carta);

// A meld as it lies on the table, at least one card: "scala di cuori dal 5 all'8", "tris di Re: cuori, fiori,
// picche", "Sollevinone di picche dall'Asso all'Asso". Cards that make none of these are told one by one.
std::string calata_detta(std::span<Carta const> carte);

// The same as something that is laid: "una scala di cuori: 5, 6, 7", "un tris di Re: cuori, fiori, picche".
std::string calata_con_articolo(std::span<Carta const> carte);

// "1 carta", "13 carte".
std::string quante_carte(int n);

// A text all in capitals in small letters, any other as it is. Letters with accents stay.
std::string senza_gridare(std::string testo);

// The text with a capital first letter, which is one byte.
std::string maiuscola(std::string testo);
