// SPDX-License-Identifier: GPL-3.0-or-later
#include "at_the_table.h"

#include "game/piles.h"
#include "game/table_state.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>

namespace {
void clic_sul(Box const& b) { clic(1, (b.x1 + b.x2) / 2, (b.y1 + b.y2) / 2); }
}  // namespace

void apparecchia(std::string_view testo)
{
    avvia_programma();
    if (!leggi_tavolo(testo)) {
        ADD_FAILURE() << "no table: " << testo;
        std::abort();
    }
    tavolo.velocita = 0.5F;
    tavolo.nomi(0) = "Player1";
    tavolo.nomi(1) = "Player2";
    if (tavolo.turno == 0)
        tavolo.turno = 1;
    superficie.font_name("Arial");
}

std::string contenuto(std::filesystem::path const& file)
{
    std::ostringstream testo;
    testo << std::ifstream(file, std::ios::binary).rdbuf();
    return testo.str();
}

bool gioca(Task procedura, std::initializer_list<Azione> azioni)
{
    runner.start(std::move(procedura));
    fino_all_attesa();
    for (auto const& azione : azioni) {
        if (!runner.alive())
            break;
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

Azione pesca_pozzo()
{
    return [] { clic_sul(posto_pozzo()); };
}
Azione pesca_tallone()
{
    return [] { clic_sul(posto_tallone()); };
}

Azione scegli(std::string_view carte)
{
    return [nomi = std::string(carte)] {
        std::istringstream parole(nomi);
        for (std::string nome; parole >> nome;)
            clic_mano(2, slot_umano(nome));
    };
}

Single x_calate(int i)
{
    return tavolo.centro_x - 200 + (static_cast<Single>(i) - 0.5F) * tavolo.larg_carta / 5;
}

Azione clic_calate(int posto)
{
    return [posto] { clic(1, x_calate(posto), tavolo.centro_y + 120 + tavolo.alt_carta / 2); };
}

Azione scarta(std::string_view carta)
{
    return [nome = std::string(carta)] { clic_mano(1, slot_umano(nome)); };
}

std::vector<std::string> testi()
{
    std::vector<std::string> tutti;
    for (auto const& m : superficie.marks())
        if (m.kind == Mark::Kind::text)
            tutti.push_back(m.testo);
    return tutti;
}

bool si_legge(std::string_view testo)
{
    for (auto const& t : testi())
        if (t == testo)
            return true;
    return false;
}

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
