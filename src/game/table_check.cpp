// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/table_check.h"

#include "game/table_state.h"
#include "game/table_text.h"

#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void ferma(std::string const& perche)
{
    std::fprintf(stderr, "%s\n%s\n", perche.c_str(), mostra_tutto().c_str());
    std::abort();
}

// From the choice of the dealer, whose ranks the set-up of the hand clears, to the end of the deal the cards
// are not in their places.
bool distribuite()
{
    auto const& t = tavolo;
    return t.azione != 15 && t.azione != 7 && t.valore_scelta(1) == 0 && t.mano(1, 1) + t.mano(2, 1) != 0;
}

// The computer's last slot is a copy of the pile's top until it is taken or dropped.
bool carta_provvisoria()
{
    auto const& t = tavolo;
    return t.turno == 2 && !t.pescato && t.n_pozzo > 0 && t.n_carte(2) > 0 &&
           t.mano(2, t.n_carte(2)) == t.pozzo(t.n_pozzo - 1);
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

}  // namespace

std::string guasto_tavolo()
{
    auto const& t = tavolo;
    if (!distribuite())
        return "";
    Serie<int, 52> facce;
    int carte = 0;
    auto const conta = [&](int carta) {
        ++facce(prima_copia(carta));
        ++carte;
    };
    for (int p = 1; p <= 2; ++p) {
        if (auto const guasto = guasto_calate(p); !guasto.empty())
            return guasto;
        for (int i = 1; i <= t.n_calate(p); ++i)
            if (t.calate(p, i) != segnacalata)
                conta(t.calate(p, i));
        for (int s = 1; s <= t.n_carte(p); ++s)
            if (p == 1 || t.turno == 1 || t.mano(p, s) != 0)  // a gap that the computer's turn closes again
                conta(senza_scelta(t.mano(p, s)));
    }
    for (int i = 0; i < t.n_pozzo; ++i)
        conta(t.pozzo(i));
    for (int i = t.cima_tallone; i <= carte_mazzo; ++i)
        conta(t.mazzo(i));
    if (carte == carte_mazzo + 1 && carta_provvisoria()) {
        --facce(prima_copia(t.mano(2, t.n_carte(2))));
        --carte;
    }
    for (int f = 1; f <= 52; ++f)
        if (facce(f) != 2)
            return nome_carta(f) + " is there " + std::to_string(facce(f)) + " times";
    if (facce(0) != 0)
        return "an empty place among the cards";

    int const pozzo_e_tallone = t.n_pozzo + carte_mazzo + 1 - t.cima_tallone;
    bool const fuori_turno = t.n_carte(1) == 0 || t.n_carte(2) == 0;
    if (pozzo_e_tallone != max_pozzo && !(pozzo_e_tallone == max_pozzo - 1 && (t.pescato || fuori_turno)))
        return "pile and stock are " + std::to_string(pozzo_e_tallone) + " cards";

    if (t.turno == 1) {
        Mappa vera;
        vera.vuota();
        for (int s = 1; s <= t.n_carte(2); ++s)
            vera.segna(t.mano(2, s));
        if (vera != t.mappa(2))
            return "the computer's map is not its hand";
    }
    return "";
}

void controlla_tavolo()
{
    if constexpr (controllato)
        if (!tavolo_coerente())
            ferma(guasto_tavolo());
}

void fuori_limiti(int valore, int minimo, int massimo)
{
    ferma("out of bounds: " + std::to_string(valore) + " is not within " + std::to_string(minimo) + " and " +
          std::to_string(massimo));
}
