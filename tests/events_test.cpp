// SPDX-License-Identifier: GPL-3.0-or-later
//
// Anything at all: events at any time, bytes in place of a text.
#include "at_the_table.h"

#include "audio/sound_music.h"
#include "game/table_check.h"
#include "game/table_state.h"
#include "human/pointer_input.h"
#include "players/player_names.h"
#include "players/windows_1252.h"
#include "window/help_pages.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace {

std::mt19937 dice;
int byte() { return static_cast<int>(dice() % 256U); }

// Clicks, most of them where they mean something, menu picks, resizes, names, ends of tunes, the close
// control.
void random_event()
{
    auto const x = [] { return static_cast<Single>(byte()) * 4 - 40; };
    auto const y = [] { return static_cast<Single>(byte()) * 3.5F - 40; };
    int const what = byte() % 24;
    if (what > 12)
        return Form_MouseDown(what > 15 ? 2 : 1, 0, x(), 700);
    switch (what) {
    case 0: return menu_click(static_cast<Menu>(byte() % n_voci));
    case 1: return menu_click(tavolo.continua ? Menu::menu_continue : Menu::menu_NewGame);
    case 2: client_size({byte() * 16, byte() * 12}); return Form_Resize();
    case 3:
        set_text(TxtPlayer(1 + byte() % 4),
                 std::string(static_cast<std::size_t>(byte()) % 9, static_cast<char>(byte())));
        return TxtPlayer_Change(1 + byte() % 2);
    case 4: return byte() == 0 && byte() > 100 ? Form_QueryUnload() : MMC1_Done(byte() % 3);
    case 5: return Form_MouseMove(0, 0, x(), y());
    case 6: return Form_MouseDown(byte() % 5, 0, x(), y());
    case 7: return Form_MouseDown(1, 0, 100, 120);  // where the names page is closed
    case 8:
    case 9:
    case 10: return Form_MouseDown(1, 0, byte() % 2 ? 500.0F : 520.0F, 384);
    case 11: return Form_MouseDown(1, 0, 312 + x() / 3, 520);
    default: finestra.answer_yes = byte() % 128 == 0; return TxtHelp_Click();
    }
}

}  // namespace

// Between any two waits of the game: nothing crashes or hangs, and the table stays whole.
TEST(Events, AMillionOfThemAtRandomHarmNothing)
{
    char const* const how_many = std::getenv("SOLLEVINO_EVENTS");
    int const total = how_many ? std::atoi(how_many) : 1000000;
    avvia_programma();
    int programs = 1, hands = 0;
    for (int done = 0; done < total;) {
        runner.resume();
        for (int burst = 1 + byte() % 3; burst > 0; --burst, ++done)
            evento(random_event);
        finestra.boxes.clear();
        finestra.log.clear();
        runner.resume();
        if (byte() % 3 == 0)
            scatta_timer();
        ASSERT_EQ(guasto_tavolo(), "") << "after " << done << " events\n" << mostra_tutto();
        ASSERT_LT(superficie.marks().size(), 400U);
        if (finestra.ended) {
            hands += tavolo.n_game;
            avvia_programma();
            ++programs;
        }
    }
    EXPECT_GT(programs, 1);
    EXPECT_GT(hands, 0);
}

// Two names of at most 255 characters come out of any bytes, in the code page, and one without a comma, a
// quote or a blank in front is read back as it is written.
TEST(Bytes, InPlaceOfTheNamesAreTwoNames)
{
    avvia_programma();
    for (int k = 0; k < 20000; ++k) {
        std::string bytes(static_cast<std::size_t>(byte()) * 2, '\0');
        for (char& b : bytes)
            b = byte() < k % 2 * 40 ? ",\" \r\n"[byte() % 5] : static_cast<char>(byte());
        leggi_nomi(bytes);
        for (auto const& name : {tavolo.nomi(0), tavolo.nomi(1)}) {
            auto const kept = a_windows_1252(name);
            ASSERT_LE(kept.size(), 255U);
            ASSERT_EQ(da_windows_1252(kept), name);
            leggi_nomi(kept + "\r\n");
            ASSERT_TRUE(tavolo.nomi(0) == name || kept.find_first_of(",\"") != kept.npos || kept[0] == ' ' ||
                        kept.empty());
        }
    }
}

TEST(Bytes, InPlaceOfATableAreReadBackOrRefused)
{
    std::string const testo =
        "mano KH 5H' *8D mano2 AS calate 5D 6D 7D | calate2 9C 9H 9S | pozzo QS 2C tallone "
        "2C' 9H turno 2 cartaro 1 game 3 azione 4 pescato 1 totale -20 totale2 1499";
    ASSERT_TRUE(leggi_tavolo(testo));
    for (char const* no :
         {"KH", "mano 1H", "mano KX", "calate 5D 6D 7D", "turno 3", "turno", "azione x", "mano |", "game 21",
          "totale 99999", "pozzo *KH", "mano AS AS AS AS AS AS AS AS AS AS AS AS AS AS AS"})
        EXPECT_FALSE(leggi_tavolo(no)) << no;
    EXPECT_EQ(mostra_tutto(), testo) << "a text that is refused changes nothing";
    EXPECT_TRUE(leggi_tavolo("mano"));

    char const* const words[] = {"mano", "mano2", "calate", "calate2", "pozzo", "tallone", "KH", "10S'", "*",
                                 "*2C",  "|",     "turno",  "totale",  "game",  "1",       "-7", "99999"};
    for (int k = 0, tables = 0; k < 50000 || tables == 0; ++k) {
        std::string text;
        for (int n = byte() % 12; n > 0; --n)
            text += std::string(words[dice() % std::size(words)]) +
                    (byte() < 5 ? static_cast<char>(byte()) : ' ');
        if (!leggi_tavolo(text))
            continue;
        ++tables;
        auto const shown = mostra_tutto();
        ASSERT_TRUE(leggi_tavolo(shown)) << text;
        ASSERT_EQ(mostra_tutto(), shown) << text;
    }
}
