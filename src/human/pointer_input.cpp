// SPDX-License-Identifier: GPL-3.0-or-later
#include "human/pointer_input.h"

#include "game/dealer_choice.h"
#include "game/match_loop.h"
#include "game/piles.h"
#include "game/table_state.h"
#include "players/player_names.h"
#include "window/form1.h"
#include "window/help_pages.h"
#include "window/menus.h"
#include "window/window.h"

namespace {

// The edges do not count.
bool dentro(Box const& b, Single x, Single y) { return x > b.x1 && x < b.x2 && y > b.y1 && y < b.y2; }

// Wanted: the place of the row begins six units below the drawn row.
Box posto_calate()
{
    auto const& t = tavolo;
    Single const destra = 13 * t.larg_carta / 3.6F + 376.7F + 26.0F / 36.0F * t.larg_carta;
    return {t.centro_x - 200, t.centro_y + 120, destra, t.centro_y + 120 + t.alt_carta};
}

// Wanted: only cards at rest count, so that the raised part of a selected card does not answer.
bool sulla_mano(Single x, Single y)
{
    auto const& t = tavolo;
    return x > 0 && x <= static_cast<Single>(t.n_carte(1)) * t.larg_carta && y > y_mano_umano &&
           y < y_mano_umano + t.alt_carta;
}

// Wanted: the test asks about the menu entry, not whether the page is open.
bool chiude_pagina_nomi(Single x, Single y)
{
    return enabled(Menu::personalize_players) && dentro(area_chiusura_nomi(), x, y);
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
    if (t.azione == 7) {
        if (dentro(area_scelta, x, y))
            t.carta_scelta = t.mazzo(t.pos_scelta);
        return;
    }
    if (t.turno == 2)
        return;
    if (dentro(posto_pozzo(), x, y)) {
        t.azione = 1;
    } else if (dentro(posto_tallone(), x, y)) {
        t.azione = 2;
    } else if (dentro(posto_calate(), x, y)) {
        t.click_x = x;
        t.azione = 4;
    } else if (sulla_mano(x, y)) {
        t.click_x = x;
        t.azione = 5;
    }
}

// Wanted: it does not ask whose turn it is. An azione that nobody waits for is wiped at the human's next
// turn.
void tasto_destro(Single x, Single y)
{
    auto& t = tavolo;
    if (t.azione == 7 || !sulla_mano(x, y))
        return;
    if (!t.pescato) {
        superficie.print_at(40, 620);
        superficie.print("PRIMA PESCARE");
        return;
    }
    if (t.n_carte(1) == 1)
        return;
    t.click_x = x;
    t.azione = 3;
}

}  // namespace

void Form_MouseDown(int Button, int /*Shift*/, Single X, Single Y)
{
    chiudi_pannelli();
    if (tavolo.azione == 15)
        return;
    if (Button == 1)
        tasto_sinistro(X, Y);
    else if (Button == 2)
        tasto_destro(X, Y);
}

void Form_MouseMove(int /*Button*/, int /*Shift*/, Single X, Single Y)
{
    if (tavolo.turno != 1)
        return;
    mouse_pointer(dentro(posto_calate(), X, Y) ? Pointer::up_arrow : Pointer::arrow);
}
