// SPDX-License-Identifier: GPL-3.0-or-later
#include "at_the_table.h"

#include "audio/sound_music.h"
#include "game/table_state.h"
#include "window/help_pages.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::string> comandi()
{
    auto righe = std::exchange(finestra.log, {});
    std::erase_if(righe,
                  [](auto const& r) { return !r.starts_with("music ") && !r.starts_with("effects "); });
    return righe;
}

std::string segnate()
{
    std::string s;
    for (int v = 0; v < n_voci; ++v)
        if (checked(static_cast<Menu>(v)))
            s += std::string(caption(static_cast<Menu>(v))) + "; ";
    return s;
}

using Comandi = std::vector<std::string>;

}  // namespace

TEST(Music, GoesOnInTheOrderOfTheMenuOrStaysOnOneTune)
{
    avvia_programma();
    fino_all_attesa();
    EXPECT_EQ(segnate(), "Bassa; Si; MODO SEQUENZIALE; Adagio sostenuto; ");
    EXPECT_EQ(tavolo.n_canzone, 1);
    MMC1_Done(2);
    EXPECT_EQ(tavolo.n_canzone, 1);
    for (int k = 0; k < 16; ++k)
        MMC1_Done(1);
    EXPECT_EQ(segnate(), "Bassa; Si; MODO SEQUENZIALE; Vivaldi-Concerto in C; ");
    MMC1_Done(1);
    EXPECT_EQ(segnate(), "Bassa; Si; MODO SEQUENZIALE; Adagio sostenuto; ");

    comandi();
    menu(canzoni(13));
    EXPECT_EQ(segnate(), "Bassa; Si; Per Elisa; ");
    EXPECT_EQ(tavolo.n_canzone, 0);
    MMC1_Done(1);
    EXPECT_EQ(comandi(),
              (Comandi{"music close", "music open Per Elisa", "music play", "music rewind", "music play"}));

    menu(Menu::all);
    EXPECT_EQ(segnate(), "Bassa; Si; MODO SEQUENZIALE; Per Elisa; ");
    EXPECT_EQ(comandi(), Comandi{}) << "the tune that plays goes on";
    MMC1_Done(1);
    EXPECT_EQ(segnate(), "Bassa; Si; MODO SEQUENZIALE; Rondò a capriccio; ");

    comandi();
    menu(Menu::nomusic);
    EXPECT_EQ(segnate(), "Bassa; Si; Nessuna; ");
    EXPECT_EQ(comandi(), Comandi{"music close"});
    menu(Menu::all);
    EXPECT_EQ(segnate(), "Bassa; Si; MODO SEQUENZIALE; Adagio sostenuto; ");
    EXPECT_EQ(comandi().back(), "music play");
    finestra.tune_plays = false;
    menu(Menu::all);
    EXPECT_EQ(comandi().back(), "music play") << "a tune that failed does not stop the mode for good";
    EXPECT_EQ(tavolo.n_canzone, 2);
}

TEST(Sounds, ArePlayedFromTheirBeginningUnlessTheMenuSaysNo)
{
    avvia_programma();
    fino_all_attesa();
    comandi();
    Apri_suono("Notify");
    suona();
    EXPECT_EQ(comandi(), (Comandi{"effects close", "effects open Notify", "effects play", "effects rewind"}));
    menu(Menu::menu_card_rustle_no);
    EXPECT_EQ(segnate(), "Bassa; No; MODO SEQUENZIALE; Adagio sostenuto; ");
    Apri_suono("carta");
    suona();
    EXPECT_EQ(comandi(), (Comandi{"effects close", "effects open carta"}));
    menu(Menu::menu_card_rustle_yes);
    EXPECT_EQ(segnate(), "Bassa; Si; MODO SEQUENZIALE; Adagio sostenuto; ");
}

TEST(Speed, SetsItsMarkAndTheDivisorOfTheNextWait)
{
    avvia_programma();
    fino_all_attesa();
    for (int v : {2, 3, 1, 1}) {
        menu(velocità(v));
        EXPECT_EQ(tavolo.velocita, static_cast<Single>(v) * 0.5F);
        for (int w : {1, 2, 3})
            EXPECT_EQ(checked(velocità(w)), w == v);
        EXPECT_EQ(tavolo.i, 4);
    }
}

TEST(Quit, AsksFromTheMenuAndNotAtTheCloseControl)
{
    avvia_programma();
    fino_all_attesa();
    auto const prima = superficie.marks().size();
    finestra.in_box = [] {
        evento([] { tavolo.tempo_scaduto = true; });
        EXPECT_EQ(eventi_aperti, 1) << "the box is open inside its handler, and the game stands still";
    };
    menu(Menu::esci);
    EXPECT_EQ(finestra.boxes, std::vector<std::string>{"Uscire da Sollevino?"});
    EXPECT_FALSE(finestra.ended);
    EXPECT_EQ(superficie.marks().size(), prima);
    finestra.answer_yes = true;
    comandi();
    menu(Menu::esci);
    EXPECT_TRUE(finestra.ended);
    EXPECT_EQ(comandi(), (Comandi{"music close", "effects close"}));
    EXPECT_FALSE(runner.alive());

    avvia_programma();
    evento(Form_QueryUnload);
    EXPECT_TRUE(finestra.ended);
    EXPECT_TRUE(finestra.boxes.empty());
}

TEST(HelpPages, OneIsOpenAtATimeAndAClickOnTheTableClosesIt)
{
    avvia_programma();
    fino_all_attesa();
    auto const aperti = [] {
        std::string s;
        for (Control c : {Control::TxtItaliano, Control::TxtHelp, Control::Text4})
            s += control(c).visible ? '1' : '0';
        return s;
    };
    menu(Menu::menu_help);
    EXPECT_EQ(aperti(), "010");
    menu(Menu::istruzioni);
    EXPECT_EQ(aperti(), "100");
    menu(Menu::menu_about);
    EXPECT_EQ(aperti(), "001");
    menu(Menu::menu_about);
    EXPECT_EQ(aperti(), "000");
    menu(Menu::istruzioni);
    clic(1, 512, 384);
    EXPECT_EQ(aperti(), "000");
    EXPECT_EQ(tavolo.pos_scelta, 2) << "the click has cut a card as well";
    for (auto const click : {TxtItaliano_Click, TxtHelp_Click, text4_Click}) {
        menu(click == TxtItaliano_Click ? Menu::istruzioni
             : click == TxtHelp_Click   ? Menu::menu_help
                                        : Menu::menu_about);
        click();
        EXPECT_EQ(aperti(), "000");
    }
}
