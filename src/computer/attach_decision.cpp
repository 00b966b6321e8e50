// SPDX-License-Identifier: GPL-3.0-or-later
#include "computer/attach_decision.h"

#include "computer/computer_draw.h"
#include "computer/hand_reading.h"
#include "melds/attach_rules.h"
#include "melds/meld_validation.h"
#include "melds/table_melds.h"
#include "window/window.h"

namespace {

// Whether the row of a suit holds no card beside the one of that rank. The Ace looks at Two and Three, the
// King at Queen and Jack.
bool isolata(std::string_view riga, int v)
{
    if (v == 1)
        return riga.substr(0, 3) == "*__";
    if (v == 13)
        return riga.substr(10, 3) == "__*";
    return riga.substr(static_cast<std::size_t>(v) - 2, 3) == "_*_";
}

// Slot of the first card of the hand to attach to the run from inizio to ultima, or 0.
int carta_per_scala(int mano_di, int calate_di, int inizio, int ultima)
{
    auto const& t = tavolo;
    int const seme = Seme(t.calate(calate_di, ultima));
    auto const mappa_best = t.mappa(mano_di).riga(seme - 1);
    if (mappa_best == niente_del_seme)
        return 0;
    int const val_a = ValCarta(t.calate(calate_di, inizio));
    int const val_b = ValCarta(t.calate(calate_di, ultima));
    for (int s = 1; s <= t.n_carte(mano_di); ++s) {
        Carta const carta = t.mano(mano_di, s);
        int const v = ValCarta(carta);
        if (Seme(carta) == seme && prolunga(v, val_a, val_b) &&
            (t.n_carte(mano_di) < 4 || isolata(mappa_best, v)))
            return s;
    }
    return 0;
}

// Slot of the card that makes four of a kind of the three that end at ultima, or 0.
int carta_per_gruppo(int mano_di, int calate_di, int inizio, int ultima)
{
    auto const& t = tavolo;
    if (ultima - inizio + 1 == 4)
        return 0;
    int mancante = somma_semi;
    for (int i = ultima - 2; i <= ultima; ++i)
        mancante -= Seme(t.calate(calate_di, i));
    int const v = ValCarta(t.calate(calate_di, ultima));
    if (t.mappa(mano_di).riga(mancante - 1)[static_cast<std::size_t>(v - 1)] != '*')
        return 0;
    return slot_di(mano_di, codice(mancante - 1, v));
}

// The provisional card is taken from the pile in earnest. It stays in its slot.
void prendi_provvisoria(int mano_di)
{
    auto& t = tavolo;
    --t.n_carte(mano_di);
    pesco_carta(dal_pozzo);
    t.pescato = true;
    compatto_mano(mano_di);
    rifaccio_mappa(mano_di);
}

void attacca(int mano_di, int calate_di, int slot, int ultima, bool a_scala)
{
    auto& t = tavolo;
    if (slot == t.n_carte(mano_di) && !t.pescato)
        prendi_provvisoria(mano_di);
    disegno_dorsi();
    t.calate(calate_di, t.n_calate(calate_di) + 1) = t.mano(mano_di, slot);
    chiudi_coda(calate_di, 1);
    t.pos_calata = ultima;
    if (a_scala)
        attacco_scala(calate_di);
    else
        attacco_poker(calate_di);
    t.mano(mano_di, slot) = 0;
    compatto_mano(mano_di);
    rifaccio_mappa(mano_di);
    if (a_scala)
        ord_crescente_calata(calate_di);
    calo_carte(calate_di);
    beep();
}

}  // namespace

void Provo_Attacco(int mano_di, int calate_di)
{
    auto const& t = tavolo;
    for (int inizio = 1; inizio <= t.n_calate(calate_di);) {
        int ultima = ultima_carta(calate_di, inizio);
        bool const a_scala = scala(calate_di, ultima);
        int const slot = a_scala ? carta_per_scala(mano_di, calate_di, inizio, ultima)
                                 : carta_per_gruppo(mano_di, calate_di, inizio, ultima);
        if (slot != 0 && posto_per_coda(calate_di, 1)) {
            attacca(mano_di, calate_di, slot, ultima, a_scala);
            ++ultima;
        }
        inizio = ultima + 2;
    }
}
