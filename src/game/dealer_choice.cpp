// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/dealer_choice.h"

#include "audio/sound_music.h"
#include "game/deal.h"
#include "game/piles.h"
#include "game/shuffle.h"
#include "game/table_state.h"
#include "game/wait.h"
#include "players/player_names.h"
#include "window/menus.h"
#include "window/window.h"

namespace {

void stampa_invito()
{
    superficie.font_size(9);
    superficie.text_colour(colori::bianco);
    superficie.print_at(x_invito, y_invito);
    superficie.print("Scelta cartaro - Clicca sul mazzo");
}

void pagina_di_apertura()
{
    auto& t = tavolo;
    for (int p : {umano, computer}) {
        t.x_scelta(p) = x_taglio();
        t.y_scelta(p) = y_mano(p);
    }
    t.azione = azioni::taglia;
    Lettura_Players();
    mouse_pointer(Pointer::arrow);
    disegno_titolo();
    Posiziona_Players();
    enable(Menu::menu_NewGame, false);
    enable(Menu::menu_continue, false);
    enable(Menu::personalize_players, true);
    stampa_invito();
    t.pos_scelta = 1;
    Apri_suono("carta");
}

// From the first cut on the names stay as they are. The cut confirms a names page that was left open: the
// names are written, the page and the old names are wiped, and the prompt that the page had covered in part
// comes back.
void chiudi_nomi()
{
    enable(Menu::personalize_players, false);
    if (!togli_pagina_nomi())
        return;
    Registra_Players();
    togli_nomi();
    stampa_invito();
    Posiziona_Players();
}

// Player turno cuts the card on offer.
Task taglia()
{
    auto& t = tavolo;
    dipingi(dorso(t.mazzo(t.pos_scelta)), x_taglio(), y_mazzo());
    t.carta_scelta = 0;
    while (t.carta_scelta == 0)
        co_await eventi();
    chiudi_nomi();
    suona();
    dipingi(faccia(t.carta_scelta), t.x_scelta(t.turno), t.y_scelta(t.turno));
    t.valore_scelta(t.turno) = ValCarta(t.carta_scelta);
}

}  // namespace

Task Scelta_Cartaro()
{
    auto& t = tavolo;
    pagina_di_apertura();

    for (;;) {
        t.turno = computer;
        co_await taglia();
        t.turno = umano;
        ++t.pos_scelta;
        co_await taglia();
        if (t.valore_scelta(umano) != t.valore_scelta(computer))
            break;

        t.cartaro = 0;
        Apri_suono("Notify");
        suona();
        Apri_suono("carta");
        co_await message_box("Ripeti, prego");
        // The human's card is the computer's next one, so pos_scelta stays. After the last card of the deck there is
        // none left for the human, and the choice starts again with a new shuffle.
        if (t.pos_scelta == carte_mazzo) {
            Mescola();
            t.pos_scelta = 1;
        }
    }

    t.cartaro = t.valore_scelta(computer) > t.valore_scelta(umano) ? 2 : 1;
    t.azione = azioni::nessuna;
    t.turno = t.cartaro;
    Posiziona_Players();  // the dealer's name in white
    t.turno = altro(t.cartaro);
    superficie.fill_box(posto_invito, colori::tavolo);
    co_await ritardo(0.2F);
}
