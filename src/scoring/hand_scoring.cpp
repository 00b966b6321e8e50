// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring/hand_scoring.h"

#include "game/piles.h"
#include "game/table_state.h"
#include "game/wait.h"
#include "melds/table_melds.h"
#include "window/window.h"

#include <string>

namespace {

//                               -  A   2  3  4  5   6   7   8   9  10   J   Q   K
constexpr Byte punti_carta[] = {0, 15, 5, 5, 5, 5, 10, 10, 10, 10, 10, 10, 10, 10};

int punti_di(Carta carta) { return punti_carta[ValCarta(carta)]; }

// Points of the meld from prima to ultima, by its last two cards and its length alone.
int valore_calata(int p, int prima, int ultima)
{
    int somma = 0;
    for (int i = prima; i <= ultima; ++i)
        somma += punti_di(tavolo.calate(p, i));
    int const lung = ultima - prima + 1;
    if (!scala(p, ultima))
        return lung == 4 ? 2 * somma : somma;  // poker, tris
    if (lung == 14)
        return 5 * somma;                                // Sollevinone
    return lung >= 7 && lung <= 13 ? 2 * somma : somma;  // Sollevino, run
}

void conta_punti(int p, int chiude)
{
    auto& t = tavolo;
    int valore = valore_calate(p);
    if (p == chiude && t.n_calo(p - 1) == 1)
        valore = valore * 2 + 200;  // closed in one go
    if (t.n_calate(p) == 0 && p != chiude)
        valore -= 200;  // has not opened
    int in_mano = 0;
    for (int s = 1; s <= t.n_carte(p); ++s)
        in_mano += punti_di(t.mano(p, s));
    t.punti(p, t.n_game) = valore;
    t.penali(p, t.n_game) = in_mano;
}

// The panel grows from its middle line. A change of speed sets the shared counter back, and it grows again.
Task apre_pannello()
{
    auto& t = tavolo;
    Single const x = t.centro_x, alto = cornice().y1, basso = cornice().y2;
    superficie.line(x, alto, x, basso, colori::cornice);
    co_await ritardo(0.005F);
    superficie.fill_box({x - 10, alto, x + 10, alto + 10}, colori::tavolo);
    for (t.i = 1; t.i <= 199; t.i += 3) {
        auto const meta = static_cast<Single>(t.i);
        superficie.fill_box({x, alto, x - meta, basso}, colori::cornice);
        superficie.fill_box({x, alto, x + meta, basso}, colori::cornice);
        co_await ritardo(0.005F);
    }
}

// A blank or the minus in front, a blank behind.
std::string numero(int n) { return (n < 0 ? "" : " ") + std::to_string(n) + " "; }

// The table of games: two halves, in each a column for the points, the dash and the points left in hand.
class TavolaPartite {
  public:
    TavolaPartite()
        : riga_(text_height(superficie.font())), colonna_(text_width("0", superficie.font())), y_(y_partite())
    {
    }

    void intestazione()
    {
        superficie.text_colour(colori::blu);
        scrivi(umano, 0, "Game    " + tavolo.nomi(0));
        scrivi(computer, 0, tavolo.nomi(1));
        y_ += riga_;
    }

    void smazzata(int g)
    {
        auto const& t = tavolo;
        superficie.text_colour(colori::bianco);
        scrivi(umano, 0, numero(g + t.game_usciti));
        for (int p : {umano, computer}) {
            int const colonna = p == umano ? 6 : 0;
            scrivi(p, colonna, numero(t.punti(p, g)));
            scrivi(p, colonna + 6, " -");
            scrivi(p, colonna + 7, numero(t.penali(p, g)));
        }
        y_ += riga_;
    }

    void totali()
    {
        superficie.text_colour(colori::nero);
        scrivi(umano, 8, numero(tavolo.totale(umano)));
        scrivi(computer, 0, numero(tavolo.totale(computer)));
    }

  private:
    void scrivi(int meta, int colonna, std::string const& testo)
    {
        superficie.print_at(x_partite(meta) + static_cast<Single>(colonna) * colonna_, y_);
        superficie.print(testo);
    }

    Single riga_, colonna_, y_;
};

}  // namespace

void scopro_carte()
{
    auto& t = tavolo;
    for (int s = 1; s <= t.n_carte(computer); ++s) {
        t.pos_x = x_mano(s);
        t.pos_y = y_mano_computer;
        superficie.fill_box({t.pos_x, t.pos_y, t.pos_x + t.larg_carta, t.pos_y + t.alt_carta},
                            colori::tavolo);
        dipingi(faccia(t.mano(computer, s)), t.pos_x, t.pos_y);
    }
}

int valore_calate(int p)
{
    auto const& t = tavolo;
    int valore = 0;
    for (int prima = 1; prima <= t.n_calate(p);) {
        int const ultima = ultima_carta(p, prima);
        valore += valore_calata(p, prima, ultima);
        prima = ultima + 2;
    }
    return valore;
}

Task risultato()
{
    auto& t = tavolo;
    co_await apre_pannello();

    int const chiude = t.n_carte(computer) == 0 ? 2 : 1;
    for (int p : {umano, computer})
        conta_punti(p, chiude);
    for (int p : {umano, computer})
        t.totale(p) = t.punti(p, t.n_game) + t.totale(p) - t.penali(p, t.n_game);

    TavolaPartite tavola;
    tavola.intestazione();
    for (int g = 1; g <= t.n_game; ++g)
        tavola.smazzata(g);
    tavola.totali();
    superficie.text_colour(colori::bianco);
}
