// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/match_loop.h"

#include "computer/computer_turn.h"
#include "game/deal.h"
#include "game/dealer_choice.h"
#include "game/shuffle.h"
#include "game/table_check.h"
#include "game/table_state.h"
#include "game/wait.h"
#include "human/human_turn.h"
#include "players/player_names.h"
#include "scoring/hand_scoring.h"
#include "window/menus.h"
#include "window/window.h"

namespace {

// Until a player's hand is empty; nothing else ends a hand.
Task gioca_smazzata()
{
    auto& t = tavolo;
    for (;;) {
        Posiziona_Players();
        if (t.turno == computer)
            co_await Gioco2();
        else
            co_await Gioco1();
        controlla_tavolo();
        if (t.n_carte(t.turno) == 0)
            co_return;
        t.turno = altro(t.turno);
    }
}

// Goes to the next row of the table of games. When all rows are used, the oldest one is dropped and the others move
// up; the totals still count its hand.
void prossima_riga()
{
    auto& t = tavolo;
    if (t.n_game < righe_gioco) {
        ++t.n_game;
        return;
    }
    for (int p : {umano, computer})
        for (int g = 1; g < righe_gioco; ++g) {
            t.punti(p, g) = t.punti(p, g + 1);
            t.penali(p, g) = t.penali(p, g + 1);
        }
    ++t.game_usciti;
}

// Hand after hand until a new match is asked for.
Task gioca_partita()
{
    auto& t = tavolo;
    t.nuova_partita = false;
    enable(Menu::personalize_players, true);
    enable(Menu::menu_continue, false);
    enable(Menu::menu_NewGame, false);
    static_cast<Partita&>(t) = {};
    t.n_game = 1;
    superficie.clear();
    Mescola();
    co_await Scelta_Cartaro();

    for (;;) {
        co_await ritardo(0.01F);
        Gioco_Imposta();
        co_await daicarte();
        co_await gioca_smazzata();

        scopro_carte();
        co_await ritardo(0.3F);
        co_await risultato();
        bool const finita = t.totale(umano) >= traguardo || t.totale(computer) >= traguardo;
        enable(Menu::menu_continue, !finita);
        enable(Menu::menu_NewGame, true);
        mouse_pointer(Pointer::arrow);
        t.continua = false;
        t.nuova_partita = false;
        while (!t.continua && !t.nuova_partita)
            co_await eventi();
        if (t.nuova_partita)
            co_return;

        prossima_riga();
        t.cartaro = altro(t.cartaro);
        t.turno = altro(t.cartaro);
        superficie.clear();
    }
}

}  // namespace

Task Main()
{
    tavolo.velocita = 0.5F;
    for (;;)
        co_await gioca_partita();
}

void Gioco_Imposta()
{
    auto& t = tavolo;
    static_cast<Smazzata&>(t) = {};
    Lettura_Players();
    for (int p : {umano, computer}) {
        t.n_carte(p) = carte_smazzata;
        t.mappa(p).vuota();
    }
    superficie.clear();
    Mescola();
}
