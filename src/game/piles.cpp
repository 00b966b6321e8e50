// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/piles.h"

#include "game/table_state.h"

void dipingi(Figura figura, Single x, Single y)
{
    auto const& t = tavolo;
    superficie.paint_picture(figura, x, y, t.larg_carta, t.alt_carta);
}

void mostra_pozzo()
{
    auto const& t = tavolo;
    Box const posto = posto_pozzo();
    if (t.n_pozzo == 0)
        superficie.fill_box(posto, colori::tavolo);
    else
        dipingi(faccia(t.pozzo(t.n_pozzo - 1)), posto.x1, posto.y1);
}

void mostra_tallone()
{
    auto const& t = tavolo;
    Box const posto = posto_tallone();
    if (t.cima_tallone <= carte_mazzo)
        dipingi(dorso(t.mazzo(t.cima_tallone)), posto.x1, posto.y1);
}

void prendi_dal_pozzo(int p)
{
    auto& t = tavolo;
    ++t.n_carte(p);
    t.mano(p, t.n_carte(p)) = t.pozzo(t.n_pozzo - 1);
    --t.n_pozzo;
    mostra_pozzo();
}

void prendi_dal_tallone(int p)
{
    auto& t = tavolo;
    ++t.n_carte(p);
    t.mano(p, t.n_carte(p)) = t.mazzo(t.cima_tallone);
    ++t.cima_tallone;
}

void metti_sul_pozzo(Carta carta)
{
    auto& t = tavolo;
    ++t.n_pozzo;
    t.pozzo(t.n_pozzo - 1) = carta;
    mostra_pozzo();
}
