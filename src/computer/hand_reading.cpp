// SPDX-License-Identifier: GPL-3.0-or-later
#include "computer/hand_reading.h"

#include "game/piles.h"
#include "game/table_state.h"

int slot_di(int giocatore, int codice_primo_mazzo)
{
    auto const& t = tavolo;
    for (int s = 1; s <= t.n_carte(giocatore); ++s)
        if (prima_copia(t.mano(giocatore, s)) == codice_primo_mazzo)
            return s;
    return 0;
}

void compatto_mano(int giocatore)
{
    auto& t = tavolo;
    int tenute = 0;
    for (int s = 1; s <= t.n_carte(giocatore); ++s)
        if (t.mano(giocatore, s) != 0)
            t.mano(giocatore, ++tenute) = t.mano(giocatore, s);
    t.n_carte(giocatore) = tenute;
}

void rifaccio_mappa(int giocatore)
{
    auto& t = tavolo;
    t.mappa(giocatore).vuota();
    for (int s = 1; s <= t.n_carte(giocatore); ++s)
        t.mappa(giocatore).segna(t.mano(giocatore, s));
}

// Wanted: the back of a slot is that of the card at the same place in mazzo, not of the card held.
void disegno_dorsi()
{
    auto& t = tavolo;
    superficie.fill_box(striscia_mano(computer), colori::tavolo);
    for (int s = 1; s <= t.n_carte(computer); ++s) {
        t.pos_x = x_mano(s);
        t.pos_y = y_mano_computer;
        dipingi(dorso(t.mazzo(s)), t.pos_x, t.pos_y);
    }
}
