// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/shuffle.h"

#include "game/piles.h"
#include "game/random.h"
#include "game/table_state.h"
#include "game/wait.h"
#include "window/window.h"

namespace {

// Moves mazzo_tmp(primo..104) to mazzo(primo..104) in a new order: draws an entry until it is one that has
// not gone yet.
void mescola_da(int primo, Integer azzeramento)
{
    auto& t = tavolo;
    azzera_caso(azzeramento);
    semina_caso(time_of_day());
    int const quante = carte_mazzo - primo + 1;
    for (int i = primo; i <= carte_mazzo; ++i) {
        int k = caso_tra(primo, quante);
        while (t.mazzo_tmp(k) == 0)
            k = caso_tra(primo, quante);
        t.mazzo(i) = t.mazzo_tmp(k);
        t.mazzo_tmp(k) = 0;
    }
}

}  // namespace

void Mescola()
{
    for (int i = 1; i <= carte_mazzo; ++i)
        tavolo.mazzo_tmp(i) = i;
    mescola_da(1, -1);
}

Task Rimescola()
{
    auto& t = tavolo;
    Box const pozzo = posto_pozzo();
    Box const tallone = posto_tallone();
    Box const mazzetto = posto_rimescolo();

    superficie.print_at(x_messaggio(), y_messaggio());
    co_await ritardo(0.1F);
    superficie.print("Rimescolo le carte del Pozzo");
    superficie.fill_box({pozzo.x1, pozzo.y1, tallone.x2, tallone.y2}, colori::tavolo);
    dipingi(dorsov(0), mazzetto.x1, mazzetto.y1);
    co_await ritardo(0.5F);

    for (int i = primo_scarto; i <= carte_mazzo; ++i)
        t.mazzo_tmp(i) = t.pozzo(i - primo_scarto);
    mescola_da(primo_scarto, -5);
    t.n_pozzo = 1;
    t.pozzo(0) = t.mazzo(primo_scarto);
    t.cima_tallone = primo_tallone;
    co_await ritardo(1.0F);

    superficie.fill_box(mazzetto, colori::tavolo);
    superficie.fill_box(posto_messaggio(), colori::tavolo);
    mostra_pozzo();
    mostra_tallone();
    co_await ritardo(0.5F);
}

Task rimescola_se_finito()
{
    if (tavolo.n_pozzo != max_pozzo)
        co_return;
    superficie.fill_box(posto_tallone(), colori::tavolo);
    co_await Rimescola();
}
