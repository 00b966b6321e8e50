// SPDX-License-Identifier: GPL-3.0-or-later
#include "computer/meld_decision.h"

#include "computer/computer_draw.h"
#include "computer/hand_reading.h"
#include "computer/sight.h"
#include "melds/table_melds.h"

namespace {

// A meld found, as codes of the first deck, entries 1 to lung.
struct Trovata {
    Serie<Byte, 13> scelte;
    int lung = 0;
};

// The map of the hand before the turn, with one more card.
void prova_con(Carta candidata)
{
    auto& t = tavolo;
    t.mappa(computer) = t.mappa_copia;
    t.mappa(computer).segna(candidata);
}

// The first suit that holds a run gives its longest; of equal ones the lowest.
Trovata cerca_scala()
{
    for (int s = 0; s < 4; ++s) {
        auto const mappa_seme = tavolo.mappa(computer).riga(s);
        Trovata trovata;
        int ultimo = 0;
        for (int v = 1, di_fila = 0; v <= 13; ++v) {
            di_fila = mappa_seme[static_cast<std::size_t>(v - 1)] == '*' ? di_fila + 1 : 0;
            if (di_fila > trovata.lung) {
                trovata.lung = di_fila;
                ultimo = v;
            }
        }
        if (trovata.lung < 3)
            continue;
        for (int k = 1; k <= trovata.lung; ++k)
            trovata.scelte(k) = static_cast<Byte>(codice(s, ultimo - trovata.lung + k));
        return trovata;
    }
    return {};
}

// The lowest rank that is held in three suits or more, in all suits that are held.
Trovata cerca_gruppo()
{
    auto const mappa = tavolo.mappa(computer).testo();
    for (int v = 1; v <= 13; ++v) {
        Trovata trovata;
        for (int s = 0; s < 4; ++s)
            if (mappa[static_cast<std::size_t>(codice(s, v) - 1)] == '*')
                trovata.scelte(++trovata.lung) = static_cast<Byte>(codice(s, v));
        if (trovata.lung > 2)
            return trovata;
    }
    return {};
}

void cala(Trovata const& trovata)
{
    auto& t = tavolo;
    pesco_carta(t.n_decise);
    for (int k = 1; k <= trovata.lung; ++k) {
        t.calate(computer, t.n_calate(computer) + k) = trovata.scelte(k);
        t.mano(computer, slot_di(computer, trovata.scelte(k))) = 0;
    }
    compatto_mano(computer);
    chiudi_coda(computer, trovata.lung);
}

}  // namespace

void decido_calata()
{
    auto& t = tavolo;
    Serie<Carta, 2> candidata;
    candidata(dal_pozzo) = cima_pozzo();
    candidata(dal_tallone) = prossima_tallone();

    for (auto const cerca : {cerca_scala, cerca_gruppo})
        for (int const fonte : {dal_pozzo, dal_tallone}) {
            prova_con(candidata(fonte));
            if (auto const trovata = cerca(); trovata.lung > 0 && posto_per_coda(computer, trovata.lung)) {
                t.n_decise = fonte;
                cala(trovata);
                return;
            }
        }
    t.mappa(computer) = t.mappa_copia;
    t.n_decise = 0;
}
