// SPDX-License-Identifier: GPL-3.0-or-later
#include "human/pointer_input.h"

#include "game/dealer_choice.h"
#include "game/match_loop.h"
#include "game/piles.h"
#include "game/table_state.h"
#include "players/player_names.h"
#include "window/help_pages.h"
#include "window/menus.h"
#include "window/window.h"

namespace {

// Wanted: the test asks about the menu entry, not whether the page is open.
bool chiude_pagina_nomi(Single x, Single y)
{
    return enabled(Menu::personalize_players) && area_chiusura_nomi().around(x, y);
}

void tasto_sinistro(Single x, Single y)
{
    auto& t = tavolo;
    if (chiude_pagina_nomi(x, y)) {
        Registra_Players();
        togli_pagina_nomi();
        superficie.clear();
        runner.start(Main());
        return;
    }
    if (t.azione == azioni::taglia) {
        if (area_scelta.around(x, y))
            t.carta_scelta = t.mazzo(t.pos_scelta);
        return;
    }
    if (t.turno == computer)
        return;
    if (posto_pozzo().around(x, y)) {
        t.azione = azioni::pesca_pozzo;
    } else if (posto_tallone().around(x, y)) {
        t.azione = azioni::pesca_tallone;
    } else if (posto_calate().around(x, y)) {
        t.click_x = x;
        t.azione = azioni::cala;
    } else if (sulla_mano(x, y)) {
        t.click_x = x;
        t.azione = azioni::scarta;
    }
}

// Wanted: it does not ask whose turn it is. An azione that nobody waits for is wiped at the human's next
// turn.
void tasto_destro(Single x, Single y)
{
    auto& t = tavolo;
    if (t.azione == azioni::taglia || !sulla_mano(x, y))
        return;
    if (!t.pescato) {
        superficie.print_at(x_prima_pescare, y_prima_pescare);
        superficie.print("PRIMA PESCARE");
        return;
    }
    if (t.n_carte(umano) == 1)
        return;
    t.click_x = x;
    t.azione = azioni::scegli;
}

}  // namespace

void Form_MouseDown(int Button, int /*Shift*/, Single X, Single Y)
{
    chiudi_pannelli();
    if (tavolo.azione == azioni::ignora)
        return;
    if (Button == 1)
        tasto_sinistro(X, Y);
    else if (Button == 2)
        tasto_destro(X, Y);
}

void Form_MouseMove(int /*Button*/, int /*Shift*/, Single X, Single Y)
{
    if (tavolo.turno != umano)
        return;
    mouse_pointer(posto_calate().around(X, Y) ? Pointer::up_arrow : Pointer::arrow);
}
