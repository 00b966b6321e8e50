// SPDX-License-Identifier: GPL-3.0-or-later
#include "spoken/table_news.h"

#include "game/table_state.h"
#include "melds/table_melds.h"
#include "spoken/card_words.h"

#include <algorithm>
#include <utility>

namespace spoken {

namespace {

using Kind = Place::Kind;
using Sentences = std::vector<std::string>;

Snapshot look()
{
    auto const& t = tavolo;
    Snapshot s;
    for (Item const& item : table_words())
        switch (item.place.kind) {
        case Kind::words: s.words.push_back(item.name); break;
        case Kind::games: s.games = true; break;
        case Kind::melds: s.dealt = true; break;
        default: break;
        }
    s.choosing = t.azione == azioni::taglia;
    s.to_move = human_to_move();
    s.closed = s.dealt && (t.n_carte(umano) == 0 || t.n_carte(computer) == 0);
    s.turn = t.turno;
    s.cut_entry = t.pos_scelta;
    s.cut = t.carta_scelta != 0;
    s.stock = t.cima_tallone;
    s.pile = t.n_pozzo;
    s.top = t.n_pozzo > 0 ? int{t.pozzo(t.n_pozzo - 1)} : 0;
    s.cards = t.n_carte(umano);
    s.drawn = s.cards > 0 ? senza_scelta(t.mano(umano, s.cards)) : 0;
    for (int slot = 1; slot <= s.cards; ++slot)
        s.selected += t.mano(umano, slot) > scelta;
    for (int p : {umano, computer})
        for (auto const& c : calate_di(p))
            s.melds[static_cast<std::size_t>(p)].push_back(c.carte);
    s.action = t.azione;
    return s;
}

// A verb as it goes with who acts: "pescate", "il computer pesca".
std::string chi(int p, std::string_view voi, std::string_view egli)
{
    return p == umano ? std::string(voi) : "il computer " + std::string(egli);
}

void taglio(Snapshot const& prima, Snapshot const& ora, Sentences& news)
{
    if (!prima.choosing || prima.cut || (ora.choosing && !ora.cut && prima.turn == ora.turn))
        return;  // the player who begins the hand may be the one who cut last
    if (prima.turn == computer)
        news.push_back("il computer taglia: " + carta_detta(tavolo.mazzo(prima.cut_entry)));
    else
        news.push_back("tagliate: " + carta_detta(tavolo.mazzo(prima.cut_entry)));
    if (!ora.choosing)
        news.push_back(tavolo.cartaro == umano ? "date le carte voi" : "dà le carte il computer");
}

void pescata(int p, Snapshot const& prima, Snapshot const& ora, Sentences& news)
{
    if (ora.stock == prima.stock + 1)
        news.push_back(chi(p, "pescate dal tallone", "pesca dal tallone") +
                       (p == umano ? ": " + carta_detta(ora.drawn) : ""));
    if (ora.pile == prima.pile - 1)
        news.push_back(chi(p, "pescate", "pesca") + " dal pozzo " + carta_con_articolo(prima.top));
}

// The cards of a meld that lay in none of the player's melds before; each is struck from `vecchie`.
std::vector<Carta> nuove(std::vector<Carta> const& calata, std::vector<Carta>& vecchie)
{
    std::vector<Carta> carte;
    for (Carta const c : calata)
        if (auto const v = std::ranges::find(vecchie, int{c}, [](Carta x) { return int{x}; });
            v != vecchie.end())
            vecchie.erase(v);
        else
            carte.push_back(c);
    return carte;
}

void calate_e_attacchi(int p, Snapshot const& prima, Snapshot const& ora, Sentences& news)
{
    auto const riga = static_cast<std::size_t>(p);
    std::vector<Carta> vecchie;
    for (auto const& calata : prima.melds[riga])
        vecchie.insert(vecchie.end(), calata.begin(), calata.end());
    for (auto const& calata : ora.melds[riga]) {
        auto const carte = nuove(calata, vecchie);
        if (carte.size() == 1)
            news.push_back(chi(p, "attaccate ", "attacca ") + carta_con_articolo(carte[0]) + ": " +
                           calata_detta(calata));
        else if (!carte.empty())
            news.push_back(chi(p, "calate ", "cala ") + calata_con_articolo(carte) +
                           (carte.size() < calata.size() ? ", unita alla " + calata_detta(calata) : ""));
    }
}

void fine_mano(Snapshot const& prima, Snapshot const& ora, Sentences& news)
{
    auto const& t = tavolo;
    if (ora.closed && !prima.closed)
        news.push_back(t.n_carte(umano) == 0 ? "avete chiuso" : "il computer ha chiuso");
    if (!ora.games || prima.games)
        return;
    auto punti = [&](int p) {
        int const meno = t.penali(p, t.n_game);
        return std::to_string(t.punti(p, t.n_game)) + " punti" +
               (meno != 0 ? " meno " + std::to_string(meno) : "");
    };
    news.push_back("voi " + punti(umano) + ", il computer " + punti(computer));
    news.push_back("totale: voi " + std::to_string(t.totale(umano)) + ", il computer " +
                   std::to_string(t.totale(computer)));
    if (std::max<int>(t.totale(umano), t.totale(computer)) >= traguardo)
        news.push_back("la partita è finita");
}

// One step of a hand. The player on turn before it is the one who acted.
void mossa(Snapshot const& prima, Snapshot const& ora, Sentences& news)
{
    int const p = prima.turn;
    if (prima.pile == max_pozzo && ora.pile == 1) {
        news.push_back("il tallone è rifatto, in cima al pozzo " + carta_con_articolo(ora.top));
        return;
    }
    pescata(p, prima, ora, news);
    calate_e_attacchi(p, prima, ora, news);
    bool const scartata = ora.pile == prima.pile + 1;
    if (scartata)
        news.push_back(chi(p, "scartate ", "scarta ") + carta_con_articolo(ora.top));
    if (prima.selected > 0 && ora.selected == 0 && !scartata && prima.melds == ora.melds)
        news.push_back(prima.action == azioni::cala ? "carte rifiutate" : "scelta annullata");
}

Sentences between(Snapshot const& prima, Snapshot const& ora)
{
    Sentences news;
    taglio(prima, ora, news);
    if (prima.dealt && ora.dealt && prima.action != azioni::ignora)
        mossa(prima, ora, news);
    if (!prima.dealt && ora.dealt)
        news.push_back("si danno le carte");
    if (prima.action == azioni::ignora && ora.action != azioni::ignora && ora.dealt)
        news.push_back("in cima al pozzo " + carta_con_articolo(ora.top));
    for (auto const& testo : ora.words)
        if (!std::ranges::count(prima.words, testo))
            news.push_back(testo);
    fine_mano(prima, ora, news);
    if (ora.to_move && !prima.to_move)
        news.push_back("tocca a voi");
    return news;
}

}  // namespace

void News::before() { last_.action = tavolo.azione; }

std::vector<std::string> News::after()
{
    Snapshot ora = look();
    Sentences news = started_ ? between(last_, ora) : Sentences{};
    started_ = true;
    last_ = std::move(ora);
    for (auto& testo : news)
        testo = maiuscola(std::move(testo));
    return news;
}

}  // namespace spoken
