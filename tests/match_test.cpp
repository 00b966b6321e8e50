// SPDX-License-Identifier: GPL-3.0-or-later
#include "at_the_table.h"

#include "game/deal.h"
#include "game/dealer_choice.h"
#include "game/match_loop.h"
#include "game/piles.h"
#include "game/random.h"
#include "game/shuffle.h"
#include "game/table_check.h"
#include "game/table_state.h"
#include "greedy_person.h"

#include <gtest/gtest.h>

#include <set>

namespace {

void taglia() { clic(1, 512, 384); }

// Two cuts, a wait for the deal, and it is somebody's turn.
void fino_al_primo_turno()
{
    fino_all_attesa();
    while (tavolo.azione == 7) {
        taglia();
        fino_all_attesa();
    }
}

// The human's cards go to his melds, so that the next discard ends the hand.
void umano_quasi_fuori()
{
    auto& t = tavolo;
    while (t.turno != 1)
        fino_all_attesa();
    int n = 0;
    for (int s = 1; s <= t.n_carte(1); ++s) {
        t.calate(1, ++n) = t.mano(1, s);
        t.mano(1, s) = 0;
        if (s % 3 == 0 && s < 12)
            t.calate(1, ++n) = segnacalata;
    }
    t.calate(1, ++n) = segnacalata;
    t.n_calate(1) = n;
    t.n_carte(1) = 0;
    t.n_calo(0) = 5;
}

void finisci_smazzata()
{
    umano_quasi_fuori();
    pesca_tallone()();
    clic_mano(1, 1);
    fino_all_attesa();
}

std::string voci()
{
    std::string s;
    for (Menu const v : {Menu::personalize_players, Menu::menu_continue, Menu::menu_NewGame, Menu::play_rate})
        s += enabled(v) ? '1' : '0';
    return s;
}

}  // namespace

TEST(Cards, HaveRankSuitAndName)
{
    struct Caso {
        int codice, valore, seme;
        char const* nome;
    };
    for (auto const& [codice, valore, seme, nome] :
         {Caso{0, 0, 0, "?"}, Caso{1, 1, 1, "AH"}, Caso{13, 13, 1, "KH"}, Caso{14, 1, 2, "AD"},
          Caso{26, 13, 2, "KD"}, Caso{36, 10, 3, "10C"}, Caso{52, 13, 4, "KS"}, Caso{53, 1, 1, "AH'"},
          Caso{104, 13, 4, "KS'"}}) {
        EXPECT_EQ(ValCarta(codice), valore);
        EXPECT_EQ(Seme(codice), seme);
        EXPECT_EQ(nome_carta(codice), nome);
        EXPECT_EQ(carta_da(nome), codice);
    }
}

TEST(TableText, ReadsBackWhatItShowsAndRefusesTheRest)
{
    std::string const testo =
        "mano KH 5H' *8D mano2 AS calate 5D 6D 7D | calate2 9C 9H 9S | pozzo QS 2C tallone "
        "2C' 9H turno 2 cartaro 1 game 3 azione 4 pescato 1 totale -20 totale2 1499";
    ASSERT_TRUE(leggi_tavolo(testo));
    EXPECT_EQ(mostra_tutto(), testo);
    for (char const* falso : {"KH", "mano", "mano 1H", "mano KX", "calate 5D 6D 7D", "turno 3", "turno",
                              "azione x", "mano |", "game 21", "totale 99999", "pozzo *KH"})
        EXPECT_EQ(leggi_tavolo(falso), std::string_view(falso) == "mano") << falso;
    leggi_tavolo(testo);
    EXPECT_FALSE(leggi_tavolo("mano AS AS AS AS AS AS AS AS AS AS AS AS AS AS AS"));
    EXPECT_EQ(mostra_tutto(), testo) << "a text that is refused changes nothing";
}

