// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/help_pages.h"

namespace {

constexpr std::string_view regole =
    R"(Di solito si gioca in quattro, due coppie, con
2 mazzi di 52 carte francesi; SollevinoDue è una
versione per due soli giocatori. Il cartaro dà a
ciascuno 13 carte coperte, mette al centro il
resto del mazzo, il Tallone, e scopre la prima
carta, con cui inizia il Pozzo.

Al suo turno il giocatore pesca una carta dal
mazzo o dal Pozzo, la mette in mano, può calare
una o più combinazioni e infine scarta una carta
scoperta.

I giocatori formano combinazioni da calare sul
tavolo, o da attaccare a quelle già calate, per
liberarsi delle loro carte; lo scopo è fare più
punti possibile con le carte e le combinazioni
di maggior valore.

Chi ha in mano delle combinazioni può calarle
quando vuole, anche al primo turno.

La mano finisce quando un giocatore ha chiuso,
cioè non ha più carte in mano. Egli conta i punti
delle sue carte sul tavolo; l'avversario conta i
punti delle sue carte sul tavolo e ne toglie i
punti delle carte in mano.

Si può anche chiudere in mano, formando con le
13 carte delle combinazioni e calandole in un
colpo solo. Allora si raddoppiano i punti delle
carte messe sul tavolo e se ne hanno altri 200.
L'avversario che ha aperto conta normalmente; se
non ha aperto paga una penalità di 200 punti.

Vince la coppia che per prima raggiunge i 1500
punti.

LE COMBINAZIONI
Tris: 3 carte di uguale valore e seme diverso.
Scala: 3 o più carte di un seme in sequenza.
Poker: 4 carte di uguale valore e seme diverso.
Sollevino: scala di 7 o più carte di un seme.
Sollevinone: scala di 14 carte di un seme,
dall'Asso all'Asso.

I VALORI
Dal 2 al 5: 5 punti.
Dal 6 al Re: 10 punti.
Asso: 15 punti.
Poker dal 2 al 5: 40 punti.
Poker dal 6 al Re: 80 punti.
Poker d'Assi: 120 punti.
Sollevino: il doppio del valore totale delle sue
carte.
Sollevinone: 600 punti.

La tabella finale riporta, per ogni partita, i
punti fatti con le combinazioni e quelli delle
carte rimaste in mano.)";

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
scale vengono messe in ordine dal computer.

Per attaccare carte:
Selezionare la carta con il tasto destro. Poi fare
clic con il tasto sinistro su una carta della
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

void istruzioni_Click()
{
    open_or_close(Control::TxtItaliano);
}
void menu_help_Click()
{
    open_or_close(Control::TxtHelp);
}
void menu_about_Click()
{
    open_or_close(Control::Text4);
}

void TxtItaliano_Click()
{
    show(Control::TxtItaliano, false);
    show(Control::TxtHelp, false);
}
void TxtHelp_Click()
{
    show(Control::TxtHelp, false);
}
void text4_Click()
{
    show(Control::Text4, false);
}

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
