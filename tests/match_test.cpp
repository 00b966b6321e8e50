// SPDX-License-Identifier: GPL-3.0-or-later
//
// Whole matches: the played evening, and what does not come up in it.
#include "at_the_table.h"
#include "greedy_person.h"
#include "kept_file.h"
#include "scene.h"

#include "game/dealer_choice.h"
#include "game/random.h"
#include "game/table_check.h"
#include "game/table_state.h"

#include <gtest/gtest.h>

#include <malloc.h>

namespace {

void fino_al_turno_umano()
{
    for (fino_all_attesa(); tavolo.azione == 7; fino_all_attesa())
        clic(1, 512, 384);
}

}  // namespace

// One number stands for every table of the series, the other for all that a person sees and hears, both in
// order. If one changes, the commit tells why.
TEST(PlayedHands, EndAsTheyAlwaysDid)
{
    std::size_t most_marks = 0;
    auto const played = gioca_partite(60, 3, [&] {
        ASSERT_EQ(guasto_tavolo(), "");
        most_marks = std::max(most_marks, superficie.marks().size());
    });
    EXPECT_EQ(to_text(played) + "\n" + shown(played, 3) + "\n", kept(TESTS_FOLDER "/played_hands.txt"));
    EXPECT_LT(most_marks, 200U) << "the surface forgets what cannot be seen";
}

TEST(DealerChoice, SurvivesADeckThatTiesToItsEnd)
{
    avvia_programma();
    for (int i = 1; i <= 104; ++i)
        tavolo.mazzo(i) = 7;
    tavolo.velocita = 0.5F;
    runner.start(Scelta_Cartaro());
    fino_al_turno_umano();
    EXPECT_FALSE(runner.alive());
    EXPECT_GE(finestra.boxes.size(), 103U);
}

TEST(Match, AHandThatNobodyCanEndGoesOnUntilThePlayerQuits)
{
    racconta("> table mano KH mano2 KD calate AH AD AC AS | 2H 2D 2C 2S | 3H 3D 3C 3S | "
             "calate2 4H 4D 4C 4S | 5H 5D 5C 5S | 6H 6D 6C 6S | pozzo QS tallone ...");
    std::size_t memoria = 0;
    for (int turno = 1; turno <= 3000; ++turno) {
        pesca_tallone();
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
    fino_al_turno_umano();
    EXPECT_EQ(guasto_tavolo(), "");
}

TEST(Random, StaysBelowOneAndAsksTheReset)
{
    auto const first = [](Integer reset) {
        azzera_caso(reset);
        semina_caso(36000.5F);
        return caso();
    };
    EXPECT_NE(first(-1), first(-5));
    EXPECT_EQ(first(-1), first(-1));
    for (int k = 0; k < 100000; ++k) {
        int const n = caso_tra(27, 78);
        ASSERT_TRUE(n >= 27 && n <= 104 && caso() < 1);
    }
}

TEST(Bounds, StopACheckedBuild)
{
    if (!controllato)
        GTEST_SKIP();
    EXPECT_DEATH(tavolo.n_carte(umano) = max_mano + 1, "15 is not within 0 and 14");
    EXPECT_DEATH(tavolo.mano(umano, -1) = 1, "-1 is not within 0 and 14");
}