TEST(Shuffle, IsAPermutationThatTheSeedAndTheResetDecide)
{
    avvia_programma();
    std::set<std::string> ordini;
    for (int k = 0; k < 20; ++k) {
        finestra.now += 1000;
        Mescola();
        std::set<int> carte;
        std::string ordine;
        for (int i = 1; i <= 104; ++i) {
            carte.insert(tavolo.mazzo(i));
            ordine += nome_carta(tavolo.mazzo(i));
        }
        EXPECT_EQ(carte.size(), 104U);
        EXPECT_EQ(*carte.begin(), 1);
        EXPECT_EQ(tavolo.mazzo(0), 0);
        ordini.insert(ordine);
    }
    EXPECT_EQ(ordini.size(), 20U);

    azzera_caso(-1);
    semina_caso(36000.5F);
    Single const uno = caso();
    azzera_caso(-5);
    semina_caso(36000.5F);
    EXPECT_NE(caso(), uno);
    azzera_caso(-1);
    semina_caso(36000.5F);
    EXPECT_EQ(caso(), uno);
    for (int k = 0; k < 100000; ++k) {
        int const n = caso_tra(27, 78);
        ASSERT_TRUE(n >= 27 && n <= 104);
        Single const c = caso();
        ASSERT_TRUE(c >= 0 && c < 1);
    }
}

TEST(Deal, GivesThirteenCardsToEachTheNonDealerFirst)
{
    for (int const cartaro : {1, 2}) {
        avvia_programma();
        auto& t = tavolo;
        t.velocita = 0.5F;
        t.cartaro = cartaro;
        t.turno = altro(cartaro);
        Gioco_Imposta();
        runner.start(daicarte());
        runner.resume();
        EXPECT_EQ(voci().back(), '0');
        ASSERT_TRUE(scatta_timer());
        clic(1, 512, 384);
        clic(2, 10, 700);
        EXPECT_EQ(t.azione, 15);
        menu(velocità(3));
        EXPECT_EQ(t.velocita, 0.5F) << "the speed is closed during the deal";
        fino_all_attesa();
        EXPECT_FALSE(runner.alive());

        // 26 cards, the end of the deal, and the two packets' waits if the computer deals.
        EXPECT_EQ(finestra.now, 26 * 390 + 130 + (cartaro == 2 ? 2 * 1300 : 0));
        int const primo = altro(cartaro);
        for (int s = 1; s <= 13; ++s) {
            EXPECT_EQ(t.mano(primo, s), t.mazzo(s));
            EXPECT_EQ(t.mano(cartaro, s), t.mazzo(13 + s));
            EXPECT_EQ(figura_a(x_mano(s), y_mano_umano), faccia(t.mano(1, s)));
            EXPECT_EQ(figura_a(x_mano(s), y_mano_computer), dorso(t.mano(2, s)));
        }
        EXPECT_EQ(t.pozzo(0), t.mazzo(27));
        EXPECT_EQ(figura_a(posto_tallone().x1, posto_tallone().y1), dorso(t.mazzo(28)));
        EXPECT_EQ(guasto_tavolo(), "");
        EXPECT_EQ(t.azione, 0);
        EXPECT_EQ(voci().back(), '1');
        EXPECT_EQ(t.mappa(1).testo().size(), 52U);
    }
}

TEST(Waits, LastAsLongAsTheTableOfSpeedsSays)
{
    struct Caso {
        Single tempo;
        int bassa, media, alta;
    };
    for (auto const& [tempo, bassa, media, alta] :
         {Caso{0.005F, 65, 32, 21}, Caso{0.01F, 130, 65, 43}, Caso{0.03F, 390, 195, 130},
          Caso{0.1F, 1300, 650, 433}, Caso{0.2F, 2600, 1300, 866}, Caso{0.3F, 3900, 1950, 1300},
          Caso{0.5F, 6500, 3250, 2166}, Caso{1.0F, 13000, 6500, 4333}}) {
        int voce = 1;
        for (int const atteso : {bassa, media, alta}) {
            avvia_programma();
            velocità_Click(voce++);
            EXPECT_TRUE(gioca(ritardo(tempo)));
            EXPECT_EQ(finestra.last_wait, atteso) << tempo;
        }
    }
}

