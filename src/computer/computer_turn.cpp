// SPDX-License-Identifier: GPL-3.0-or-later
#include "computer/computer_turn.h"

#include "computer/attach_decision.h"
#include "computer/computer_draw.h"
#include "computer/discard_decision.h"
#include "computer/hand_reading.h"
#include "computer/meld_decision.h"
#include "computer/sight.h"
#include "game/wait.h"
#include "melds/table_melds.h"
#include "window/window.h"

namespace {

void rileggo_mano()
{
    compatto_mano(computer);
    rifaccio_mappa(computer);
}

// The pile's top as a copy in the last slot. The pile keeps it.
void carta_provvisoria()
{
    auto& t = tavolo;
    t.pescato = false;
    ++t.n_carte(computer);
    t.mano(computer, t.n_carte(computer)) = cima_pozzo();
}

// The provisional card was of no use: a stock card comes into its slot.
void pesca_dal_tallone()
{
    auto& t = tavolo;
    --t.n_carte(computer);
    pesco_carta(dal_tallone);
    t.pescato = true;
    rileggo_mano();
    disegno_dorsi();
}

}  // namespace

Task Gioco2()
{
    auto& t = tavolo;
    mouse_pointer(Pointer::hourglass);
    co_await ritardo(0.1F);
    t.n_decise = 0;
    t.pescato = false;
    t.mappa_copia = t.mappa(computer);
    if (t.n_carte(computer) >= 4)
        decido_calata();
    if (t.n_decise != 0) {
        t.pescato = true;
        calo_carte(computer);
        disegno_dorsi();
    } else {
        carta_provvisoria();
        co_await ritardo(0.2F);
    }
    rileggo_mano();
    Provo_Attacco(computer, computer);
    co_await ritardo(0.2F);
    rileggo_mano();
    if (!t.pescato)
        pesca_dal_tallone();
    if (t.n_carte(computer) != 0)
        co_await scarto_carta();
    rileggo_mano();
    disegno_dorsi();
    co_await ritardo(0.2F);
}
