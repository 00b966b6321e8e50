// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/table_check.h"

#include "game/table_state.h"
#include "game/table_text.h"

#include <cstdio>
#include <cstdlib>

namespace {

// A number out of its bounds shows the table too.
[[maybe_unused]] bool const agganciato = [] {
    if constexpr (controllato)
        prima_di_fermare = [] { std::fprintf(stderr, "%s\n", mostra_tutto().c_str()); };
    return controllato;
}();

// The cards are in their places. They are not while the dealer is chosen, which shows in valore_scelta until the
// next hand is set up, and while they are dealt.
bool distribuite()
{
    auto const& t = tavolo;
    return t.azione != azioni::ignora && t.azione != azioni::taglia && t.valore_scelta(umano) == 0 &&
           t.mano(umano, 1) + t.mano(computer, 1) != 0;
}

// The computer's last slot is a copy of the pile's top until it is taken or dropped.
bool carta_provvisoria()
{
    auto const& t = tavolo;
    return t.turno == computer && !t.pescato && t.n_pozzo > 0 && t.n_carte(computer) > 0 &&
           t.mano(computer, t.n_carte(computer)) == t.pozzo(t.n_pozzo - 1);
}

std::string guasto_calate(int p)
{
    auto const& t = tavolo;
    int carte = 0;
    for (int i = 1; i <= t.n_calate(p); ++i) {
        int const voce = t.calate(p, i);
        if (voce != segnacalata && (voce < 1 || voce > carte_mazzo))
            return "no card in calate";
        if (voce == segnacalata && carte < 3)
            return "a meld of fewer than three cards";
        carte = voce == segnacalata ? 0 : carte + 1;
    }
    return carte == 0 ? "" : "a meld without its marker";
}

std::string guasto_liste()
{
    auto const guasto = guasto_calate(umano);
    return guasto.empty() ? guasto_calate(computer) : guasto;
}

// How often each face is there; 0 counts empty places among the cards.
class Conteggio {
  public:
    Conteggio()
    {
        for (int p : {umano, computer})
            conta_di(p);
        auto const& t = tavolo;
        for (int i = 0; i < t.n_pozzo; ++i)
            conta(t.pozzo(i));
        for (int i = t.cima_tallone; i <= carte_mazzo; ++i)
            conta(t.mazzo(i));
        if (carte_ == carte_mazzo + 1 && carta_provvisoria())
            --facce_(prima_copia(t.mano(computer, t.n_carte(computer))));
    }
    int faccia(int f) const { return facce_(f); }

  private:
    void conta(int carta)
    {
        ++facce_(prima_copia(carta));
        ++carte_;
    }
    void conta_di(int p)
    {
        auto const& t = tavolo;
        for (int i = 1; i <= t.n_calate(p); ++i)
            if (t.calate(p, i) != segnacalata)
                conta(t.calate(p, i));
        for (int s = 1; s <= t.n_carte(p); ++s)
            if (p == umano || t.turno == umano ||
                t.mano(p, s) != 0)  // a gap that the computer's turn closes again
                conta(senza_scelta(t.mano(p, s)));
    }

    Serie<int, 52> facce_;
    int carte_ = 0;
};

std::string guasto_facce()
{
    Conteggio const tavola;
    for (int f = 1; f <= 52; ++f)
        if (tavola.faccia(f) != 2)
            return nome_carta(f) + " is there " + std::to_string(tavola.faccia(f)) + " times";
    return tavola.faccia(0) == 0 ? "" : "an empty place among the cards";
}

// One card fewer than 78 while a player holds the card of his turn, or is out.
std::string guasto_pozzo_e_tallone()
{
    auto const& t = tavolo;
    int const carte = t.n_pozzo + tallone_vuoto - t.cima_tallone;
    bool const una_in_mano = t.pescato || t.n_carte(umano) == 0 || t.n_carte(computer) == 0;
    if (carte == max_pozzo || (carte == max_pozzo - 1 && una_in_mano))
        return "";
    return "pile and stock are " + std::to_string(carte) + " cards";
}

// In its own turn the computer uses its map as a scratch board.
std::string guasto_mappa()
{
    auto const& t = tavolo;
    if (t.turno != umano)
        return "";
    Mappa vera;
    vera.vuota();
    for (int s = 1; s <= t.n_carte(computer); ++s)
        vera.segna(t.mano(computer, s));
    return vera == t.mappa(computer) ? "" : "the computer's map is not its hand";
}

}  // namespace

std::string guasto_tavolo()
{
    if (!distribuite())
        return "";
    for (auto const cerca : {guasto_liste, guasto_facce, guasto_pozzo_e_tallone, guasto_mappa})
        if (auto guasto = cerca(); !guasto.empty())
            return guasto;
    return "";
}

void controlla_tavolo()
{
    if constexpr (controllato)
        if (auto const guasto = guasto_tavolo(); !guasto.empty()) {
            std::fprintf(stderr, "%s\n", guasto.c_str());
            prima_di_fermare();
            std::abort();
        }
}
