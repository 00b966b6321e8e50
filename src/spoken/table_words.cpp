// SPDX-License-Identifier: GPL-3.0-or-later
#include "spoken/table_words.h"

#include "game/places.h"
#include "game/table_state.h"
#include "melds/table_melds.h"
#include "players/player_names.h"
#include "spoken/card_words.h"
#include "window/controls.h"
#include "window/menus.h"
#include "window/window.h"

#include <algorithm>
#include <string_view>

namespace spoken {

namespace {

using Kind = Place::Kind;

constexpr std::string_view riga_titolo[] = {"SollevinoDue", "by Cartovendo"};

// The picture with that corner, 0 if there is none.
int figura_a(Single x, Single y)
{
    auto const& marks = superficie.marks();
    auto const m = std::find_if(marks.rbegin(), marks.rend(), [&](Mark const& mark) {
        return mark.kind == Mark::Kind::picture && mark.box.x1 == x && mark.box.y1 == y;
    });
    return m == marks.rend() ? 0 : static_cast<int>(m->figura);
}
bool coperta(int figura) { return figura > 52; }
bool scoperta(int figura) { return figura > 0 && figura <= 52; }

// The frame in the middle: a hand has been dealt or is being dealt.
bool apparecchiata()
{
    return std::ranges::any_of(superficie.marks(), [](Mark const& m) {
        return m.kind == Mark::Kind::outline && m.box == cornice();
    });
}

bool mano_finita() { return tavolo.n_carte(umano) == 0 || tavolo.n_carte(computer) == 0; }

std::string nome(int p) { return tavolo.nomi(p - 1).empty() ? "?" : tavolo.nomi(p - 1); }

std::string_view dorso_detto(int figura) { return figura == dorsov(0) ? "dorso blu" : "dorso rosso"; }

class Elenco {
  public:
    std::vector<Item> voci;

