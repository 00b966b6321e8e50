// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/help_pages.h"

namespace {

constexpr std::string_view regole =
    R"(Il gioco si fa di norma in quattro, fra due coppie
di giocatori, con 2 mazzi di 52 carte francesi;
SollevinoDue ne è una versione per due soli
giocatori. Il cartaro distribuisce a ciascuno 13
carte coperte; il resto del mazzo, il Tallone, va
al centro del tavolo e se ne scopre la prima
carta, con la quale comincia il Pozzo.

Quando è di turno, un giocatore pesca una
carta dal mazzo oppure dal Pozzo e la mette in
mano; poi, se può e se vuole, cala sul tavolo
una o più combinazioni; infine scarta una carta,
scoperta, sopra il Pozzo.

I giocatori formano combinazioni da calare sul
tavolo, o attaccano carte a quelle che hanno
già calato, per liberarsi delle proprie carte. Lo
scopo è fare più punti possibile, con le carte e
le combinazioni di maggior valore.

Il giocatore che ha in mano delle combinazioni
può calarle quando vuole: non deve aspettare,
e può farlo anche nel primo turno.

La mano finisce quando uno dei giocatori ha
chiuso, cioè non ha più carte in mano. Chi ha
chiuso conta i punti delle sue carte sul tavolo;
l’avversario conta i punti delle sue carte sul
tavolo e ne toglie quelli delle carte che gli sono
rimaste in mano.

Si può anche chiudere in mano, cioè formare le
combinazioni con le 13 carte e calarle tutte in
un colpo solo. Chi lo fa raddoppia i punti delle
carte che ha messo sul tavolo e ne riceve altri
200. L’avversario che ha già aperto conta i suoi
punti normalmente; chi non ha aperto paga una
penalità di 200 punti.

Vince il gioco la coppia che per prima
raggiunge i 1500 punti, o li supera.

Le combinazioni sono:
Tris: 3 carte di uguale valore e seme diverso.
Scala: 3 o più carte di un seme in sequenza.
Poker: 4 carte di uguale valore e seme diverso.
Sollevino: scala di 7 o più carte di un seme.
Sollevinone: scala di 14 carte di un solo seme,
dall’Asso all’Asso.

I valori sono:
Carte dal 2 al 5: 5 punti ciascuna.
Carte dal 6 al Re: 10 punti ciascuna.
Asso: 15 punti.
Poker dal 2 al 5: 40 punti.
Poker dal 6 al Re: 80 punti.
Poker di Assi: 120 punti.
Sollevino: il doppio del valore totale delle carte
che lo compongono.
Sollevinone: 600 punti.

Nella tabella finale si leggono, per ogni mano
e per ciascun giocatore, i punti fatti con le
combinazioni e quelli delle carte rimaste in
mano.)";

constexpr std::string_view aiuto =
    R"(-Tasto sinistro del Mouse:
  - PESCA dal Pozzo o dal Tallone
  - CALA o ATTACCA carte selezionate
  - SCARTA una carta non selezionata nel Pozzo

- Tasto destro del Mouse:
  - SELEZIONA  o DESELEZIONA le carte 

Per calare combinazioni:
Selezionata la combinazione con il tasto destro,
fare clic con il tasto sinistro sulla parte dello
schermo riservata alle proprie combinazioni; le
scale vengono poi messe in ordine dal computer.

Per attaccare carte:
Selezionare la carta con il tasto destro. Poi fare
clic con il tasto sinistro sopra una carta della
combinazione a cui la si vuole attaccare.)";

constexpr std::string_view info = "SollevinoDue ver 3.3\n--------------------";

constexpr Control pannelli[] = {Control::TxtItaliano, Control::TxtHelp, Control::Text4};

void open_or_close(Control pannello)
{
    for (Control altro : pannelli)
        if (altro != pannello)
            show(altro, false);
    if (control(pannello).visible)
        return show(pannello, false);
    show(pannello);
    bring_to_front(pannello);
}

}  // namespace

void istruzioni_Click() { open_or_close(Control::TxtItaliano); }
void menu_help_Click() { open_or_close(Control::TxtHelp); }
void menu_about_Click() { open_or_close(Control::Text4); }

void TxtItaliano_Click()
{
    show(Control::TxtItaliano, false);
    show(Control::TxtHelp, false);
}
void TxtHelp_Click() { show(Control::TxtHelp, false); }
void text4_Click() { show(Control::Text4, false); }

void chiudi_pannelli()
{
    for (Control pannello : pannelli)
        show(pannello, false);
}

std::string_view panel_text(Control pannello)
{
    switch (pannello) {
    case Control::TxtItaliano: return regole;
    case Control::TxtHelp: return aiuto;
    case Control::Text4: return info;
    default: return {};
    }
}
