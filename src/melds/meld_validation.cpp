// SPDX-License-Identifier: GPL-3.0-or-later
#include "melds/meld_validation.h"

#include "game/places.h"
#include "melds/attach_rules.h"
#include "melds/table_melds.h"

#include <algorithm>

namespace {

// The last card of the meld that a click at x aims at, or 0. The last marker is the tail's own: its region
// counts for the last real meld, whose last card stands in front of tail and marker.
// Wanted: the regions are a step wider than the pictures, so that each lies further right of its meld.
int bersaglio(Single x)
{
    auto const& t = tavolo;
    Single const passo = passo_calate();
    Single sinistra = x_calata(1);
    Single destra = sinistra;
    int const n = t.n_calate(umano);
    for (int i = 1; i <= n; ++i) {
        if (!segno(umano, i)) {
            destra += passo;
            continue;
        }
        destra += 2 * passo;
        if (i == n)
            destra += 3 * passo;
        if (x > sinistra && x < destra)
            return i == n ? i - 3 : i - 1;
        sinistra = destra;
    }
    return 0;
}

// Attaches the tail's card to the meld at pos_calata, if it fits. True if it went to a run: then the whole
// list is still to be walked and runs may join.
bool attacca()
{
    auto& t = tavolo;
    if (!scala(umano, t.pos_calata)) {
        attacco_poker(umano);
        return false;
    }
    if (Seme(t.calate(umano, t.n_calate(umano) - 1)) != Seme(t.calate(umano, t.pos_calata)))
        return false;
    attacco_scala(umano);
    if (!t.esito_attacco)
        return false;
    ord_crescente_calata(umano);
    return true;
}

// Whether each pair of neighbours in the whole list is a step of a run or of a set. It judges pairs, not
// melds.
bool cammina()
{
    auto const& t = tavolo;
    ord_crescente_calata(umano);
    Serie<bool, 4> semi_visti;
    for (int i = 2;; ++i) {
        if (segno(umano, i)) {
            i += 2;
            semi_visti = {};
            if (i > t.n_calate(umano))
                return true;
        }
        Carta const a = t.calate(umano, i - 1);
        Carta const b = t.calate(umano, i);
        if (Seme(a) == Seme(b)) {
            if (!segue(ValCarta(a), ValCarta(b)))
                return false;
        } else {
            if (ValCarta(a) != ValCarta(b))
                return false;
            semi_visti(Seme(a)) = true;
            if (semi_visti(Seme(b)))
                return false;
        }
    }
}

// Whether the melds on either side of the marker at i are runs that carry each other on. A set has equal
// ranks where a run must step.
bool si_uniscono(int i)
{
    auto const& t = tavolo;
    auto const carta = [](int pos) -> Carta { return t.calate(umano, pos); };
    int const prima_s = prima_carta(umano, i - 1), ultima_s = i - 1;
    int const prima_d = i + 1, ultima_d = ultima_carta(umano, i + 1);
    if (Seme(carta(ultima_s)) != Seme(carta(prima_d)) ||
        ValCarta(carta(ultima_s)) == ValCarta(carta(ultima_s - 1)) ||
        ValCarta(carta(prima_d)) == ValCarta(carta(prima_d + 1)))
        return false;
    return segue(ValCarta(carta(ultima_s)), ValCarta(carta(prima_d))) ||
           segue(ValCarta(carta(ultima_d)), ValCarta(carta(prima_s)));
}

// The bound is read anew after each join, which takes a marker out of the list.
void unisci_scale()
{
    for (int i = 1; i < tavolo.n_calate(umano); ++i)
        if (segno(umano, i) && si_uniscono(i))
            togli_segno(umano, i);
}

}  // namespace

void controllo_calata(Single x)
{
    auto& t = tavolo;
    t.esito_attacco = false;
    if (t.n_scelte == 1) {
        int const ultima = bersaglio(x);
        if (ultima == 0)
            return;
        t.pos_calata = ultima;
        if (!attacca())
            return;
    }
    if (!cammina())
        return;  // Wanted: an attach that was accepted stands, it only joins nothing.
    t.esito_attacco = true;
    unisci_scale();
}

void ord_crescente_calata(int p)
{
    auto& t = tavolo;
    for (int prima = 1; prima <= t.n_calate(p);) {
        int const ultima = ultima_carta(p, prima);
        auto* const da = &t.calate(p, prima);
        auto* const a = &t.calate(p, ultima) + 1;
        std::stable_sort(da, a, [](Carta x, Carta y) { return ValCarta(x) < ValCarta(y); });
        auto* const buco =
            std::adjacent_find(da, a, [](Carta x, Carta y) { return ValCarta(y) != ValCarta(x) + 1; });
        if (buco != a)
            std::rotate(da, buco + 1, a);
        prima = ultima + 2;
    }
}
