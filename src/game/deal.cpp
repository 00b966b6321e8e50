// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/deal.h"

#include "audio/sound_music.h"
#include "game/piles.h"
#include "game/shuffle.h"
#include "game/table_state.h"
#include "game/wait.h"
#include "players/player_names.h"
#include "window/menus.h"

namespace {

constexpr int primo_pacchetto = 1, secondo_pacchetto = primo_pacchetto + carte_smazzata;

void disegno_arredo()
{
    superficie.outline_box(cornice(), colori::cornice);
    superficie.fill_box(striscia_calate(computer), colori::fascia);
    superficie.fill_box(striscia_calate(umano), colori::fascia);
}

// Thirteen cards of mazzo, from entry da, to player p. The counter is the shared one.
Task dai_pacchetto(int p, int da)
{
    auto& t = tavolo;
    Box const tallone = posto_tallone();
    for (t.i = da; t.i < da + carte_smazzata; ++t.i) {
        int const slot = t.i - da + 1;
        t.pos_x = x_mano(slot);
        t.pos_y = y_mano(p);
        co_await ritardo(0.03F);
        Carta const carta = t.mazzo(t.i);
        dipingi(p == umano ? faccia(carta) : dorso(carta), t.pos_x, t.pos_y);
        dipingi(dorso(t.mazzo(t.i + 1)), tallone.x1, tallone.y1);  // the deck shows its real next card
        suona();
        t.mano(p, slot) = carta;
        t.mappa(p).segna(carta);
    }
}

}  // namespace

void disegno_titolo()
{
    superficie.print_at(x_titolo, y_titolo());
    superficie.font_name("Brush Script MT");
    superficie.font_size(tavolo.scala_y * 20);
    superficie.text_colour(colori::bianco);
    superficie.print_line("SollevinoDue");
    superficie.font_name("Arial");
    superficie.font_size(8);
    superficie.print_x(x_titolo);
    superficie.print_line("by Cartovendo");
}

Task daicarte()
{
    auto& t = tavolo;
    t.azione = azioni::ignora;
    Posiziona_Players();
    enable(Menu::play_rate, false);
    disegno_arredo();
    disegno_titolo();
    Mescola();
    Apri_suono("carta");
    Box const tallone = posto_tallone();
    dipingi(dorsov(0), tallone.x1, tallone.y1);

    if (t.cartaro == computer) {
        co_await dai_pacchetto(umano, primo_pacchetto);
        co_await ritardo(0.1F);
        co_await dai_pacchetto(computer, secondo_pacchetto);
        co_await ritardo(0.1F);
    } else {
        co_await dai_pacchetto(computer, primo_pacchetto);
        co_await dai_pacchetto(umano, secondo_pacchetto);
    }

    t.n_pozzo = 1;
    t.pozzo(0) = t.mazzo(primo_scarto);
    t.cima_tallone = primo_tallone;
    mostra_pozzo();
    mostra_tallone();
    co_await ritardo(0.01F);
    enable(Menu::play_rate, true);
    t.azione = azioni::nessuna;
}