    Item& aggiungi(Kind kind, int index, Role role, std::string testo, Box box, Place gruppo = {})
    {
        return voci.emplace_back(Item{.place = {kind, index},
                                      .role = role,
                                      .name = maiuscola(std::move(testo)),
                                      .box = box,
                                      .group = gruppo});
    }
};

// ---------------------------------------------------------------- what is awaited

std::string attesa()
{
    auto const& t = tavolo;
    if (t.azione == azioni::taglia)
        return t.turno == computer ? "tagliate il mazzo per " + nome(computer) : "tagliate il mazzo per voi";
    if (t.azione == azioni::ignora)
        return "si danno le carte";
    if (!apparecchiata())
        return "un momento";
    if (mano_finita())
        return enabled(Menu::menu_continue) ? "mano finita: Continua, nel menu Partita" : "mano finita";
    if (human_to_move())
        return "tocca a " + nome(umano) + (t.pescato ? "" : ": pescate");
    return "gioca " + nome(t.turno);
}

bool comincia(Mark const& m, Single x, Single y) { return m.box.x1 == x && m.box.y1 == y; }

// The title, the names of the players, the labels of the name fields and the table of games are told
// elsewhere.
bool detto_altrove(Mark const& m)
{
    return std::ranges::count(riga_titolo, m.testo) || (mano_finita() && cornice().contains(m.box)) ||
           comincia(m, x_nomi(), y_nome(umano)) || comincia(m, x_nomi(), y_nome(computer)) ||
           (pagina_nomi.contains(m.box) && m.box.y1 >= testata_nomi);
}

// Texts that stand on the table and are told nowhere else.
void parole(Elenco& e)
{
    int n = 0;
    for (Mark const& m : superficie.marks())
        if (auto const inizio = m.testo.find_first_not_of(' ');
            m.kind == Mark::Kind::text && inizio != std::string_view::npos && !detto_altrove(m))
            e.aggiungi(Kind::words, ++n, Role::label, senza_gridare(std::string(m.testo.substr(inizio))),
                       m.box);
}

// ---------------------------------------------------------------- the dealer choice

void scelta_del_cartaro(Elenco& e)
{
    auto const& t = tavolo;
    Single const x = x_taglio();
    for (int p : {computer, umano})
        if (int const figura = figura_a(x, y_mano(p)); scoperta(figura))
            e.aggiungi(Kind::cut_card, p, Role::label,
                       (p == umano ? "la vostra carta: " : "la carta di " + nome(p) + ": ") +
                           carta_detta(figura),
                       posto_carta(x, y_mano(p)));
    if (t.azione == azioni::taglia)
        e.aggiungi(Kind::deck, 0, Role::button, "mazzo, tagliate", area_scelta).left = true;
    if (t.azione == azioni::taglia && control(Shape1(1)).visible)
        e.aggiungi(Kind::close_names, 0, Role::button, "confermate i nomi", area_chiusura_nomi()).left = true;
}

// ---------------------------------------------------------------- pile and stock

void pozzo_e_tallone(Elenco& e)
{
    auto const& t = tavolo;
    bool const si_pesca = human_to_move() && !t.pescato;
    Box const pozzo = posto_pozzo(), tallone = posto_tallone();
    if (int const figura = figura_a(pozzo.x1, pozzo.y1); scoperta(figura))
        e.aggiungi(Kind::pile, 0, Role::button,
                   "pozzo: " + carta_detta(figura) + ", " + quante_carte(t.n_pozzo), pozzo)
            .left = si_pesca;
    else if (human_to_move())
        e.aggiungi(Kind::pile, 0, Role::button, "pozzo vuoto", pozzo);
    if (int const figura = figura_a(tallone.x1, tallone.y1); coperta(figura) && t.azione != azioni::taglia)
        e.aggiungi(Kind::stock, 0, Role::button, "tallone, " + std::string(dorso_detto(figura)), tallone)
            .left = si_pesca;
}

// ---------------------------------------------------------------- hands

void mano_umana(Elenco& e)
{
    auto const& t = tavolo;
    std::vector<int> slot;
    for (int s = 1; s <= t.n_carte(umano); ++s)
        if (scoperta(figura_a(x_mano(s), y_mano(umano))) || scoperta(figura_a(x_mano(s), y_scelta_alta)))
            slot.push_back(s);
    if (slot.empty())
        return;

    int const n = static_cast<int>(slot.size());
    Single const basso = y_mano(umano) + t.alt_carta;
    Place const mano{Kind::hand, 0};
    e.aggiungi(Kind::hand, 0, Role::list, "la vostra mano, " + quante_carte(n),
               {0, y_mano(umano), x_mano(slot.back() + 1), basso});
    for (int const s : slot) {
        int const carta = t.mano(umano, s);
        Item& voce = e.aggiungi(Kind::hand_card, s, Role::item,
                                carta_detta(senza_scelta(carta)) + ", " + std::to_string(s) + " di " +
                                    std::to_string(n),
                                {x_mano(s), y_mano(umano), x_mano(s + 1), basso}, mano);
        voce.left = human_to_move() && t.pescato;
        voce.right = human_to_move() && (!t.pescato || t.n_carte(umano) > 1);
        voce.selectable = voce.right && t.pescato;
        voce.selected = carta > scelta;
    }
}

void mano_del_computer(Elenco& e)
{
    auto const& t = tavolo;
    std::vector<int> slot;
    for (int s = 1; s <= max_mano; ++s)
        if (figura_a(x_mano(s), y_mano(computer)) != 0)
            slot.push_back(s);
    if (slot.empty() || t.azione == azioni::taglia)
        return;

    Place const mano{Kind::other_hand, 0};
    e.aggiungi(Kind::other_hand, 0, Role::list,
               nome(computer) + " ha " + quante_carte(static_cast<int>(slot.size())),
               {0, y_mano(computer), x_mano(slot.back() + 1), y_mano(computer) + t.alt_carta});
    for (int const s : slot)
        if (int const figura = figura_a(x_mano(s), y_mano(computer)); scoperta(figura))
            e.aggiungi(Kind::other_card, s, Role::item, carta_detta(figura),
                       posto_carta(x_mano(s), y_mano(computer)), mano);
}

// ---------------------------------------------------------------- melds

void calate_umane(Elenco& e)
{
    auto const& t = tavolo;
    bool const si_cala = human_to_move() && t.pescato;
    Box const riga = posto_calate();
    Place const gruppo{Kind::melds, umano};
    auto const tutte = calate_di(umano);
    e.aggiungi(Kind::melds, umano, Role::list, "le vostre combinazioni", riga);

    // The regions that an attach is aimed at, each cut off where the row stops to answer. Six steps behind the
    // last one count for it too; they are left out, since a click on the seam between both counts for none.
    Single const passo = passo_calate();
    Single sinistra = x_calata(1);
    int k = 0;
    for (auto const& c : tutte) {
        Single const destra = sinistra + static_cast<Single>(c.carte.size() + 2) * passo;
        Box const regione{std::min(sinistra, riga.x2), riga.y1, std::min(destra, riga.x2), riga.y2};
        e.aggiungi(Kind::own_meld, ++k, Role::item, calata_detta(c.carte), regione, gruppo).left =
            si_cala && regione.x1 < regione.x2;
        sinistra = destra;
    }
    // A new meld may be laid anywhere in the row; behind the regions the click aims at no other one.
    if (!tutte.empty())
        sinistra += 6 * passo;
    Box const libera{sinistra + passo < riga.x2 ? std::max(sinistra, riga.x1) : riga.x1, riga.y1, riga.x2,
                     riga.y2};
    e.aggiungi(Kind::lay, 0, Role::button, "calate le carte scelte", libera, gruppo).left = si_cala;
}

void calate_del_computer(Elenco& e)
{
    auto const& t = tavolo;
    auto const tutte = calate_di(computer);
    Place const gruppo{Kind::melds, computer};
    Box const riga = striscia_calate(computer);
    e.aggiungi(Kind::melds, computer, Role::list, "combinazioni di " + nome(computer), riga);
    int k = 0;
    for (auto const& c : tutte) {
        Single const fine = x_calata(c.ultima) + t.larg_carta;
        e.aggiungi(Kind::other_meld, ++k, Role::item, calata_detta(c.carte),
                   {x_calata(c.prima), riga.y1, fine, riga.y2}, gruppo);
    }
}

// ---------------------------------------------------------------- the table of games

void tavola_partite(Elenco& e)
{
    auto const& t = tavolo;
    if (!mano_finita())  // what stands in the frame during a hand is the message of a reshuffle
        return;
    std::vector<Mark const*> testi;
    for (Mark const& m : superficie.marks())
        if (m.kind == Mark::Kind::text && cornice().contains(m.box))
            testi.push_back(&m);
    if (testi.empty())
        return;
    Place const gruppo{Kind::games, 0};
    e.aggiungi(Kind::games, 0, Role::list, "partite", cornice());
    auto riga = [&, y = testi.front()->box.y1, n = 0](std::string testo) mutable {
        Single const alta = text_height(testi.front()->font);
        e.aggiungi(Kind::game_row, ++n, Role::item, std::move(testo),
                   {cornice().x1, y, cornice().x2, y + alta}, gruppo);
        y += alta;
    };
    auto cella = [&](int p, int g) {
        return nome(p) + " " + std::to_string(t.punti(p, g)) + " meno " + std::to_string(t.penali(p, g));
    };
    riga("partita, " + nome(umano) + ", " + nome(computer));
    for (int g = 1; g <= t.n_game; ++g)
        riga("partita " + std::to_string(g + t.game_usciti) + ": " + cella(1, g) + ", " + cella(2, g));
    riga("totale: " + nome(umano) + " " + std::to_string(t.totale(umano)) + ", " + nome(computer) + " " +
         std::to_string(t.totale(computer)));
}

}  // namespace

bool human_to_move()
{
    auto const& t = tavolo;
    return t.turno == umano && t.azione == azioni::nessuna && apparecchiata() && !mano_finita();
}

std::vector<Calata> calate_di(int giocatore)
{
    auto const& t = tavolo;
    std::vector<Calata> tutte;
    for (int prima = 1; prima <= t.n_calate(giocatore);) {
        int const ultima = ultima_carta(giocatore, prima);
        auto& c = tutte.emplace_back(Calata{prima, ultima, {}});
        for (int i = prima; i <= ultima; ++i)
            c.carte.push_back(int{t.calate(giocatore, i)});
        prima = ultima + 2;
    }
    return tutte;
}

std::vector<Item> table_words()
{
    Elenco e;
    e.aggiungi(Kind::status, 0, Role::label, attesa(), {0, 0, griglia_x, griglia_y});
    parole(e);
    scelta_del_cartaro(e);
    if (apparecchiata()) {
        pozzo_e_tallone(e);
        mano_umana(e);
        calate_umane(e);
        calate_del_computer(e);
        mano_del_computer(e);
        tavola_partite(e);
    }
    return std::move(e.voci);
}

}  // namespace spoken
