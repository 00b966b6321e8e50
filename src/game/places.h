// SPDX-License-Identifier: GPL-3.0-or-later
//
// Every place of the table, in grid units: where a thing is drawn and, beside it, where a click on it counts.
// Where the two differ, the difference is wanted and told. Places follow the size of a card and the middle of
// the table, which are fixed at activation; fixed numbers stay put in a window of any shape.
#pragma once

#include "game/box.h"
#include "game/table_state.h"

inline constexpr Single griglia_x = 1024, griglia_y = 768;

inline Box posto_carta(Single x, Single y) { return {x, y, x + tavolo.larg_carta, y + tavolo.alt_carta}; }

// ---- Hands. Cards stand edge to edge from the left; slots count from 1.

inline constexpr Single y_mano_umano = 645, y_mano_computer = 20;
inline constexpr Single y_scelta_alta = 620;  // of a selected card
inline Single y_mano(int giocatore) { return giocatore == umano ? y_mano_umano : y_mano_computer; }
inline Single x_mano(int slot) { return static_cast<Single>(slot - 1) * tavolo.larg_carta; }

// What is wiped before a hand is drawn: room for fourteen cards, of the human's also when they are raised.
inline Box striscia_mano(int giocatore)
{
    Single const alto = giocatore == umano ? y_scelta_alta : y_mano_computer;
    return {0, alto, max_mano * tavolo.larg_carta, tavolo.alt_carta + y_mano(giocatore)};
}

// The computer's card from the stock, until its hand is drawn anew.
inline Single x_pescata() { return tavolo.larg_carta * 13 / 3.6F + 376.7F; }

// Clicks on the human's hand. Wanted: only cards at rest count, so that the raised part of a selected card
// does not answer. The right edge counts, as the last card's.
inline bool sulla_mano(Single x, Single y)
{
    auto const& t = tavolo;
    return x > 0 && x <= static_cast<Single>(t.n_carte(umano)) * t.larg_carta && y > y_mano_umano &&
           y < y_mano_umano + t.alt_carta;
}

// The words for who selects before drawing.
inline constexpr Single x_prima_pescare = 40, y_prima_pescare = y_scelta_alta;

// ---- Pile and stock, drawn and clicked. The cards of a reshuffle lie a card's width further right.

inline Box accanto_al_centro(Single carte_a_destra)
{
    auto const& t = tavolo;
    Single const x = t.centro_x + carte_a_destra * t.larg_carta;
    return {x, t.centro_y - t.alt_carta / 2, x + t.larg_carta, t.centro_y + t.alt_carta / 2};
}
inline Box posto_pozzo() { return accanto_al_centro(-1); }
inline Box posto_tallone() { return accanto_al_centro(0); }
inline Box posto_rimescolo() { return accanto_al_centro(2); }
inline Single x_messaggio() { return tavolo.centro_x - 50; }  // "Rimescolo le carte del Pozzo"
inline Single y_messaggio() { return tavolo.centro_y + 90; }
inline Box posto_messaggio()  // wiped with the message
{
    auto const& t = tavolo;
    return {x_messaggio(), y_messaggio(), t.centro_x + 100, t.centro_y + 100};
}

// ---- The middle: the frame, which is also the panel of the table of games, and a row of melds on each side.

inline constexpr Single mezza_cornice = 200;
inline Box cornice()
{
    auto const& t = tavolo;
    return {t.centro_x - mezza_cornice, t.centro_y - 130, t.centro_x + mezza_cornice, t.centro_y + 110};
}
inline Box striscia_calate(int giocatore)
{
    auto const& t = tavolo;
    Single const alto = giocatore == umano ? t.centro_y + 114 : t.centro_y - 134 - t.alt_carta;
    return {t.centro_x - mezza_cornice, alto, t.centro_x + mezza_cornice, alto + t.alt_carta};
}
// The list takes a fifth of a card for each position, cards and markers alike, from 1.
inline Single passo_calate() { return tavolo.larg_carta / 5; }
inline Single x_calata(int posizione)
{
    return tavolo.centro_x - mezza_cornice + static_cast<Single>(posizione - 1) * tavolo.larg_carta / 5;
}
// Clicks on the human's row. Wanted: it begins six units below the drawn strip, and its right edge follows
// the size of a card and not the strip.
inline Box posto_calate()
{
    auto const& t = tavolo;
    Single const alto = t.centro_y + 120;
    return {t.centro_x - mezza_cornice, alto, x_pescata() + 26.0F / 36.0F * t.larg_carta, alto + t.alt_carta};
}

// Where the halves of each line of the table of games begin, and the first line.
inline Single x_partite(int giocatore) { return tavolo.centro_x + (giocatore == umano ? -180.0F : 80.0F); }
inline Single y_partite() { return tavolo.centro_y - 125; }

// ---- The dealer choice. Wanted: the deck answers in fixed numbers, whatever the size of a card.

inline constexpr Box area_scelta{480.8F, 334.32F, 542.0F, 431.31F};
inline Single x_taglio() { return tavolo.centro_x - tavolo.larg_carta / 2; }  // the deck and both cut cards
inline Single y_mazzo() { return tavolo.centro_y - tavolo.alt_carta / 2; }
inline constexpr Single x_invito = 5, y_invito = 5;
inline constexpr Box posto_invito{0, 0, 470, 35};  // wiped with the prompt

// ---- Names, title, names page.

inline Single x_nomi() { return tavolo.centro_x - tavolo.larg_carta / 2; }
inline Single y_nome(int giocatore)
{
    auto const& t = tavolo;
    return giocatore == umano ? t.centro_y * 2 - t.alt_carta * 1.2F - 22 : t.alt_carta + 24;
}

inline constexpr Single x_titolo = 880;
inline Single y_titolo() { return tavolo.centro_y - 20; }

inline constexpr Box pagina_nomi{0, 0, 158, 130};
inline constexpr Single testata_nomi = 30;                     // height of its head strip
inline constexpr Single x_testata = 5, y_testata = 5;          // the words on it
inline constexpr Single x_campo_nome = 75, y_campo_nome = 32;  // the first field; the others below it
inline constexpr Single x_etichetta_nome = 5, sotto_etichetta_nome = 1;  // beside each field
inline constexpr Single x_chiusura_nomi = 75, y_chiusura_nomi = 115;  // drawn and clicked, of Shape1's size
