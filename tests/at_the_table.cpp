// SPDX-License-Identifier: GPL-3.0-or-later
#include "at_the_table.h"

#include "computer/hand_reading.h"
#include "game/piles.h"
#include "game/table_state.h"
#include "melds/table_melds.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sstream>

namespace {

void clic_in(Box const& b) { clic(1, (b.x1 + b.x2) / 2, (b.y1 + b.y2) / 2); }

// On each of these cards of the human's hand.
void clic_carte(int tasto, std::string const& carte)
{
    std::istringstream parole(carte);
    for (std::string nome; parole >> nome;)
        for (int s = 1; s <= tavolo.n_carte(umano); ++s)
            if (senza_scelta(tavolo.mano(umano, s)) == carta_da(nome)) {
                clic_mano(tasto, s);
                break;
            }
}

void leggi(std::string_view testo)
{
    if (leggi_tavolo(testo))
        return;
    std::fprintf(stderr, "no table: %s\n", std::string(testo).c_str());
    std::abort();
}

}  // namespace

void apparecchia(std::string_view testo)
{
    avvia_programma();
    leggi(testo);
    tavolo.velocita = 0.5F;
    tavolo.nomi(0) = "Player1";
    tavolo.nomi(1) = "Player2";
    if (tavolo.turno == 0)
        tavolo.turno = 1;
    superficie.font_name("Arial");
}

void in_scena(Pixels pixels, std::string_view testo)
{
    avvia_programma(pixels);
    fino_all_attesa();
    while (tavolo.azione == 7)
        clic(1, 512, 384);
    fino_all_attesa();
    while (tavolo.turno != 1)
        fino_all_attesa();
    leggi(std::string(testo) + " turno 1 pescato 1 cartaro 2");
    disegno_dorsi();
    mostra_pozzo();
    mostra_tallone();
    auto const& t = tavolo;
    for (int p : {computer, umano})
        superficie.fill_box(striscia_calate(p), colori::fascia);
    for (int p : {1, 2})
        if (t.n_calate(p) > 0)
            calo_carte(p);
    // The hand shows itself after each action: a card goes up and down again.
    clic_mano(2, t.n_carte(1));
    clic_mano(2, t.n_carte(1));
}

bool gioca(Task procedura)
{
    runner.start(std::move(procedura));
    fino_all_attesa();
    return !runner.alive();
}

void clic_mano(int tasto, int slot)
{
    clic(tasto, x_mano(slot) + tavolo.larg_carta / 2, y_mano_umano + tavolo.alt_carta / 2);
}

void pesca_pozzo() { clic_in(posto_pozzo()); }
void pesca_tallone() { clic_in(posto_tallone()); }
void scegli(std::string const& carte) { clic_carte(2, carte); }
void scarta(std::string const& carta) { clic_carte(1, carta); }
void clic_calate(Single x) { clic(1, x, tavolo.centro_y + 120 + tavolo.alt_carta / 2); }

Single x_calate(int i) { return x_calata(i) + passo_calate() / 2; }

bool si_legge(std::string_view testo)
{
    return std::ranges::count(superficie.marks(), testo, &Mark::testo) > 0;
}
