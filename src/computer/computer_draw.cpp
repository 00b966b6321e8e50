// SPDX-License-Identifier: GPL-3.0-or-later
#include "computer/computer_draw.h"

#include "computer/hand_reading.h"
#include "game/piles.h"
#include "game/table_state.h"

void pesco_carta(int fonte)
{
    auto& t = tavolo;
    if (fonte == dal_pozzo) {
        prendi_dal_pozzo(computer);
        return;
    }
    prendi_dal_tallone(computer);
    t.pos_x = x_pescata();
    t.pos_y = y_mano_computer;
    dipingi(dorso(t.mano(computer, t.n_carte(computer))), t.pos_x, t.pos_y);
    mostra_tallone();
}
