// SPDX-License-Identifier: GPL-3.0-or-later
//
// A card is one small number: 1 to 52 in the first deck, 53 to 104 in the second, 0 no card. Within a deck
// the suits follow each other in blocks of 13, Hearts, Diamonds, Clubs, Spades, from Ace to King.
#pragma once

#include "game/bounded.h"

#include <string_view>

using Carta = Numero<Byte, 0, 104>;

// The marker behind each meld of a list, and the mark that a selected card carries. Neither may reach
// ValCarta or Seme.
inline constexpr int segnacalata = 1000;
inline constexpr int scelta = 1000;

inline constexpr int carte_mazzo = 104;

// The card of a hand's slot, without the mark.
constexpr int senza_scelta(int slot) { return slot > scelta ? slot - scelta : slot; }

// The same face in the first deck: 1 to 52, or 0.
constexpr int prima_copia(Carta carta) { return carta > 52 ? carta - 52 : static_cast<int>(carta); }

// Rank: 1 the Ace to 13 the King, 0 for no card.
constexpr int ValCarta(Carta carta)
{
    int const f = prima_copia(carta);
    return f == 0 ? 0 : (f - 1) % 13 + 1;
}

// Suit: 1 Hearts, 2 Diamonds, 3 Clubs, 4 Spades, 0 for no card.
constexpr int Seme(Carta carta)
{
    int const f = prima_copia(carta);
    return f == 0 ? 0 : (f - 1) / 13 + 1;
}

// A stored picture: 1 to 52 the faces carta(f), 53 and 54 the backs dorsov(0) and dorsov(1).
using Figura = Numero<Byte, 0, 54>;
inline constexpr int n_figure = 54;
constexpr Figura dorsov(int mazzo) { return 53 + mazzo; }
// Face and back of a card. The code must be a card; the back of 0 is the first deck's.
constexpr Figura faccia(Carta codice) { return prima_copia(codice); }
constexpr Figura dorso(Carta codice) { return dorsov(codice > 52 ? 1 : 0); }

// One hand as a picture of 52 characters: "*" at (suit - 1) * 13 + rank for a card held, "_" elsewhere. It is
// a set: two copies of a card are one "*". An untouched map is the empty text.
class Mappa {
  public:
    void vuota() { segni_.fill('_'); }
    void segna(Carta carta)  // the card must not be 0
    {
        segni_[static_cast<std::size_t>(prima_copia(carta) - 1)] = '*';
    }
    std::string_view testo() const { return segni_[0] ? std::string_view(segni_.data(), 52) : ""; }
    // The 13 characters of the suit with index 0 to 3, Ace first. The map must have been set up.
    std::string_view riga(int seme) const { return testo().substr(static_cast<std::size_t>(seme) * 13, 13); }
    bool operator==(Mappa const&) const = default;

  private:
    std::array<char, 52> segni_{};
};
