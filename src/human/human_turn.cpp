// SPDX-License-Identifier: GPL-3.0-or-later
#include "human/human_turn.h"

#include "audio/sound_music.h"
#include "game/piles.h"
#include "game/shuffle.h"
#include "game/table_state.h"
#include "game/wait.h"
#include "melds/meld_validation.h"
#include "melds/table_melds.h"
#include "players/player_names.h"
#include "window/window.h"

#include <algorithm>

namespace {

bool scelto(int slot) { return tavolo.mano(umano, slot) > scelta; }

int slot_del_clic()
{
    auto const& t = tavolo;
    return std::min(static_cast<int>(t.click_x / t.larg_carta) + 1, static_cast<int>(t.n_carte(umano)));
}

void disegno_mano()
{
    auto& t = tavolo;
    superficie.fill_box(striscia_mano(umano), colori::tavolo);
    Posiziona_Players();
    for (int s = 1; s <= t.n_carte(umano); ++s) {
        t.pos_x = x_mano(s);
        t.pos_y = scelto(s) ? y_scelta_alta : y_mano_umano;
        dipingi(faccia(senza_scelta(t.mano(umano, s))), t.pos_x, t.pos_y);
    }
}

// Takes the card of the turn from the pile or the stock into the next free slot. Once a turn.
bool pesca(bool dal_pozzo)
{
    auto& t = tavolo;
    if (t.pescato)
        return false;
    suona();
    if (dal_pozzo) {
        prendi_dal_pozzo(umano);
    } else {
        prendi_dal_tallone(umano);
        mostra_tallone();
    }
    t.pescato = true;
    return true;
}

void scegli_carta()
{
    auto& carta = tavolo.mano(umano, slot_del_clic());
    carta += carta > scelta ? -scelta : scelta;
}

// Lays the selected cards as a new meld, or attaches the one that is selected. Whatever comes of it, the
// selection is gone. False if nothing was selected.
bool cala()
{
    auto& t = tavolo;
    Serie<Byte, max_mano> slot_scelti;
    t.n_scelte = 0;
    for (int s = 1; s <= t.n_carte(umano); ++s)
        if (scelto(s)) {
            ++t.n_scelte;
            slot_scelti(t.n_scelte) = static_cast<Byte>(s);
            t.mano(umano, s) -= scelta;
            if (int const posto = t.n_calate(umano) + t.n_scelte; posto <= max_calate)
                t.calate(umano, posto) = int{t.mano(umano, s)};
        }
    int const n = t.n_scelte;
    if (n == 0)
        return false;
    bool const troppo_poche = n == 2 || (n == 1 && t.n_calate(umano) == 0);
    if (troppo_poche || !posto_per_coda(umano, n))
        return true;

    chiudi_coda(umano, n);
    controllo_calata(t.click_x);
    if (!t.esito_attacco) {
        togli_coda(umano, n);
        raggruppo_carte();
        t.n_scelte = 0;
        return true;
    }
    ord_crescente_calata(umano);
    for (int k = 1; k <= n; ++k)
        t.mano(umano, slot_scelti(k)) = 0;
    raggruppo_carte();
    t.n_carte(umano) -= n;
    calo_carte(umano);
    suona();
    return true;
}

bool qualcuna_scelta()
{
    for (int s = 1; s <= tavolo.n_carte(umano); ++s)
        if (scelto(s))
            return true;
    return false;
}

// Brings all selected cards down. False if there was none.
bool annulla_scelta()
{
    auto& t = tavolo;
    if (!qualcuna_scelta())
        return false;
    for (int s = 1; s <= t.n_carte(umano); ++s)
        t.mano(umano, s) = senza_scelta(t.mano(umano, s));
    return true;
}

void scarta()
{
    auto& t = tavolo;
    int const slot = slot_del_clic();
    metti_sul_pozzo(t.mano(umano, slot));
    t.mano(umano, slot) = 0;
    raggruppo_carte();
    --t.n_carte(umano);
    suona();
}

// Carries out an action that does not end the turn. True if there is something new to see.
bool esegui(int azione)
{
    switch (azione) {
    case azioni::pesca_pozzo: return pesca(true);
    case azioni::pesca_tallone: return pesca(false);
    case azioni::scegli: scegli_carta(); return true;
    case azioni::cala: return cala();
    default: return annulla_scelta();
    }
}

}  // namespace

Task Gioco1()
{
    auto& t = tavolo;
    t.pescato = false;
    for (;;) {
        t.azione = azioni::nessuna;
        mouse_pointer(Pointer::arrow);
        while (t.azione == azioni::nessuna)
            co_await eventi();

        if (t.azione == azioni::scarta && t.pescato && !qualcuna_scelta()) {
            scarta();
            disegno_mano();
            co_await ritardo(0.1F);
            co_await rimescola_se_finito();
            co_return;
        }
        if (esegui(t.azione))
            disegno_mano();
        if (t.n_carte(umano) == 0)  // a lay took every card: there is none to discard
            co_return;
    }
}

void raggruppo_carte()
{
    auto& t = tavolo;
    std::stable_sort(&t.mano(umano, 1), &t.mano(umano, max_mano) + 1,
                     [](Carta a, Carta b) { return ValCarta(a) > ValCarta(b); });
}
