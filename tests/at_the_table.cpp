// SPDX-License-Identifier: GPL-3.0-or-later
#include "at_the_table.h"

#include "computer/hand_reading.h"
#include "game/piles.h"
#include "game/table_state.h"
#include "melds/table_melds.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace {

void clic_in(Box (*posto)())
{
    Box const b = posto();
    clic(1, (b.x1 + b.x2) / 2, (b.y1 + b.y2) / 2);
}

void clic_carte(int tasto, std::string const& carte)
{
    std::istringstream parole(carte);
    for (std::string nome; parole >> nome;)
        clic_mano(tasto, slot_umano(nome));
}

void clic_riga(int posto) { clic(1, x_calate(posto), tavolo.centro_y + 120 + tavolo.alt_carta / 2); }

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

std::string contenuto(std::filesystem::path const& file)
{
    std::ostringstream testo;
    testo << std::ifstream(file, std::ios::binary).rdbuf();
    return testo.str();
}

bool gioca(Task procedura, std::vector<Azione> const& azioni)
{
    runner.start(std::move(procedura));
    fino_all_attesa();
    for (auto const& azione : azioni)
        if (runner.alive()) {
            azione();
            fino_all_attesa();
        }
    return !runner.alive();
}

int slot_umano(std::string_view carta)
{
    int const codice = carta_da(carta);
    for (int s = 1; s <= tavolo.n_carte(1); ++s)
        if (senza_scelta(tavolo.mano(1, s)) == codice)
            return s;
    return 0;
}

void clic_mano(int tasto, int slot)
{
    clic(tasto, x_mano(slot) + tavolo.larg_carta / 2, y_mano_umano + tavolo.alt_carta / 2);
}

Azione pesca_pozzo() { return std::bind_front(clic_in, posto_pozzo); }
Azione pesca_tallone() { return std::bind_front(clic_in, posto_tallone); }
Azione scegli(std::string_view carte) { return std::bind_front(clic_carte, 2, std::string(carte)); }
Azione clic_calate(int posto) { return std::bind_front(clic_riga, posto); }
Azione scarta(std::string_view carta) { return std::bind_front(clic_carte, 1, std::string(carta)); }

Single x_calate(int i) { return x_calata(i) + passo_calate() / 2; }

std::vector<Mark> scritte()
{
    auto tutte = std::vector(superficie.marks().begin(), superficie.marks().end());
    std::erase_if(tutte, [](Mark const& m) { return m.kind != Mark::Kind::text; });
    return tutte;
}

bool si_legge(std::string_view testo) { return std::ranges::count(scritte(), testo, &Mark::testo) > 0; }

int figura_a(Single x, Single y)
{
    int figura = 0;
    for (auto const& m : superficie.marks()) {
        if (m.kind == Mark::Kind::picture && std::abs(m.box.x1 - x) < 0.01F && std::abs(m.box.y1 - y) < 0.01F)
            figura = m.figura;
        else if (m.kind == Mark::Kind::fill && m.box.contains({x + 1, y + 1, x + 2, y + 2}))
            figura = 0;
    }
    return figura;
}