TEST(DealerChoice, TheHigherRankDealsAndATieIsRepeatedWithTheCardJustCut)
{
    struct Caso {
        char const* mazzo;  // the first cards
        int tagli, cartaro;
    };
    for (auto const& [carte, tagli, cartaro] : {
             Caso{"KH AS", 2, 2},
             Caso{"4H 5C", 2, 1},
             Caso{"9H 9C 10D", 4, 1},
             Caso{"5H 5H' 5C 4C", 6, 2},
         }) {
        avvia_programma();
        auto& t = tavolo;
        Mescola();
        std::istringstream parole{std::string(carte)};
        int n = 0;
        for (std::string c; parole >> c;)
            t.mazzo(++n) = carta_da(c);
        t.velocita = 0.5F;
        runner.start(Scelta_Cartaro());
        for (int k = 0; k < tagli; ++k) {
            fino_all_attesa();
            clic(1, 480.8F, 384);  // on the edge, beside it and with the other button: nothing
            clic(1, 100, 384);
            clic(2, 512, 384);
            ASSERT_EQ(t.carta_scelta, 0);
            EXPECT_EQ(voci()[0], k == 0 ? '1' : '0') << "the names are closed from the first cut on";
            EXPECT_EQ(figura_a(t.centro_x - t.larg_carta / 2, t.centro_y - t.alt_carta / 2),
                      dorso(t.mazzo(t.pos_scelta)));
            taglia();
        }
        EXPECT_EQ(finestra.boxes,
                  std::vector<std::string>(static_cast<std::size_t>(tagli / 2 - 1), "Ripeti, prego"));
        EXPECT_EQ(t.cartaro, cartaro) << carte;
        EXPECT_EQ(t.turno, altro(cartaro));
        EXPECT_EQ(t.azione, 0);
        EXPECT_EQ(finestra.last_wait, 2600);
        EXPECT_FALSE(si_legge("Scelta cartaro - Clicca sul mazzo"));
    }
}

TEST(DealerChoice, SurvivesADeckThatTiesToItsEnd)
{
    avvia_programma();
    Mescola();
    for (int i = 1; i <= 104; ++i)
        tavolo.mazzo(i) = 7;
    tavolo.velocita = 0.5F;
    runner.start(Scelta_Cartaro());
    fino_all_attesa();
    for (int k = 0; k < 400 && tavolo.azione == 7; ++k) {
        taglia();
        fino_all_attesa();
    }
    EXPECT_FALSE(runner.alive());
    EXPECT_GE(finestra.boxes.size(), 103U);
}

TEST(Match, MenuStatesFollowTheMomentsOfTheTable)
{
    avvia_programma();
    fino_all_attesa();
    EXPECT_EQ(voci(), "1001") << "before the first cut";
    taglia();
    EXPECT_EQ(voci(), "0001") << "from the first cut on";
    fino_al_primo_turno();
    EXPECT_EQ(voci(), "0001");
    menu(Menu::menu_NewGame);
    EXPECT_FALSE(tavolo.nuova_partita) << "an entry that is off does nothing";
    finisci_smazzata();
    EXPECT_EQ(voci(), "0111") << "end of a hand";

    int const cartaro = tavolo.cartaro;
    menu(Menu::menu_continue);
    fino_all_attesa();
    EXPECT_EQ(voci(), "0111") << "they stay through the next hand";
    EXPECT_EQ(tavolo.n_game, 2);
    EXPECT_EQ(tavolo.cartaro, altro(cartaro));
    menu(Menu::menu_continue);
    menu(Menu::menu_NewGame);
    fino_all_attesa();
    EXPECT_EQ(tavolo.n_game, 2) << "a pick during the hand is forgotten at its end";
    finisci_smazzata();
    EXPECT_EQ(tavolo.n_game, 2);

    evento([] {
        menu_click(Menu::menu_continue);
        menu_click(Menu::menu_NewGame);
    });
    fino_all_attesa();
    EXPECT_EQ(tavolo.n_game, 1) << "a new match wins over the next hand";
    EXPECT_EQ(tavolo.totale(1), 0);
    EXPECT_EQ(tavolo.azione, 7);
    EXPECT_EQ(voci(), "1001");
}

