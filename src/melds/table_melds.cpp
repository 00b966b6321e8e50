// SPDX-License-Identifier: GPL-3.0-or-later
#include "melds/table_melds.h"

#include "game/piles.h"

void calo_carte(int p)
{
    auto& t = tavolo;
    t.pos_x = striscia_calate(p).x1;
    t.pos_y = striscia_calate(p).y1;
    // Wanted: a line along the top is all that is cleared.
    superficie.line(t.pos_x, t.pos_y, t.pos_x + t.larg_carta * 16 / 3.6F, t.pos_y, colori::tavolo);
    for (int i = 1; i <= t.n_calate(p); ++i)
        if (!segno(p, i))
            dipingi(faccia(t.calate(p, i)), x_calata(i), t.pos_y);
    ++t.n_calo(p - 1);
}

bool posto_per_coda(int p, int k) { return tavolo.n_calate(p) + k + 1 <= max_calate; }

void chiudi_coda(int p, int k)
{
    auto& t = tavolo;
    t.n_calate(p) += k + 1;
    t.calate(p, t.n_calate(p)) = segnacalata;
}

void togli_coda(int p, int k)
{
    auto& t = tavolo;
    int const n = t.n_calate(p);
    for (int i = n - k; i <= n; ++i)
        t.calate(p, i) = 0;
    t.n_calate(p) = n - k - 1;
}

int prima_carta(int p, int ultima)
{
    int i = ultima;
    while (i > 1 && !segno(p, i - 1))
        --i;
    return i;
}

int ultima_carta(int p, int prima)
{
    int i = prima;
    while (!segno(p, i + 1))
        ++i;
    return i;
}

bool scala(int p, int ultima)
{
    auto const& t = tavolo;
    return Seme(t.calate(p, ultima)) == Seme(t.calate(p, ultima - 1));
}

void inserisci_coda(int p, int ultima)
{
    auto& t = tavolo;
    int const n = t.n_calate(p);
    Carta const carta = t.calate(p, n - 1);
    t.calate(p, n) = 0;
    t.n_calate(p) = n - 1;
    for (int i = n - 1; i > ultima; --i)
        t.calate(p, i) = t.calate(p, i - 1);
    t.calate(p, ultima) = carta;
}

void togli_segno(int p, int i)
{
    auto& t = tavolo;
    for (int j = i; j < t.n_calate(p); ++j)
        t.calate(p, j) = t.calate(p, j + 1);
    --t.n_calate(p);
}
