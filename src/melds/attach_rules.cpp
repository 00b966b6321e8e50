// SPDX-License-Identifier: GPL-3.0-or-later
#include "melds/attach_rules.h"

#include "melds/table_melds.h"

void attacco_poker(int p)
{
    auto& t = tavolo;
    Carta const carta = t.carta_scelta = int{t.calate(p, t.n_calate(p) - 1)};
    int const z = t.pos_calata;
    if (z - prima_carta(p, z) + 1 == 4)
        return;
    if (ValCarta(carta) != ValCarta(t.calate(p, z))) {
        t.esito_attacco = false;
        return;
    }
    int const semi = Seme(t.calate(p, z)) + Seme(t.calate(p, z - 1)) + Seme(t.calate(p, z - 2));
    if (Seme(carta) != somma_semi - semi)
        return;
    inserisci_coda(p, z);
    t.esito_attacco = true;
}

void attacco_scala(int p)
{
    auto& t = tavolo;
    t.carta_scelta = int{t.calate(p, t.n_calate(p) - 1)};
    int const valore = ValCarta(t.carta_scelta);
    int const prima = ValCarta(t.calate(p, prima_carta(p, t.pos_calata)));
    int const ultima = ValCarta(t.calate(p, t.pos_calata));
    t.esito_attacco = prolunga(valore, prima, ultima);
    if (t.esito_attacco)
        inserisci_coda(p, t.pos_calata);
}
