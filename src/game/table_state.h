// SPDX-License-Identifier: GPL-3.0-or-later
//
// The whole state of the game: one record of plain data that every procedure reads and writes. Player 1 is
// the human, player 2 the computer; entry 0 of a player array is never used, but for nomi and n_calo, which
// count players from 0. The fields stand in groups by how long they live, so that a set-up clears a whole
// group. Behind each field: its meaning, and the folders that write it.
#pragma once

#include "game/bounded.h"
#include "game/card_model.h"

#include <string>

inline constexpr int max_mano = 14;     // thirteen cards and the drawn one
inline constexpr int max_calate = 30;   // cards and markers of one player
inline constexpr int max_pozzo = 78;    // cards of pile and stock together
inline constexpr int righe_gioco = 20;  // rows of the table of games
inline constexpr int traguardo = 1500;  // points that end a match

inline constexpr int carte_smazzata = 13;                    // dealt to each player
inline constexpr int primo_scarto = 2 * carte_smazzata + 1;  // entry of mazzo that opens the pile
inline constexpr int primo_tallone = primo_scarto + 1;       // the stock's first
inline constexpr int tallone_vuoto = carte_mazzo + 1;        // cima_tallone of an empty stock

// What azione holds: nothing, an action of the human's turn, or what the game does instead of one.
namespace azioni {
enum : Byte {
    nessuna = 0,
    pesca_pozzo = 1,
    pesca_tallone = 2,
    scegli = 3,
    cala = 4,
    scarta = 5,
    taglia = 7,
    ignora = 15
};
}

inline constexpr int umano = 1, computer = 2;
constexpr int altro(int giocatore) { return giocatore == umano ? computer : umano; }

using PostoMazzo = Numero<Integer, 0, 105>;  // an entry of mazzo, 105 behind its last
using CartaMazzo = Numero<Integer, 0, carte_mazzo>;
using CartaInMano = Numero<Integer, 0, carte_mazzo + scelta>;  // a card, or a card + 1000: selected
using VoceCalate = Numero<Integer, 0, segnacalata>;            // a card, or the marker 1000
using Punti = Numero<Integer, -32768, 32767>;

// clang-format off

// Cleared for every hand.
struct Smazzata {
    Serie<CartaMazzo, carte_mazzo> mazzo;            // the shuffled deck, from 1              game
    Serie<CartaMazzo, carte_mazzo> mazzo_tmp;        // source of a shuffle                    game
    Serie<CartaMazzo, max_pozzo - 1> pozzo;          // the pile, oldest card first            game
    Tabella<CartaInMano, max_mano> mano;             // hand slots, from 1                     game human computer
    Serie<Numero<Byte, 0, max_mano>, 2> n_carte;     // cards in each hand                     game human computer
    Serie<Mappa, 2> mappa;                           // map of each hand; 1 only by the deal   game computer
    Tabella<VoceCalate, max_calate> calate;          // melds, a marker behind each            melds human computer
    Serie<Numero<Byte, 0, max_calate>, 2> n_calate;  // position of the last marker            melds
    Serie<Numero<Byte, 0, 255>, 1> n_calo;           // laying actions, player minus one       melds
    Serie<Numero<Byte, 0, 13>, 2> valore_scelta;     // ranks cut in the dealer choice         game
    Serie<Single, 2> x_scelta, y_scelta;             // places of the cards cut                game
};

// Set by the deal.
struct Tavola {
    PostoMazzo cima_tallone;                         // next stock card, 105 an empty stock    game
    Numero<Integer, 0, max_pozzo> n_pozzo;           // cards in the pile                      game
};

// A turn.
struct Turno {
    Numero<Byte, 0, 2> turno;                        // player on turn, or who cuts            game
    bool pescato = false;                            // he has taken his card                  human computer
    Numero<Byte, 0, 15> azione;                      // mailbox of the pointer, see azioni     game human
    Single click_x = 0;                              // x of a click on hand or melds          human
    CartaMazzo pos_scelta;                           // entry of mazzo that is offered to cut  game
    Carta carta_scelta;                              // the card cut, 0 while waiting; the     game human melds
                                                     // card that is being attached
    Numero<Integer, 0, max_mano> n_scelte;           // cards that the human has selected      human
    Numero<Integer, 0, max_calate> pos_calata;       // last card of the meld attached to      melds computer
    bool esito_attacco = false;                      // a meld or an attach was accepted       melds
    Numero<Byte, 0, 2> n_decise;                     // 0 nothing laid, 1 from pile, 2 stock   computer
    Mappa mappa_copia;                               // its map when its turn began            computer
};

// Cleared for every match.
struct Partita {
    Numero<Byte, 0, righe_gioco> n_game;             // row of this hand in that table         game
    Numero<Integer, 0, 32767> game_usciti;           // hands whose rows have left the table   game
    Tabella<Punti, righe_gioco> punti;               // points of the melds                    game scoring
    Serie<Punti, 2> totale;                          // running totals                         scoring
};

struct TableState : Smazzata, Tavola, Turno, Partita {
    Numero<Byte, 0, 2> cartaro;                      // dealer, 0 while a tie is repeated      game
    Tabella<Punti, righe_gioco> penali;              // left in hand; written before shown     game scoring
    Serie<std::string, 1> nomi;                      // names, UTF-8, player minus one         players

    Single velocita = 0;                             // divisor of all waits                   game window
    bool tempo_scaduto = false;                      // the running wait is over               game
    bool nuova_partita = false;                      // a new match was asked for              game window
    bool continua = false;                           // the next hand was asked for            game window
    Numero<Integer, 0, 17> n_canzone;                // tune of sequential mode                audio

    // Grid units, 1024 by 768 over the client area.
    Single centro_x = 0, centro_y = 0;               // middle of the table                    window
    Single larg_carta = 0, alt_carta = 0;            // size of a card                         window
    Single scala_x = 0, scala_y = 0;                 // outer size against the reference       window
    Single pos_x = 0, pos_y = 0;                     // place of the card being drawn: carries nothing

    // Counter of the loops that a menu handler may disturb: the deal's, and that of the panel of the table of
    // games, which a change of speed sends back to its start.
    Numero<Integer, -32768, 32767> i;
};

// clang-format on

extern TableState tavolo;