TEST(Match, EndsAt1500AndNotAt1499)
{
    int guadagno = 0;
    for (int const prima : {0, 1499, 1500}) {
        avvia_programma();
        fino_al_primo_turno();
        tavolo.totale(1) = prima == 0 ? 0 : prima - guadagno;
        finisci_smazzata();
        if (prima == 0)
            guadagno = tavolo.totale(1);
        else
            EXPECT_EQ(tavolo.totale(1), prima);
        EXPECT_EQ(enabled(Menu::menu_continue), prima != 1500);
        EXPECT_TRUE(enabled(Menu::menu_NewGame));
    }
    menu(Menu::menu_continue);
    fino_all_attesa();
    EXPECT_EQ(tavolo.n_game, 1) << "a match that is over does not go on";
}

TEST(Match, TheTwentyFirstHandMovesTheRowsUp)
{
    avvia_programma();
    fino_al_primo_turno();
    for (int g = 1; g <= 23; ++g) {
        finisci_smazzata();
        tavolo.totale(1) = g;  // far from the end
        tavolo.totale(2) = 0;
        if (g < 23) {
            menu(Menu::menu_continue);
            fino_all_attesa();
        }
    }
    EXPECT_EQ(tavolo.n_game, 20);
    EXPECT_TRUE(si_legge(" 4 "));
    EXPECT_TRUE(si_legge(" 23 "));
    EXPECT_FALSE(si_legge(" 3 "));
    Single fondo = 0;
    for (auto const& m : superficie.marks())
        if (m.kind == Mark::Kind::text && m.box.x1 > 330 && m.box.x1 < 700 && m.box.y1 < 500 &&
            m.box.y1 > 200)
            fondo = std::max(fondo, m.box.y2);
    EXPECT_LE(fondo, tavolo.centro_y + 110) << "twenty rows and the totals stay inside the panel";
}

TEST(Match, ClosingTheNamesPageStartsItAnewTenThousandTimes)
{
    avvia_programma();
    fino_all_attesa();
    for (int k = 0; k < 10000; ++k) {
        if (k % 2 == 0)
            menu(Menu::personalize_players);  // open or not, the area closes it
        menu(velocità(3));
        clic(1, 100, 120);
        ASSERT_EQ(tavolo.velocita, 0.5F);
        ASSERT_EQ(tavolo.azione, 7);
    }
    EXPECT_TRUE(checked(velocità(3))) << "the mark stays where it was";
    EXPECT_FALSE(control(TxtPlayer(1)).visible);
    fino_al_primo_turno();
    EXPECT_EQ(guasto_tavolo(), "");
}

TEST(Match, ANamesPageLeftOpenGoesAwayWithTheFirstCut)
{
    avvia_programma();
    fino_all_attesa();
    menu(Menu::personalize_players);
    EXPECT_TRUE(control(TxtPlayer(2)).visible);
    EXPECT_TRUE(control(Shape1(0)).visible);
    EXPECT_GT(control(Shape1(0)).order, control(Shape1(1)).order);
    taglia();
    for (Control c : {TxtPlayer(1), TxtPlayer(2), Shape1(0), Shape1(1)})
        EXPECT_FALSE(control(c).visible);
    EXPECT_FALSE(si_legge("Player1 (you)"));
    EXPECT_TRUE(si_legge("Scelta cartaro - Clicca sul mazzo"));
}

TEST(Match, CanBeLeftFromEveryWait)
{
    int attese = 0;
    for (int lasciata = 0; lasciata < 400; ++lasciata) {
        avvia_programma();
        fino_al_primo_turno();
        if (tavolo.turno == 1)
            umano_quasi_fuori();
        runner.resume();
        for (int k = 0; k < lasciata; ++k)
            if (!scatta_timer())
                tavolo.turno == 1 && !tavolo.pescato ? pesca_tallone()() : clic_mano(1, 1);
        attese += runner.alive();
        Form_QueryUnload();
        runner.resume();
        EXPECT_TRUE(finestra.ended);
        EXPECT_FALSE(runner.alive());
        EXPECT_FALSE(scatta_timer() && runner.alive());
        lasciata += lasciata / 20;
    }
    EXPECT_GT(attese, 60);
}

// The number stands for every table of the series, in order. If it changes, the commit tells why.
TEST(PlayedHands, EndAsTheyAlwaysDid)
{
    auto const played = gioca_partite(60, 3, [] { ASSERT_EQ(guasto_tavolo(), ""); });
    EXPECT_EQ(to_text(played) + "\n", contenuto(PLAYED_HANDS_FILE));
}
