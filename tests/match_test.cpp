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
#include "game/wait.h"
#include "greedy_person.h"
#include "scoring/hand_scoring.h"

#include <gtest/gtest.h>

#include <malloc.h>
#include <set>
#include <utility>

namespace {

void taglia() { clic(1, 512, 384); }

// Two cuts, a wait for the deal, and it is somebody's turn.
void fino_al_primo_turno()
{
    for (fino_all_attesa(); tavolo.azione == 7; fino_all_attesa())
        taglia();
}

// The human's cards go to his melds, so that the next discard ends the hand.
void umano_quasi_fuori()
{
    while (tavolo.turno != 1)
        fino_all_attesa();
    int n = 0;
    for (int s = 1; s <= 13; ++s) {
        tavolo.calate(1, ++n) = std::exchange(tavolo.mano(1, s), 0);
        if (s % 3 == 0 && s < 12)
            tavolo.calate(1, ++n) = segnacalata;
    }
    tavolo.calate(1, ++n) = segnacalata;
    tavolo.n_calate(1) = n;
    tavolo.n_carte(1) = 0;
    tavolo.n_calo(0) = 5;
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

TEST(TableText, ReadsBackWhatItShowsAndRefusesTheRest)
{
    std::string const testo =
        "mano KH 5H' *8D mano2 AS calate 5D 6D 7D | calate2 9C 9H 9S | pozzo QS 2C tallone "
        "2C' 9H turno 2 cartaro 1 game 3 azione 4 pescato 1 totale -20 totale2 1499";
    ASSERT_TRUE(leggi_tavolo(testo));
    for (char const* falso :
         {"KH", "mano 1H", "mano KX", "calate 5D 6D 7D", "turno 3", "turno", "azione x", "mano |", "game 21",
          "totale 99999", "pozzo *KH", "mano AS AS AS AS AS AS AS AS AS AS AS AS AS AS AS"})
        EXPECT_FALSE(leggi_tavolo(falso)) << falso;
    EXPECT_EQ(mostra_tutto(), testo) << "a text that is refused changes nothing";
    EXPECT_TRUE(leggi_tavolo("mano"));
}

TEST(Shuffle, IsAPermutationThatTheSeedAndTheResetDecide)
{
    avvia_programma();
    std::set<std::vector<int>> ordini;
    for (int k = 0; k < 20; ++k) {
        finestra.now += 1000;
        Mescola();
        std::vector<int> const ordine(&tavolo.mazzo(1), &tavolo.mazzo(104) + 1);
        EXPECT_EQ(std::set(ordine.begin(), ordine.end()).size(), 104U);
        ordini.insert(ordine);
    }
    EXPECT_EQ(ordini.size(), 20U);

    auto const primo = [](Integer reset) {
        azzera_caso(reset);
        semina_caso(36000.5F);
        return caso();
    };
    EXPECT_NE(primo(-1), primo(-5));
    EXPECT_EQ(primo(-1), primo(-1));
    for (int k = 0; k < 100000; ++k) {
        int const n = caso_tra(27, 78);
        ASSERT_TRUE(n >= 27 && n <= 104 && caso() < 1);
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
        clic(2, 10, 700);
        EXPECT_EQ(t.azione, 15);
        menu(velocità(3));
        EXPECT_EQ(t.velocita, 0.5F) << "the speed is closed during the deal";
        fino_all_attesa();

        // 26 cards, the end of the deal, and the two packets' waits if the computer deals.
        EXPECT_EQ(finestra.now, 26 * 390 + 130 + (cartaro == 2 ? 2 * 1300 : 0));
        for (int s = 1; s <= 13; ++s) {
            EXPECT_EQ(t.mano(altro(cartaro), s), t.mazzo(s));
            EXPECT_EQ(t.mano(cartaro, s), t.mazzo(13 + s));
            EXPECT_EQ(figura_a(x_mano(s), y_mano_umano), faccia(t.mano(1, s)));
            EXPECT_EQ(figura_a(x_mano(s), y_mano_computer), dorso(t.mano(2, s)));
        }
        EXPECT_EQ(figura_a(posto_tallone().x1, posto_tallone().y1), dorso(t.mazzo(28)));
        EXPECT_EQ(guasto_tavolo(), "");
        EXPECT_EQ(voci().back(), '1');
    }
}

TEST(Waits, LastAsLongAsTheTableOfSpeedsSays)
{
    struct Caso {
        Single tempo;
        int voce, atteso;
    };
    for (auto const& [tempo, voce, atteso] :
         {Caso{0.005F, 1, 65}, Caso{0.005F, 2, 32}, Caso{0.005F, 3, 21}, Caso{0.03F, 2, 195},
          Caso{0.1F, 3, 433}, Caso{0.2F, 3, 866}, Caso{0.3F, 1, 3900}, Caso{1, 3, 4333}}) {
        avvia_programma();
        velocità_Click(voce);
        EXPECT_TRUE(gioca(ritardo(tempo)));
        EXPECT_EQ(finestra.last_wait, atteso) << tempo;
    }
}

TEST(DealerChoice, TheHigherRankDealsAndATieIsRepeatedWithTheCardJustCut)
{
    struct Caso {
        std::vector<char const*> mazzo;  // the first cards
        int tagli, cartaro;
    };
    for (auto const& [carte, tagli, cartaro] :
         {Caso{{"KH", "AS"}, 2, 2}, Caso{{"4H", "5C"}, 2, 1}, Caso{{"5H", "5H'", "5C", "4C"}, 6, 2}}) {
        avvia_programma();
        auto& t = tavolo;
        Mescola();
        for (int n = 0; n < std::ssize(carte); ++n)
            t.mazzo(n + 1) = carta_da(carte[static_cast<std::size_t>(n)]);
        t.velocita = 0.5F;
        runner.start(Scelta_Cartaro());
        for (int k = 0; k < tagli; ++k) {
            fino_all_attesa();
            clic(1, 480.8F, 384);  // on the edge and with the other button: nothing
            clic(2, 512, 384);
            ASSERT_EQ(t.carta_scelta, 0);
            EXPECT_EQ(figura_a(t.centro_x - t.larg_carta / 2, t.centro_y - t.alt_carta / 2),
                      dorso(t.mazzo(t.pos_scelta)));
            taglia();
        }
        EXPECT_EQ(finestra.boxes, std::vector<std::string>(carte.size() - 2, "Ripeti, prego"));
        EXPECT_EQ(t.cartaro, cartaro);
        EXPECT_EQ(t.turno, altro(cartaro));
        EXPECT_EQ(finestra.last_wait, 2600);
        EXPECT_FALSE(si_legge("Scelta cartaro - Clicca sul mazzo"));
    }
}

TEST(DealerChoice, SurvivesADeckThatTiesToItsEnd)
{
    avvia_programma();
    for (int i = 1; i <= 104; ++i)
        tavolo.mazzo(i) = 7;
    tavolo.velocita = 0.5F;
    runner.start(Scelta_Cartaro());
    fino_al_primo_turno();
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
    menu(Menu::menu_NewGame);
    EXPECT_FALSE(tavolo.nuova_partita) << "an entry that is off does nothing";
    finisci_smazzata();
    EXPECT_EQ(voci(), "0111") << "end of a hand";

    int const cartaro = tavolo.cartaro;
    menu(Menu::menu_continue);
    fino_all_attesa();
    EXPECT_EQ(voci(), "0111") << "they stay through the next hand";
    EXPECT_EQ(tavolo.cartaro, altro(cartaro));
    menu(Menu::menu_continue);
    menu(Menu::menu_NewGame);
    finisci_smazzata();
    EXPECT_EQ(tavolo.n_game, 2) << "a pick during the hand is forgotten at its end";

    evento([] {
        menu_click(Menu::menu_continue);
        menu_click(Menu::menu_NewGame);
    });
    fino_all_attesa();
    EXPECT_EQ(tavolo.n_game, 1) << "a new match wins over the next hand";
    EXPECT_EQ(tavolo.totale(1), 0);
    EXPECT_EQ(voci(), "1001");
}

TEST(Match, EndsAt1500AndNotAt1499)
{
    struct Caso {
        int fine, altrui;
        bool finita;
    };
    for (auto const& [fine, altrui, finita] :
         {Caso{1499, 0, false}, Caso{1500, 0, true}, Caso{0, 2000, true}}) {
        avvia_programma();
        fino_al_primo_turno();
        umano_quasi_fuori();
        tavolo.totale(1) = fine - valore_calate(1);
        tavolo.totale(2) = altrui;
        pesca_tallone()();
        clic_mano(1, 1);
        fino_all_attesa();
        EXPECT_EQ(tavolo.totale(1), fine);
        EXPECT_EQ(enabled(Menu::menu_continue), !finita);
        EXPECT_TRUE(enabled(Menu::menu_NewGame));
    }
}

TEST(Match, TheTwentyFirstHandMovesTheRowsUp)
{
    avvia_programma();
    for (int g = 1; g <= 23; ++g) {
        menu(Menu::menu_continue);
        fino_al_primo_turno();
        finisci_smazzata();
        tavolo.totale(1) = tavolo.totale(2) = 0;  // far from the end
    }
    EXPECT_EQ(tavolo.n_game, 20);
    EXPECT_TRUE(si_legge(" 4 ") && si_legge(" 23 ") && !si_legge(" 3 "));
    auto const righe = scritte();
    EXPECT_EQ(std::stoi(righe.back().testo), tavolo.punti(2, 20) - tavolo.penali(2, 20));
    EXPECT_LE(righe.back().box.y2, tavolo.centro_y + 110)
        << "twenty rows and the totals stay inside the panel";
}

TEST(Match, AHandThatNobodyCanEndGoesOnUntilThePlayerQuits)
{
    avvia_programma();
    for (fino_al_primo_turno(); tavolo.turno != 1;)
        fino_all_attesa();
    std::string testo = "turno 1 mano KH mano2 KD calate AH AD AC AS | 2H 2D 2C 2S | 3H 3D 3C 3S | "
                        "calate2 4H 4D 4C 4S | 5H 5D 5C 5S | 6H 6D 6C 6S | pozzo QS tallone ";
    for (int carta = 1; carta <= carte_mazzo; ++carta)
        if (testo.find(' ' + nome_carta(carta) + ' ') == std::string::npos)
            testo += nome_carta(carta) + ' ';
    ASSERT_TRUE(leggi_tavolo(testo));

    std::size_t memoria = 0;
    for (int turno = 1; turno <= 3000; ++turno) {
        pesca_tallone()();
        clic_mano(1, 1);
        fino_all_attesa();
        ASSERT_EQ(guasto_tavolo(), "") << mostra_tutto();
        ASSERT_TRUE(tavolo.turno == 1 && tavolo.n_carte(1) == 1 && tavolo.n_carte(2) == 1);
        finestra.log = {};
        if (turno == 1000)
            memoria = mallinfo2().uordblks;
    }
    EXPECT_LT(mallinfo2().uordblks, memoria + 4096);
    finestra.answer_yes = true;
    menu(Menu::esci);
    EXPECT_TRUE(finestra.ended);
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
    fino_al_primo_turno();
    EXPECT_EQ(guasto_tavolo(), "");
}

TEST(Match, ANamesPageLeftOpenGoesAwayWithTheFirstCut)
{
    avvia_programma();
    fino_all_attesa();
    menu(Menu::personalize_players);
    EXPECT_TRUE(control(TxtPlayer(2)).visible && control(Shape1(0)).visible);
    EXPECT_GT(control(Shape1(0)).order, control(Shape1(1)).order);
    taglia();
    for (Control c : {TxtPlayer(1), TxtPlayer(2), Shape1(0), Shape1(1)})
        EXPECT_FALSE(control(c).visible);
    EXPECT_FALSE(si_legge("Player1 (you)"));
    EXPECT_TRUE(si_legge("Scelta cartaro - Clicca sul mazzo"));
}

// One number stands for every table of the series, the other for all that a person sees and hears, both in
// order. If one changes, the commit tells why.
TEST(PlayedHands, EndAsTheyAlwaysDid)
{
    auto const played = gioca_partite(60, 3, [] { ASSERT_EQ(guasto_tavolo(), ""); });
    EXPECT_EQ(to_text(played) + "\n" + shown(played, 3) + "\n", contenuto(TESTS_FOLDER "/played_hands.txt"));
}
